#include "workbench/drawing/plan_view.h"

#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

/// Pixels a metre: from a whole estate in the window to a valve filling it.
constexpr double kLeastScale = 2.0;
constexpr double kMostScale = 8000.0;

constexpr double kFactorPerNotch = 1.2;
constexpr double kUnitsPerNotch = 120.0;

/// Part of the content's size that is left free on every side.
constexpr double kMarginShare = 0.04;

/// Shown around an empty plan, metres.
constexpr double kEmptySide = 10.0;

QRectF FramedContent(const QGraphicsScene& scene)
{
    QRectF content = scene.itemsBoundingRect();
    if (content.isEmpty()) {
        const QPointF half(kEmptySide / 2.0, kEmptySide / 2.0);
        content = QRectF(content.center() - half, content.center() + half);
    }
    const double margin = kMarginShare * std::max(content.width(), content.height());
    return content.adjusted(-margin, -margin, margin, margin);
}

} // namespace

CPlanView::CPlanView(QGraphicsScene* scene, QWidget* parent) : QGraphicsView(scene, parent)
{
    setRenderHint(QPainter::Antialiasing);
    setBackgroundBrush(Qt::white);
    setDragMode(ScrollHandDrag);
    setTransformationAnchor(NoAnchor);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setViewportUpdateMode(FullViewportUpdate);
    scale(1.0, -1.0);
}

void CPlanView::FitToContent()
{
    m_bFitted = true;
    const QRectF content = FramedContent(*scene());
    // Room to drag the plan aside as far as its own size.
    setSceneRect(
        content.adjusted(-content.width(), -content.height(), content.width(), content.height()));
    const double pixels = std::clamp(
        std::min(viewport()->width() / content.width(), viewport()->height() / content.height()),
        kLeastScale, kMostScale);
    setTransform(QTransform::fromScale(pixels, -pixels));
    centerOn(content.center());
}

void CPlanView::ZoomAt(const QPoint& position, double factor)
{
    m_bFitted = false;
    const QPointF held = mapToScene(position);
    const double before = transform().m11();
    const double after = std::clamp(before * factor, kLeastScale, kMostScale);
    setTransform(QTransform::fromScale(after, -after));
    const QPoint moved = mapFromScene(held) - position;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + moved.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + moved.y());
}

void CPlanView::wheelEvent(QWheelEvent* event)
{
    const double notches = event->angleDelta().y() / kUnitsPerNotch;
    ZoomAt(event->position().toPoint(), std::pow(kFactorPerNotch, notches));
    event->accept();
}

void CPlanView::mousePressEvent(QMouseEvent* event)
{
    m_bFitted = false;
    QGraphicsView::mousePressEvent(event);
}

void CPlanView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    if (m_bFitted) {
        FitToContent();
    }
}
