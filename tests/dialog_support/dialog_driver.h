#pragma once

#include "platform/message.h"
#include "uikit/application.h"
#include "uikit/dialog.h"

#include <Qt>

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

class QWidget;

/// An open dialog in the hands of a test: what a user does, by control id.
class CDialogUser
{
public:
    explicit CDialogUser(CDialog& dialog) : m_dialog(dialog) {}

    CDialog& Dialog() const { return m_dialog; }
    /// The control's widget; a missing one throws std::logic_error naming the id.
    QWidget& Widget(int id) const;

    /// Clicks the middle of a control.
    void Click(int id) const;
    /// Replaces the text of an edit, key by key, and leaves the focus there.
    void Type(int id, const CString& text) const;
    /// Presses a key on the control that has the focus.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void Focus(int id) const;
    /// Chooses an item of a combo box as from its open list.
    void Choose(int id, int index) const;
    void Choose(int id, const CString& text) const;
    /// Clicks the tree item at the end of a path of texts, opening its parents by double click.
    void ChooseInTree(int id, const std::vector<CString>& path) const;
    /// Opens the system menu from a control, chooses the opacity there, its last entry, and presses
    /// keys in the dialog that opens.
    void ChooseOpacity(int id, const std::vector<Qt::Key>& keys) const;
    /// One press of an arrow of a spin.
    void Step(int id, int delta) const;

    CString Text(int id) const;
    std::vector<CString> Texts(const std::vector<int>& ids) const;
    bool IsEnabled(int id) const;
    bool IsChecked(int id) const;
    std::vector<CString> Items(int id) const;
    /// Index of the chosen item.
    int Chosen(int id) const;
    /// Text of the selected tree item behind those of its parents; empty if none is selected.
    std::vector<CString> ChosenInTree(int id) const;
    /// All items of a tree, each behind as many blanks as it has parents.
    std::vector<CString> TreeLines(int id) const;

private:
    CDialog& m_dialog;
};

/// Runs scripts on dialogs as they open, and takes the messages that are shown on the way. A dialog
/// that a script leaves open fails the test and is cancelled; so does one without a script.
class CDialogDriver
{
public:
    using Script = std::function<void(CDialogUser&)>;

    CDialogDriver();
    ~CDialogDriver();
    CDialogDriver(const CDialogDriver&) = delete;
    CDialogDriver& operator=(const CDialogDriver&) = delete;

    /// The next dialog of that template runs this script.
    void WhenOpens(int templateId, Script script);

    const std::vector<MessageBoxText>& Messages() const { return m_messages; }

private:
    void Run(CDialog& dialog);

    std::map<int, std::deque<Script>> m_scripts;
    std::vector<MessageBoxText> m_messages;
    DialogObserver m_observerBefore;
    MessageHandler m_handlerBefore;
};
