#include "uikit/native/colors.h"

#include "uikit/native/access.h"
#include "uikit/native/canvas_widget.h"
#include "uikit/native/combo_widget.h"
#include "uikit/native/contrast.h"
#include "uikit/native/small_widgets.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLineEdit>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>

namespace {

/// Puts a colour behind the characters of an edit, on top of that of the field.
class CTextBackgroundStyle : public QProxyStyle
{
public:
    explicit CTextBackgroundStyle(QColor color) : m_color(color) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const auto* edit = qobject_cast<const QLineEdit*>(widget);
        if (element == PE_PanelLineEdit && edit != nullptr && !edit->text().isEmpty()) {
            painter->fillRect(TextRect(*edit), m_color);
        }
    }

private:
    static QRect TextRect(const QLineEdit& edit)
    {
        constexpr int kMargin = 3;
        const QRect inside = edit.rect().adjusted(kMargin, 0, -kMargin, 0);
        const QFontMetrics metrics = edit.fontMetrics();
        const int width = qMin(metrics.horizontalAdvance(edit.text()), inside.width());
        const int left =
            (edit.alignment() & Qt::AlignRight) != 0 ? inside.right() + 1 - width : inside.left();
        return {left, inside.center().y() - metrics.height() / 2, width, metrics.height()};
    }

    QColor m_color;
};

void SetColor(QWidget& widget, QPalette::ColorRole role, const std::optional<COLORREF>& color)
{
    if (color) {
        QPalette colors = widget.palette();
        SetBack(colors, role, ToNative(*color));
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
    if (auto* edit = qobject_cast<QLineEdit*>(&widget)) {
        const ControlColors colors = choose(ColorKind::edit);
        SetColor(*edit, QPalette::Base, colors.brush);
        if (colors.textBackground) {
            auto* style = new CTextBackgroundStyle(ToNative(*colors.textBackground));
            style->setParent(edit);
            edit->setStyle(style);
            QPalette inks = edit->palette();
            SetInkFor(inks, QPalette::Base, ToNative(*colors.textBackground));
            edit->setPalette(inks);
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
