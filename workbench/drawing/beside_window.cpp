#include "workbench/drawing/beside_window.h"

#include "workbench/drawing/plan_view.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScreen>

#include <algorithm>

namespace workbench {

namespace {

constexpr int kGap = 12;

/// What a view keeps of its width at least; a plan narrower than that shows nothing.
constexpr int kLeastView = 160;

} // namespace

CBesideWindow::CBesideWindow(CPlanView& view, const QRectF& inSight)
    : m_view(view), m_inSight(inSight)
{
    QCoreApplication::instance()->installEventFilter(this);
}

CBesideWindow::~CBesideWindow()
{
    if (m_bNarrowed) {
        m_view.KeepFree(0, m_inSight);
    }
}

/// Left edge of the dialog: right of the view or left of it, or else at the screen's right edge.
int CBesideWindow::PlaceFor(const QWidget& dialog)
{
    const QRect room = dialog.screen()->availableGeometry();
    const QRect view(m_view.mapToGlobal(QPoint(0, 0)), m_view.size());
    const int right = view.right() + 1 + kGap;
    const int left = view.left() - kGap - dialog.width();
    const int furthest = room.right() + 1 - dialog.width();
    if (right <= furthest) {
        return right;
    }
    if (left >= room.left()) {
        return left;
    }
    m_bNarrowed = true;
    m_view.KeepFree(std::clamp(right - furthest, 0, std::max(view.width() - kLeastView, 0)),
                    m_inSight);
    return std::max(furthest, room.left());
}

bool CBesideWindow::eventFilter(QObject* object, QEvent* event)
{
    auto* const dialog = qobject_cast<QWidget*>(object);
    if (event->type() != QEvent::Show || dialog == nullptr || !dialog->isModal()) {
        return false;
    }
    const QRect view(m_view.mapToGlobal(QPoint(0, 0)), m_view.size());
    if (dialog->geometry().intersects(view)) {
        const QRect room = dialog->screen()->availableGeometry();
        const int lowest = std::max(room.bottom() + 1 - dialog->height(), room.top());
        dialog->move(PlaceFor(*dialog), std::clamp(view.top(), room.top(), lowest));
    }
    return false;
}

} // namespace workbench
