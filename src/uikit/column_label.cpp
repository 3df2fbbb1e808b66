#include "uikit/column_label.h"

#include "uikit/native/access.h"
#include "uikit/native/small_widgets.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionComboBox>

namespace {

/// Distance of a row's text from the left edge of the list.
int RowIndent(const QWidget& list)
{
    constexpr int kTextMargin = 4;
    QStyleOptionComboBox option;
    option.initFrom(&list);
    const QRect text = list.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, &list);
    return qobject_cast<const QComboBox*>(&list) != nullptr ? text.left() + 1 : kTextMargin;
}

} // namespace

void CColumnLabel::AlignTo(const CWnd& list, const CFont& rowFont, const std::vector<int>& ends)
{
    auto* label = CNativeAccess::As<CLabelWidget>(*this);
    const QWidget* rows = CNativeAccess::Widget(list);
    if (label == nullptr || rows == nullptr) {
        return;
    }
    const QFontMetrics metrics(ToNative(rowFont));
    const int offset = rows->x() + RowIndent(*rows) - label->x();
    std::vector<int> places;
    for (const int end : ends) {
        places.push_back(offset + metrics.horizontalAdvance(QString(end, '0')));
    }
    label->SetColumns(places);
}
