// The window's side of size and place: what of a dialog its screen has room for.

#include "uikit/native/dialog_window.h"

#include "uikit/native/caption_bar.h"

#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>

namespace {

/// Bars that an area needs to show what is larger than it: their width and height, or 0.
QSize BarsFor(const QSize& area, const QSize& content, int bar)
{
    const bool across = content.width() > area.width();
    const bool down = content.height() > area.height() - (across ? bar : 0);
    const bool acrossToo = content.width() > area.width() - (down ? bar : 0);
    return {down ? bar : 0, acrossToo ? bar : 0};
}

} // namespace

void CDialogWindow::ApplyMinMax(const QSize& size)
{
    if (!m_dialog.IsResizable()) {
        m_least = size;
        setFixedSize(FitToScreen(size));
        return;
    }
    MinMaxInfo info{{0, 0}, {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX}, {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX}};
    m_dialog.Guard([&] { m_dialog.OnMinMaxInfo(info); });
    m_least = {info.minTrackSize.cx, info.minTrackSize.cy};
    const QSize least = FitToScreen(m_least);
    // Bars stand beside what they scroll.
    const QSize bars = (least - m_least).expandedTo({0, 0});
    setMinimumSize(least);
    setMaximumSize(
        qMin(qMin(info.maxTrackSize.cx, info.maxSize.cx) + bars.width(), QWIDGETSIZE_MAX),
        qMin(qMin(info.maxTrackSize.cy, info.maxSize.cy) + bars.height(), QWIDGETSIZE_MAX));
}

void CDialogWindow::Place(const QRect& whole)
{
    if (whole.topLeft() != pos()) {
        m_ownPlace = whole.topLeft();
    }
    ApplyMinMax(whole.size());
    m_asked = whole.size();
    setGeometry(QRect(whole.topLeft(), FitToScreen(whole.size())));
    LayOut();
}

QSize CDialogWindow::FrameSize() const
{
    return {2 * Border(), CCaptionBar::Height() + Border()};
}

QSize CDialogWindow::WholeSize() const
{
    return m_client->size() + FrameSize();
}

QPoint CDialogWindow::KeptPlace() const
{
    return pos() == m_shownPlace ? m_ownPlace : pos();
}

QSize CDialogWindow::FitToScreen(QSize whole) const
{
    const QSize room = screen()->availableSize();
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, m_scroll);
    return (whole + BarsFor(room, whole, bar)).boundedTo(room);
}

void CDialogWindow::DefaultPlace()
{
    const QWidget* owner = parentWidget() != nullptr ? parentWidget()->window() : nullptr;
    const QRect around = owner != nullptr && owner->isVisible()
                             ? owner->frameGeometry()
                             : QGuiApplication::primaryScreen()->availableGeometry();
    const QRect room = screen()->availableGeometry();
    const QPoint corner = around.center() - rect().center();
    move(qBound(room.left(), corner.x(), qMax(room.left(), room.right() + 1 - width())),
         qBound(room.top(), corner.y(), qMax(room.top(), room.bottom() + 1 - height())));
    m_ownPlace = pos();
}

void CDialogWindow::SetClientSize(const QSize& size)
{
    m_least = size + FrameSize();
    resize(FitToScreen(m_least));
    LayOut();
}

void CDialogWindow::LayOut()
{
    if (size() != FitToScreen(m_asked)) {
        m_asked = {};
    }
    const int border = Border();
    m_caption->setGeometry(0, 0, width(), CCaptionBar::Height());
    const QSize area = size() - FrameSize();
    m_scroll->setGeometry(QRect(QPoint(border, CCaptionBar::Height()), area));
    const QSize least = m_least.expandedTo(m_asked) - FrameSize();
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, m_scroll);
    m_client->resize((area - BarsFor(area, least, bar)).expandedTo(least));
}
