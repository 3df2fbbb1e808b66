#include "workbench/drawing/plan_view.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

/// Pixels a metre: from a whole estate in the window to a valve filling it.
constexpr double kLeastScale = 2.0;
constexpr double kMostScale = 8000.0;

constexpr double kFactorPerNotch = 1.2;
constexpr double kUnitsPerNotch = 120.0;

/// Part of the window by which an arrow key moves the plan.
constexpr int kStepsPerWindow = 8;

/// Part of the content's size that is left free on every side.
constexpr double kViewMarginShare = 0.04;

/// Shown around an empty plan, metres.
constexpr double kEmptySide = 10.0;

QRectF FramedContent(const QGraphicsScene& scene)
{
    QRectF content = scene.itemsBoundingRect();
    if (content.isEmpty()) {
        const QPointF half(kEmptySide / 2.0, kEmptySide / 2.0);
        content = QRectF(content.center() - half, content.center() + half);
    }
    const double margin = kViewMarginShare * std::max(content.width(), content.height());
    return content.adjusted(-margin, -margin, margin, margin);
}

bool IsTab(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    return (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) &&
           (key.modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier;
}

} // namespace

CPlanView::CPlanView(QGraphicsScene* scene, QWidget* parent) : QGraphicsView(scene, parent)
{
    setRenderHint(QPainter::Antialiasing);
    setBackgroundBrush(Qt::white);
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
    PanBy(position - mapFromScene(held));
}

void CPlanView::PanBy(const QPoint& pixels)
{
    m_bFitted = false;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - pixels.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - pixels.y());
}

void CPlanView::KeepFree(int pixels, const QRectF& inSight)
{
    setViewportMargins(0, 0, pixels, 0);
    if (!m_bFitted && !inSight.isEmpty()) {
        ensureVisible(inSight);
    }
}

bool CPlanView::event(QEvent* event)
{
    // Otherwise a widget gives the focus away before the scene is asked.
    if (IsTab(*event) && scene() != nullptr) {
        QCoreApplication::sendEvent(scene(), event);
        if (event->isAccepted()) {
            return true;
        }
    }
    return QGraphicsView::event(event);
}

void CPlanView::wheelEvent(QWheelEvent* event)
{
    const double notches = event->angleDelta().y() / kUnitsPerNotch;
    ZoomAt(event->position().toPoint(), std::pow(kFactorPerNotch, notches));
    event->accept();
}

void CPlanView::keyPressEvent(QKeyEvent* event)
{
    if (!HandleKey(*event)) {
        QGraphicsView::keyPressEvent(event);
    }
}

bool CPlanView::HandleKey(const QKeyEvent& event)
{
    const QPoint middle = viewport()->rect().center();
    // On many keyboards "+" needs Shift, and without it is "=".
    switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        ZoomAt(middle, kFactorPerNotch);
        return true;
    case Qt::Key_Minus:
        ZoomAt(middle, 1.0 / kFactorPerNotch);
        return true;
    default:
        break;
    }
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
        return false;
    }
    const QSize step = viewport()->size() / kStepsPerWindow;
    switch (event.key()) {
    case Qt::Key_Home:
        FitToContent();
        return true;
    case Qt::Key_Left:
        PanBy({step.width(), 0});
        return true;
    case Qt::Key_Right:
        PanBy({-step.width(), 0});
        return true;
    case Qt::Key_Up:
        PanBy({0, step.height()});
        return true;
    case Qt::Key_Down:
        PanBy({0, -step.height()});
        return true;
    default:
        return false;
    }
}

void CPlanView::mousePressEvent(QMouseEvent* event)
{
    const bool isLeft = event->button() == Qt::LeftButton;
    if (event->button() == Qt::MiddleButton ||
        (isLeft && !event->modifiers().testFlag(Qt::ShiftModifier))) {
        m_drag = Drag::begun;
        m_held = event->pos();
    }
    if (event->button() != Qt::MiddleButton) {
        QGraphicsView::mousePressEvent(event);
    }
}

void CPlanView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint moved = event->pos() - m_held;
    if (m_drag == Drag::begun && moved.manhattanLength() >= QApplication::startDragDistance()) {
        m_drag = Drag::moving;
        viewport()->setCursor(Qt::ClosedHandCursor);
    }
    if (m_drag == Drag::moving) {
        m_held = event->pos();
        PanBy(moved);
    } else {
        QGraphicsView::mouseMoveEvent(event);
    }
}

void CPlanView::mouseReleaseEvent(QMouseEvent* event)
{
    const bool hasMoved = m_drag == Drag::moving;
    m_drag = Drag::none;
    if (hasMoved) {
        viewport()->unsetCursor();
    } else {
        QGraphicsView::mouseReleaseEvent(event);
    }
}

void CPlanView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    if (m_bFitted) {
        FitToContent();
    }
}

} // namespace workbench
