#pragma once

#include "tests/dialog_support/dialog_driver.h"

#include "uikit/native/access.h"
#include "uikit/tree_ctrl.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

inline constexpr int kRecorder = 7000;

/// Controls of the dialog.
enum RecorderId
{
    idText = 10,
    idOther,
    idNumber,
    idInteger,
    idBehind,
    idSorted = 21,
    idEditable,
    idRadio = 30,
    idTree = 40,
    idSpin = 50,
    idCanvas = 60,
    idLabel,
    idCheck,
    idButton,
    idGrip,
    idReadOnly,
    idPale,
};

inline const DialogTemplate& RecorderTemplate()
{
    using enum ControlKind;
    static const std::vector<ControlTemplate> controls = {
        {idText, edit, L"", 4, 4, 60, 13},
        {idOther, edit, L"", 4, 20, 60, 13},
        {idNumber, edit, L"", 4, 36, 60, 13},
        {idInteger, edit, L"", 4, 52, 60, 13},
        {idBehind, edit, L"", 4, 68, 60, 13},
        {idSorted, comboList, L"", 70, 20, 60, 14, styleSorted},
        {idEditable, comboEdit, L"", 70, 36, 60, 14},
        {idRadio, radioButton, L"a", 70, 52, 20, 11, styleGroup},
        {idRadio + 1, radioButton, L"b", 90, 52, 20, 11},
        {idRadio + 2, radioButton, L"c", 110, 52, 20, 11},
        {idRadio + 3, radioButton, L"d", 70, 66, 20, 11, styleGroup},
        {idTree, tree, L"", 140, 4, 96, 80},
        {idSpin, spin, L"", 64, 4, 6, 13},
        {idCanvas, canvas, L"", 4, 90, 80, 40, styleNotify},
        {idLabel, label, L"Una", 90, 90, 40, 9},
        {idCheck, checkBox, L"sì", 90, 104, 40, 11},
        {idButton, button, L"Altro", 4, 140, 40, 14},
        {idReadOnly, edit, L"", 50, 140, 40, 13, styleReadOnly},
        {idPale, canvas, L"", 96, 140, 20, 14, stylePales},
        {kIdOk, defaultButton, L"OK", 140, 140, 44, 14},
        {kIdCancel, button, L"Annulla", 188, 140, 44, 14},
        {idGrip, sizeGrip, L"", 232, 152, 8, 8},
    };
    static const DialogTemplate dialog = {kRecorder, L"Prova", 240, 160, frameResizable, controls};
    return dialog;
}

using Log = std::vector<std::string>;

/// Records what reaches it; what a test adds runs in place of the hooks.
template <class Base>
class CRecordingDialogOf : public Base
{
public:
    CRecordingDialogOf() : Base(RecorderTemplate()) {}

    Log log;
    std::function<void()> onInit = [] {};
    std::function<void(int)> onCommand = [](int) {};
    std::function<void(int)> onTimer = [](int) {};
    std::function<void()> onSize = [] {};
    std::function<void()> onPaint = [] {};
    std::function<int(HTREEITEM)> onExpanding = [](HTREEITEM) { return 0; };
    CString text;
    CString other;
    double number = 1.5;
    int integer = 3;
    CString behind = L"dietro";
    int radio = -1;
    bool check = false;
    CTreeCtrl tree;

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Control(pDX, idTree, tree);
        DDX_Text(pDX, idText, text);
        DDX_Text(pDX, idOther, other);
        DDX_Text(pDX, idNumber, number);
        DDX_Text(pDX, idInteger, integer);
        DDX_Text(pDX, idBehind, behind);
        DDX_Radio(pDX, idRadio, radio);
        DDX_Check(pDX, idCheck, check);
    }
    bool OnInitDialog() override
    {
        Base::OnInitDialog();
        log.clear();
        onInit();
        return true;
    }
    const CMessageMap& GetMessageMap() const override
    {
        static const CMessageMap map(
            nullptr,
            {On(ControlEvent::step, idSpin, &CRecordingDialogOf::OnStep),
             On(ControlEvent::treeSelectionChanged, idTree, &CRecordingDialogOf::OnSelect),
             On(ControlEvent::treeItemExpanding, idTree, &CRecordingDialogOf::OnExpanding)});
        return map;
    }
    bool OnCommand(int id, ControlEvent event) override
    {
        static const char* const kNames[] = {"clicked", "text", "chosen", "typed", "left"};
        log.push_back(std::to_string(id) + ' ' + kNames[static_cast<int>(event)]);
        if (this->IsWindowVisible()) {
            onCommand(id);
        }
        return Base::OnCommand(id, event);
    }
    void OnTimer(int id) override { onTimer(id); }
    void OnPaint() override { onPaint(); }
    void OnSize(SizeKind) override { onSize(); }
    void OnMinMaxInfo(MinMaxInfo& info) override { info.minTrackSize = {300, 200}; }
    bool OnHelp() override
    {
        log.push_back("help");
        return true;
    }

private:
    void OnStep(CNotify& notify) { log.push_back("step " + std::to_string(notify.delta)); }
    void OnSelect(CNotify& notify) { LogItem("select ", notify.item); }
    void OnExpanding(CNotify& notify)
    {
        LogItem(tree.IsExpanded(notify.item) ? "late " : "open ", notify.item);
        notify.result = onExpanding(notify.item);
    }
    void LogItem(const char* what, HTREEITEM item)
    {
        log.push_back(what + ToNative(tree.GetItemText(item)).toStdString());
    }
};

/// A dialog with one of everything, and what a user and the code around it do to it.
template <class Base>
class CRecorderTestOf : public ::testing::Test
{
protected:
    /// Opens the dialog, runs the script, closes what that leaves open; the result of DoModal().
    int Run(const CDialogDriver::Script& script)
    {
        m_driver.WhenOpens(kRecorder, [&, script](CDialogUser& user) {
            // Otherwise the first control would tell that it lost the focus.
            Window().setFocus();
            Take();
            script(user);
            if (!m_dialog.HasEnded()) {
                m_dialog.EndDialog(99);
            }
        });
        return m_dialog.DoModal();
    }
    Log Take() { return std::exchange(m_dialog.log, {}); }
    CWnd Item(int id) const { return m_dialog.GetDlgItem(id); }
    QWidget& Window() const { return *CNativeAccess::Widget(m_dialog); }

    CDialogDriver m_driver;
    CRecordingDialogOf<Base> m_dialog;
};

using CRecorderTest = CRecorderTestOf<CDialog>;
