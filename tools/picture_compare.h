#pragma once

#include <QImage>
#include <QRect>
#include <QStringList>
#include <QWidget>

#include <vector>

/// A window as it looks, and where its controls stand in it.
struct CWindowPicture
{
    struct Control
    {
        QRect place;
        /// Id or object name, and the text if it has one.
        QString name;
    };

    QImage image;
    std::vector<Control> controls{};
};

CWindowPicture TakePicture(QWidget& window);

/// Places at which a fresh picture shows something else than the one that was kept, a sentence each
/// with the place in pixels and the control that stands there; none if they show the same. Edges of
/// letters may be smoothed otherwise, as another version of a font library does. A control that has
/// come, gone or moved is told, and all but the most alike letters in the place of each other.
QStringList FindChanges(const CWindowPicture& fresh, const QImage& kept);
