#pragma once

#include <QEvent>
#include <QWidget>

/// Counts how often a widget is painted.
class CPaintCounter : public QObject
{
public:
    explicit CPaintCounter(QWidget& widget) { widget.installEventFilter(this); }

    int nPaints = 0;

    bool eventFilter(QObject* /*object*/, QEvent* event) override
    {
        nPaints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};
