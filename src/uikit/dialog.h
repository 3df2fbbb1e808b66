#pragma once

#include "uikit/data_exchange.h"
#include "uikit/dc.h"
#include "uikit/dialog_template.h"
#include "uikit/menu.h"
#include "uikit/message_map.h"
#include "uikit/wnd.h"

#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

inline constexpr int kIdOk = 1;
inline constexpr int kIdCancel = 2;

/// Smallest and largest size of a window while the user sizes it.
struct MinMaxInfo
{
    CSize minTrackSize;
    CSize maxTrackSize;
    CSize maxSize;
};

enum class SizeKind
{
    normal,
    minimized,
    maximized
};

/// Kinds of areas whose colours a dialog may choose.
enum class ColorKind
{
    dialog,
    label,
    button,
    edit,
    listBox,
    other
};

/// Colours of an area; an empty one is the toolkit's own.
struct ControlColors
{
    std::optional<COLORREF> textBackground;
    std::optional<COLORREF> brush;
};

/// A modal dialog made from a template. The object may live without a window; it has one from
/// DoModal() until that returns.
///
/// An exception of the framework kind that leaves a handler is shown in a message box and the
/// dialog stays open. Any other ends the dialog and leaves DoModal().
class CDialog : public CWnd
{
public:
    /// The template must outlive the object.
    explicit CDialog(const DialogTemplate& dialogTemplate);
    ~CDialog() override;

    CDialog(const CDialog&) = delete;
    CDialog& operator=(const CDialog&) = delete;

    /// Opens the dialog above the active window, which waits, and runs it until it ends. Returns
    /// the value that EndDialog() was given, kIdOk and kIdCancel for the two buttons. In a program
    /// whose application object has no windows it returns kIdCancel at once and says so on standard
    /// error.
    int DoModal();

    /// Ends DoModal() with that result, once the event at work is done.
    void EndDialog(int result);
    /// True from EndDialog() on, until the dialog opens again.
    bool HasEnded() const { return m_ended; }

    int GetTemplateId() const { return m_template.id; }
    /// What the window is created from: the template, or what the application object put in its
    /// place when the dialog opened last.
    const DialogTemplate& GetTemplate() const
    {
        return m_replacement ? *m_replacement : m_template;
    }

    /// The control of that id; a handle without a window if there is none.
    CWnd GetDlgItem(int id) const;

    /// The two-way exchange: true reads all controls into the members, false writes the members to
    /// all controls. Change events that a write raises arrive when all fields are written. False if
    /// a field could not be read; the fields behind it then keep their values, the user has been
    /// told and the focus stands in that field.
    bool UpdateData(bool save);

    /// Whether events raised by a write are dropped instead.
    void DropExchangeEvents(bool drop) { m_dropEvents = drop; }

    /// The system menu, to which entries may be added while the dialog opens.
    CMenu& GetSystemMenu() { return m_systemMenu; }

    /// Ticks OnTimer(id) every `milliseconds` until KillTimer(id) or the end of the window.
    void SetTimer(int id, int milliseconds);
    void KillTimer(int id);

    /// Adds a control to an open dialog, behind all others in the Tab order.
    CWnd CreateControl(const ControlTemplate& control, const CRect& pixels);

    /// Moves controls within the client area, shown at once.
    struct Move
    {
        int id;
        CRect rect;
    };
    void MoveControls(const std::vector<Move>& moves);

    /// Moves the focus to the next control of the Tab order, once the event at work is done.
    void PostNextControl();

    /// The control that has the focus; 0 if none of this dialog.
    int GetFocusId() const;

    /// Paints frame and caption anew.
    void RedrawFrame();

    /// Rectangle in pixels for one in dialog units.
    CRect MapDialogRect(const CRect& units) const;

    /// The rectangle of the window as the dialog and the user have placed it: a program that opens
    /// dialogs beside what they change may have moved it as it showed, for this time.
    CRect GetKeptRect() const;

    bool IsResizable() const { return (GetTemplate().frame & frameResizable) != 0; }

protected:
    virtual void DoDataExchange(CDataExchange* pDX);

    /// Runs before the window is shown. False if it has set the focus itself.
    virtual bool OnInitDialog();

    virtual void OnOK();
    virtual void OnCancel();

    virtual const CMessageMap& GetMessageMap() const;

    /// Takes every event of a control but those of trees and spins; true if it was handled. OK and
    /// Cancel arrive as clicks of their ids, Enter and Esc likewise.
    virtual bool OnCommand(int id, ControlEvent event);

    /// The dialog shows, wholly or in part; a control that paints itself alone does not count.
    virtual void OnPaint();
    virtual void OnEraseBackground(CDC& dc);
    virtual void OnSize(SizeKind kind);
    virtual void OnMove();
    virtual void OnMinMaxInfo(MinMaxInfo& info);
    virtual void OnTimer(int id);
    /// An entry of the system menu. The dialog's own entries arrive with their ids.
    virtual void OnSysCommand(unsigned id);
    /// F1; true if it was handled.
    virtual bool OnHelp();
    /// The caption bar was painted; `dc` draws on the frame, whose corner is 0, 0.
    virtual void OnNcPaint(CDC& dc);
    /// The left button was pressed on the frame, at a place on the screen.
    virtual void OnNcLButtonDown(CPoint screen);
    virtual ControlColors OnCtlColor(ColorKind kind);
    /// The window is about to go.
    virtual void OnDestroy();

    /// Runs a piece of work under the rule for exceptions, for controls that call back.
    void Guard(const std::function<void()>& work);

private:
    friend class CDialogWindow;

    void Create();
    void Raise(CNotify& notify);
    void DispatchNotify(CNotify& notify);
    void DeliverDeferred();

    const DialogTemplate& m_template;
    std::optional<DialogTemplate> m_replacement;
    CMenu m_systemMenu;
    int m_result = kIdCancel;
    bool m_ended = false;
    bool m_dropEvents = false;
    int m_exchangeDepth = 0;
    std::vector<CNotify> m_deferred;
    std::exception_ptr m_failure;
};
