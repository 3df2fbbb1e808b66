#include "uikit/native/control_factory.h"

#include "uikit/native/access.h"
#include "uikit/native/canvas_widget.h"
#include "uikit/native/combo_widget.h"
#include "uikit/native/small_widgets.h"
#include "uikit/native/tree_widget.h"

#include <QCheckBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSizeGrip>

namespace {

QWidget* MakeLabel(const ControlTemplate& control, QWidget& parent)
{
    auto* label = new CLabelWidget(&parent);
    label->setText(ToNative(control.caption));
    if (control.kind == ControlKind::sunkenLabel) {
        label->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        label->setMargin(1);
        label->setIndent(2);
    }
    if ((control.style & styleRight) != 0) {
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    return label;
}

QWidget* MakeGroup(const ControlTemplate& control, QWidget& parent)
{
    auto* group = new CGroupWidget(&parent);
    group->setTitle(ToNative(control.caption));
    group->lower();
    return group;
}

QWidget* MakePushButton(const ControlTemplate& control, QWidget& parent)
{
    auto* button = new QPushButton(ToNative(control.caption), &parent);
    button->setDefault(control.kind == ControlKind::defaultButton);
    button->setAutoDefault(false);
    return button;
}

/// A check box or radio button that is pressed anywhere, not just on its caption.
template <class Button>
class CWholeButton : public Button
{
public:
    using Button::Button;

protected:
    bool hitButton(const QPoint& at) const override { return this->rect().contains(at); }
};

/// Check boxes and radio buttons may stand on the line of a frame, which must not show through.
template <class Button>
QWidget* MakeCheckButton(const ControlTemplate& control, QWidget& parent)
{
    auto* button = new CWholeButton<Button>(ToNative(control.caption), &parent);
    button->setAutoFillBackground(true);
    return button;
}

QWidget* MakeEdit(const ControlTemplate& control, QWidget& parent)
{
    auto* edit = new CEditWidget(&parent);
    edit->setReadOnly((control.style & styleReadOnly) != 0);
    if (edit->isReadOnly()) {
        QPalette colors = edit->palette();
        colors.setColor(QPalette::Base, colors.color(QPalette::Window));
        edit->setPalette(colors);
    }
    if ((control.style & styleRight) != 0) {
        edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    return edit;
}

/// The toolkit's grip, which is drawn as dots.
class CSizeGrip : public QSizeGrip
{
public:
    explicit CSizeGrip(QWidget& parent) : QSizeGrip(&parent)
    {
        // Never in front of a control that reaches into its corner.
        lower();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        constexpr int kDot = 2;
        constexpr int kStep = 4;
        QPainter painter(this);
        const QColor ink = palette().color(QPalette::Mid);
        for (int row = 0; row < 3; ++row) {
            for (int dot = 0; dot <= row; ++dot) {
                painter.fillRect(width() - kStep * (dot + 1), height() - kStep * (3 - row), kDot,
                                 kDot, ink);
            }
        }
    }
};

QWidget* MakeWidget(const ControlTemplate& control, QWidget& parent)
{
    const bool sorted = (control.style & styleSorted) != 0;
    switch (control.kind) {
    case ControlKind::label:
    case ControlKind::sunkenLabel:
        return MakeLabel(control, parent);
    case ControlKind::groupBox:
        return MakeGroup(control, parent);
    case ControlKind::button:
    case ControlKind::defaultButton:
        return MakePushButton(control, parent);
    case ControlKind::checkBox:
        return MakeCheckButton<QCheckBox>(control, parent);
    case ControlKind::radioButton:
        return MakeCheckButton<QRadioButton>(control, parent);
    case ControlKind::edit:
        return MakeEdit(control, parent);
    case ControlKind::comboList:
        return new CComboWidget(&parent, false, sorted);
    case ControlKind::comboEdit:
        return new CComboWidget(&parent, true, sorted);
    case ControlKind::tree:
        return new CTreeWidget(&parent);
    case ControlKind::spin:
        return new CSpinWidget(&parent);
    case ControlKind::canvas:
        return new CCanvasWidget(&parent, control.style);
    case ControlKind::sizeGrip:
        return new CSizeGrip(parent);
    case ControlKind::placeholder:
        break;
    }
    return new QWidget(&parent);
}

} // namespace

QWidget* MakeControl(const ControlTemplate& control, QWidget& parent)
{
    QWidget* widget = MakeWidget(control, parent);
    widget->setEnabled((control.style & styleDisabled) == 0);
    widget->setVisible((control.style & styleHidden) == 0);
    if ((control.style & styleNoTabStop) != 0) {
        widget->setFocusPolicy(Qt::ClickFocus);
    }
    if (control.toolTip != nullptr) {
        widget->setToolTip(ToNative(control.toolTip));
    }
    return widget;
}
