#pragma once

#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QToolTip>
#include <QWidget>

/// The smallest rectangle around all pixels below that lightness.
inline QRect InkOf(const QImage& image, int lightness)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).lightness() < lightness) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

/// What a user reads who points at a place of a widget; empty if no tool tip shows.
inline QString TipAt(QWidget& widget, const QPoint& place)
{
    QHelpEvent help(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &help);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}
