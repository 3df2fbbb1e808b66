#include "uikit/native/size_grip.h"

#include <QMouseEvent>
#include <QPainter>

CSizeGrip::CSizeGrip(QWidget* parent) : QWidget(parent)
{
    // Never in front of a control that reaches into its corner.
    lower();
    setCursor(Qt::SizeFDiagCursor);
}

void CSizeGrip::paintEvent(QPaintEvent* /*event*/)
{
    constexpr int kDot = 2;
    constexpr int kStep = 4;
    QPainter painter(this);
    const QColor ink = palette().color(QPalette::Mid);
    for (int row = 0; row < 3; ++row) {
        for (int dot = 0; dot <= row; ++dot) {
            painter.fillRect(width() - kStep * (dot + 1), height() - kStep * (3 - row), kDot, kDot,
                             ink);
        }
    }
}

void CSizeGrip::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        emit Grabbed(event->globalPosition().toPoint());
    }
}

void CSizeGrip::mouseMoveEvent(QMouseEvent* event)
{
    emit Dragged(event->globalPosition().toPoint());
}

void CSizeGrip::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    emit Released();
}
