#pragma once

#include <QGraphicsView>

/// Shows a plan whose scene has the metre as its unit and y upwards. The wheel zooms about the
/// pointer, dragging moves the plan, and until the user does either the whole plan stays fitted to
/// the window.
class CPlanView : public QGraphicsView
{
public:
    /// The scene stays the caller's and must outlive the view.
    explicit CPlanView(QGraphicsScene* scene, QWidget* parent = nullptr);

    /// Shows the whole content with a margin, and keeps to that until the user zooms or drags.
    void FitToContent();

    /// Makes everything larger by `factor` (smaller below 1) about a point of the view, within the
    /// scales at which a building can be worked on.
    void ZoomAt(const QPoint& position, double factor);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool m_bFitted = true;
};
