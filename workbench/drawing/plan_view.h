#pragma once

#include <QGraphicsView>

namespace workbench {

/// Shows a plan whose scene has the metre as its unit and y upwards. The wheel zooms about the
/// pointer and "+" and "-" about the middle; dragging with the left or middle button and the arrow
/// keys move the plan; "Home" shows all of it. Until the user does any of that the whole plan stays
/// fitted to the window.
///
/// Clicks and all other keys are the scene's, Tab included as long as the scene accepts it, and so
/// is dragging with Shift held. A drag that has moved the plan is no click: the scene gets the
/// press but not the release.
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

    /// Leaves so many pixels of the window's right side to something that stands before it. A part
    /// of the plan that is given, in metres, stays in sight.
    void KeepFree(int pixels, const QRectF& inSight);

protected:
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    enum class Drag
    {
        none,
        /// A button is down, but the pointer has hardly moved.
        begun,
        moving,
    };

    bool HandleKey(const QKeyEvent& event);
    void PanBy(const QPoint& pixels);

    bool m_bFitted = true;
    Drag m_drag = Drag::none;
    /// Where the pointer was when the plan was last moved by it.
    QPoint m_held;
};

} // namespace workbench
