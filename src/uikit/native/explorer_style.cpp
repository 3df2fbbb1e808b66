#include "uikit/native/explorer_style.h"

#include <QPainter>
#include <QStyleOption>

namespace {

constexpr int kShadeUnderMouse = 48;

bool IsLit(const QStyleOption& option)
{
    return (option.state & QStyle::State_MouseOver) != 0 &&
           (option.state & QStyle::State_Enabled) != 0 &&
           (option.state & QStyle::State_Selected) == 0;
}

} // namespace

int CExplorerStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                              QStyleHintReturn* returnData) const
{
    return hint == SH_ItemView_ShowDecorationSelected
               ? 1
               : QProxyStyle::styleHint(hint, option, widget, returnData);
}

void CExplorerStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                   QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    // A tree asks for the row's panel twice, for the indentation and for the item beside it.
    if (element == PE_PanelItemViewRow && IsLit(*option)) {
        QColor shade = option->palette.color(QPalette::Highlight);
        shade.setAlpha(kShadeUnderMouse);
        painter->fillRect(option->rect, shade);
    }
}
