#include "uikit/native/grid_delegate.h"

#include "uikit/native/grid_view.h"

#include <QPainter>

namespace {

QColor Mix(const QColor& a, const QColor& b, double part)
{
    const auto mix = [part](int from, int to) { return from + qRound((to - from) * part); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

} // namespace

CGridDelegate::CGridDelegate(CGridView& view) : QStyledItemDelegate(&view), m_view(view) {}

void CGridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const
{
    const QPalette colors = m_view.palette();
    const QColor highlight = colors.color(QPalette::Active, QPalette::Highlight);
    const bool current =
        (option.state & QStyle::State_Selected) != 0 && (m_view.m_mode & currentCellHighlight) != 0;
    // The choice stays plain to see while the user is elsewhere in the dialog.
    const bool strong = current && m_view.hasFocus();
    const QColor back = strong    ? highlight
                        : current ? Mix(m_view.m_back, highlight, 0.3)
                                  : m_view.m_back;
    const QRect rect = option.rect;
    painter->fillRect(rect, back);
    painter->setPen(current ? Mix(back, highlight, 0.4) : m_view.m_back.darker(109));
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
    if (!current) {
        painter->drawLine(rect.topRight(), rect.bottomRight());
    }
    painter->setPen(
        colors.color(QPalette::Active, strong ? QPalette::HighlightedText : QPalette::Text));
    m_view.DrawCell(*painter, rect.adjusted(0, 0, -1, -1), index.column(), index.row());
}
