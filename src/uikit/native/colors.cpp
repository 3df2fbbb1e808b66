#include "uikit/native/colors.h"

#include "uikit/native/access.h"
#include "uikit/native/canvas_widget.h"
#include "uikit/native/combo_widget.h"
#include "uikit/native/small_widgets.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QPushButton>

namespace {

void SetColor(QWidget& widget, QPalette::ColorRole role, const std::optional<COLORREF>& color)
{
    if (color) {
        QPalette colors = widget.palette();
        colors.setColor(role, ToNative(*color));
        widget.setPalette(colors);
    }
}

/// Dropped lists draw each line as text, so that the colour behind the text fills them.
void ColorList(CComboWidget& combo, const ControlColors& colors)
{
    SetColor(*combo.view(), QPalette::Base,
             colors.textBackground ? colors.textBackground : colors.brush);
}

} // namespace

void ApplyControlColors(QWidget& widget, const std::function<ControlColors(ColorKind)>& choose)
{
    if (auto* edit = qobject_cast<CEditWidget*>(&widget)) {
        const ControlColors colors = choose(ColorKind::edit);
        SetColor(*edit, QPalette::Base, colors.brush);
        if (colors.textBackground) {
            edit->SetTextBackground(ToNative(*colors.textBackground));
        }
    } else if (auto* combo = qobject_cast<CComboWidget*>(&widget)) {
        ColorList(*combo, choose(ColorKind::listBox));
    } else if (qobject_cast<QPushButton*>(&widget) != nullptr) {
        SetColor(widget, QPalette::Button, choose(ColorKind::button).brush);
    } else if (qobject_cast<QAbstractButton*>(&widget) != nullptr ||
               qobject_cast<CLabelWidget*>(&widget) != nullptr ||
               qobject_cast<CCanvasWidget*>(&widget) != nullptr) {
        SetColor(widget, QPalette::Window, choose(ColorKind::label).brush);
    } else {
        SetColor(widget, QPalette::Base, choose(ColorKind::other).brush);
    }
}
