#pragma once

#include "uikit/dc.h"

#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QWidget>

/// What a CDC draws on: an image of its own, the image of a canvas, or a widget that is painting.
struct CNativeSurface
{
    explicit CNativeSurface(QSize size);
    explicit CNativeSurface(QImage* target, QWidget* owner);
    explicit CNativeSurface(QWidget* painting);
    ~CNativeSurface();

    QImage image;
    QImage* target = nullptr;
    QPointer<QWidget> owner;
    QSize size{0, 0};
    QPainter painter;
};

/// Draws on a widget inside its paint event.
class CPaintDC : public CDC
{
public:
    explicit CPaintDC(QWidget* painting);
};
