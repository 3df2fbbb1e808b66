#pragma once

#include "platform/text.h"

#include <vector>

/// Kinds of controls that templates name.
enum class ControlKind
{
    label,
    /// A label in a sunken frame.
    sunkenLabel,
    groupBox,
    button,
    /// The button that Enter presses.
    defaultButton,
    checkBox,
    radioButton,
    edit,
    /// Drop-down list; what is shown is one of its items or nothing.
    comboList,
    /// Drop-down list with an edit.
    comboEdit,
    tree,
    /// Two arrows that raise steps and hold no value.
    spin,
    /// A surface that the dialog draws on with CClientDC.
    canvas,
    /// Marks the place of a control that the dialog attaches when it opens.
    placeholder,
    /// Corner that sizes the window.
    sizeGrip,
};

/// Properties of a control, joined by |.
enum ControlStyle : unsigned
{
    styleNone = 0,
    styleDisabled = 1,
    styleHidden = 2,
    styleReadOnly = 4,
    styleRight = 8,
    styleSorted = 16,
    styleSunken = 32,
    /// A label or canvas that raises clicks.
    styleNotify = 64,
    /// First radio button of its group; the group ends before the next one that has this.
    styleGroup = 128,
    /// A control that has the keyboard's focus only by mouse.
    styleNoTabStop = 256,
    /// A canvas that shows its picture pale while it is disabled. Others show it unchanged.
    stylePales = 512,
    /// A canvas for drawings in dark ink, light even in a dialog of dark colours.
    stylePaper = 1024,
};

/// Id of every control that is only there to be seen, such as a caption.
inline constexpr int kNoId = -1;

/// One control: id, kind, caption and rectangle in dialog units, which are an eighth of the
/// height of the dialog's font down and a quarter of its average width across, or more where a
/// caption of the dialog needs it.
struct ControlTemplate
{
    int id;
    ControlKind kind;
    const wchar_t* caption;
    int x;
    int y;
    int cx;
    int cy;
    unsigned style = styleNone;
    /// Tooltip as small HTML, or null.
    const wchar_t* toolTip = nullptr;
};

/// Properties of a dialog's frame, joined by |.
enum FrameStyle : unsigned
{
    frameFixed = 0,
    frameResizable = 1,
    frameMinimizeBox = 2,
    frameMaximizeBox = 4,
};

/// The font of a dialog; where the face is missing, the nearest one stands in.
struct DialogFont
{
    CString face = L"Tahoma";
    double points = 8;
};

/// A dialog as data. Controls stand in the order in which Tab visits them.
struct DialogTemplate
{
    int id;
    const wchar_t* caption;
    int cx;
    int cy;
    unsigned frame;
    std::vector<ControlTemplate> controls;
    DialogFont font = {};
};
