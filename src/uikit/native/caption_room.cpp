#include "uikit/native/caption_room.h"

#include "uikit/native/access.h"

#include <QStyle>
#include <QStyleOptionButton>

#include <optional>

namespace {

/// Width that a control has for its caption; empty for kinds that show none.
std::optional<int> RoomForCaption(ControlKind kind, const QWidget& widget)
{
    /// What the two ends of a frame's title line take.
    constexpr int kFrameEnds = 22;
    const auto inside = [&](QStyle::SubElement element) {
        QStyleOptionButton option;
        option.initFrom(&widget);
        return widget.style()->subElementRect(element, &option, &widget).width();
    };
    switch (kind) {
    case ControlKind::label:
    case ControlKind::sunkenLabel:
        return widget.contentsRect().width();
    case ControlKind::groupBox:
        return widget.width() - kFrameEnds;
    case ControlKind::button:
    case ControlKind::defaultButton:
        return inside(QStyle::SE_PushButtonContents);
    case ControlKind::checkBox:
        return inside(QStyle::SE_CheckBoxContents);
    case ControlKind::radioButton:
        return inside(QStyle::SE_RadioButtonContents);
    default:
        return std::nullopt;
    }
}

} // namespace

double BaseWidthForCaption(const ControlTemplate& control, const QWidget& widget)
{
    const std::optional<int> room = RoomForCaption(control.kind, widget);
    // A check box that has no room for a letter has its words in the controls around it.
    if (!room || *room < widget.fontMetrics().averageCharWidth()) {
        return 0;
    }
    const int caption =
        widget.fontMetrics().size(Qt::TextShowMnemonic, ToNative(control.caption)).width();
    if (caption <= *room) {
        return 0;
    }
    // A pixel may be lost where the two sides of the control are rounded.
    constexpr int kRounding = 1;
    const int needed = widget.width() + caption - *room + kRounding;
    return 4.0 * needed / control.cx;
}
