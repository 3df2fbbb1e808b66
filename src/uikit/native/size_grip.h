#pragma once

#include <QWidget>

/// The corner that the user grabs to size a window.
class CSizeGrip : public QWidget
{
    Q_OBJECT

public:
    explicit CSizeGrip(QWidget* parent);

signals:
    void Grabbed(const QPoint& screen);
    void Dragged(const QPoint& screen);
    void Released();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
};
