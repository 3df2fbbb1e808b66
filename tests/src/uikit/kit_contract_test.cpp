#include "tests/dialog_support/widget_look.h"
#include "tests/src/uikit/kit_recorder.h"

#include "platform/exception.h"
#include "uikit/button.h"
#include "uikit/combo_box.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTextDocument>
#include <QTimer>

#include <stdexcept>
#include <tuple>

namespace {

using KitContract = CRecorderTest;

TEST_F(KitContract, OnlyAWriteOfAnotherTextRaisesAChange)
{
    Run([&](CDialogUser& user) {
        Item(idText).SetWindowText(L"");
        EXPECT_EQ(Take(), Log{});
        Item(idText).SetWindowText(L"a");
        Item(idText).SetWindowText(L"a");
        EXPECT_EQ(Take(), Log{"10 text"});
        CButton(Item(idCheck)).SetCheck(true);
        Item(idEditable).SetWindowText(L"a");
        EXPECT_EQ(Take(), Log{});
        user.Type(idText, L"b");
        user.Click(idCheck);
        user.Click(idCanvas);
        user.Click(idLabel);
        EXPECT_EQ(Take(), (Log{"10 text", "10 left", "62 clicked", "60 clicked"}));
    });
}

TEST_F(KitContract, EventsOfAnExchangeArriveBehindItInOrder)
{
    Run([&](CDialogUser&) {
        CString seen;
        m_dialog.onCommand = [&](int) { seen += m_dialog.GetDlgItem(idBehind).GetWindowText(); };
        m_dialog.text = L"1";
        m_dialog.other = L"2";
        m_dialog.behind = L"neu";
        EXPECT_TRUE(m_dialog.UpdateData(false));
        EXPECT_EQ(Take(), (Log{"10 text", "11 text", "14 text"}));
        EXPECT_EQ(seen, L"neuneuneu");

        m_dialog.DropExchangeEvents(true);
        m_dialog.text = L"3";
        m_dialog.UpdateData(false);
        m_dialog.DropExchangeEvents(false);
        m_dialog.UpdateData(false);
        EXPECT_EQ(Take(), Log{});
        EXPECT_EQ(Item(idText).GetWindowText(), L"3");
    });
}

TEST_F(KitContract, AHandlerMayWriteAgain)
{
    Run([&](CDialogUser& user) {
        m_dialog.onCommand = [&](int id) {
            if (id == idText) {
                m_dialog.other = Item(idText).GetWindowText() + L"!";
                m_dialog.text = Item(idText).GetWindowText();
                m_dialog.UpdateData(false);
            }
        };
        user.Type(idText, L"ab");
        EXPECT_EQ(Take(), (Log{"10 text", "11 text", "10 text", "11 text"}));
        EXPECT_EQ(Item(idOther).GetWindowText(), L"ab!");
        m_dialog.onCommand = [&](int) { m_dialog.EndDialog(5); };
        m_dialog.text = L"x";
        m_dialog.other = L"y";
        m_dialog.UpdateData(false);
        EXPECT_EQ(Take(), Log{"10 text"}) << "nothing arrives behind the end";
    });
}

TEST_F(KitContract, FieldsThatHoldNoNumberStopTheExchange)
{
    const struct
    {
        int field;
        const wchar_t* message;
        std::vector<CString> texts;
    } cases[] = {
        {idNumber, L"Inserire un numero.", {L"", L"1,5", L"2 m", L"nan"}},
        {idInteger, L"Inserire un numero intero.", {L"2.5", L"3000000000"}},
    };
    Run([&](CDialogUser& user) {
        for (const auto& c : cases) {
            for (const CString& text : c.texts) {
                m_dialog.UpdateData(false);
                Item(c.field).SetWindowText(text);
                Item(idBehind).SetWindowText(L"anders");
                user.Focus(idText);
                EXPECT_FALSE(m_dialog.UpdateData(true));
                ASSERT_FALSE(m_driver.Messages().empty());
                EXPECT_EQ(m_driver.Messages().back().text, c.message);
                EXPECT_EQ(m_dialog.GetFocusId(), c.field);
                EXPECT_EQ(std::tuple(m_dialog.number, m_dialog.integer, m_dialog.behind),
                          std::tuple(1.5, 3, CString(L"dietro")));
            }
        }
        EXPECT_EQ(m_driver.Messages().size(), 6U);
        Item(idNumber).SetWindowText(L" -2.25 ");
        Item(idInteger).SetWindowText(L"-7");
        EXPECT_TRUE(m_dialog.UpdateData(true));
        EXPECT_EQ(std::pair(m_dialog.number, m_dialog.integer), std::pair(-2.25, -7));
        m_dialog.number = 0.1;
        m_dialog.UpdateData(false);
        EXPECT_EQ(Item(idNumber).GetWindowText(), L"0.1");
    });
}

TEST_F(KitContract, PointingAtATextThatIsCutTellsTheWhole)
{
    Run([&](CDialogUser& user) {
        // A tip that was there before would pass for another's.
        const auto nameOf = [](int id) {
            return L"Angelo & <b>figli</b> " + std::to_wstring(id) + CString(60, L'w');
        };
        CComboBox list;
        CNativeAccess::CopyTo(list, Item(idSorted));
        list.AddString(nameOf(idSorted));
        list.SetCurSel(0);
        for (const int id : {idText, idReadOnly, idLabel}) {
            Item(id).SetWindowText(nameOf(id));
        }
        for (const int id : {idSorted, idText, idReadOnly, idLabel}) {
            QWidget& widget = user.Widget(id);
            QTextDocument shown;
            shown.setHtml(TipAt(widget, widget.rect().center()));
            EXPECT_EQ(FromNative(shown.toPlainText()), nameOf(id));
        }
    });
}

TEST_F(KitContract, ListsSortFindAndDelete)
{
    Run([&](CDialogUser& user) {
        CComboBox sorted;
        CNativeAccess::CopyTo(sorted, Item(idSorted));
        CStringArray texts;
        for (const wchar_t* text : {L"beta", L"Alfa", L"gamma", L"Beta", L"alfa2"}) {
            texts.Add(text);
            EXPECT_EQ(sorted.GetItemText(sorted.AddString(text)), text);
            EXPECT_EQ(sorted.GetCurSel(), -1) << "adding chooses nothing";
        }
        EXPECT_EQ(user.Items(idSorted),
                  (std::vector<CString>{L"Alfa", L"alfa2", L"beta", L"Beta", L"gamma"}));
        const std::vector<CString> inOrder = user.Items(idSorted);
        sorted.SetCurSel(0);
        sorted.FillWith(texts);
        EXPECT_EQ(user.Items(idSorted), inOrder);
        EXPECT_EQ(sorted.GetCurSel(), -1);
        EXPECT_EQ(sorted.FindString(0, L"ALFA"), 0);
        EXPECT_EQ(sorted.FindString(1, L"alfa"), 1);
        EXPECT_EQ(sorted.FindString(2, L"alfa"), 0) << "around the end";
        EXPECT_EQ(sorted.FindString(0, L"lfa"), -1);

        sorted.SetCurSel(2);
        const std::tuple<int, bool, int> deletions[] = {
            {0, true, 1}, {1, true, -1}, {-1, false, -1}, {3, false, -1}, {0, true, -1}};
        for (const auto& [index, deleted, chosen] : deletions) {
            EXPECT_EQ(sorted.DeleteString(index), deleted) << index;
            EXPECT_EQ(sorted.GetCurSel(), chosen) << "the choice keeps its item";
        }
        sorted.SetCurSel(7);
        EXPECT_EQ(sorted.GetCurSel(), -1);
        EXPECT_EQ(Take(), Log{});
        user.Focus(idSorted);
        Take();
        user.Press(Qt::Key_Down);
        EXPECT_EQ(sorted.GetCurSel(), 0);
        EXPECT_EQ(Take(), Log{"21 chosen"});
    });
}

TEST_F(KitContract, EditableListsTellWhatIsTypedAndWhatIsChosen)
{
    Run([&](CDialogUser& user) {
        CComboBox combo;
        CNativeAccess::CopyTo(combo, Item(idEditable));
        combo.SetWindowText(L"frei");
        combo.AddString(L"uno");
        EXPECT_EQ(combo.GetWindowText(), L"frei");
        CStringArray texts;
        texts.Add(L"uno");
        combo.FillWith(texts);
        EXPECT_EQ(combo.GetWindowText(), L"frei");
        EXPECT_EQ(combo.GetCurSel(), -1);
        user.Focus(idEditable);
        Take();
        QTest::keyClicks(CNativeAccess::Widget(combo), "uno");
        user.Press(Qt::Key_Tab);
        EXPECT_EQ(Take(), (Log{"22 typed", "22 typed", "22 typed", "22 left"}))
            << "typing the text of an item is no choice";
        user.Choose(idEditable, 0);
        EXPECT_EQ(combo.GetWindowText(), L"uno");
        user.Focus(idEditable);
        user.Focus(idText);
        EXPECT_EQ(Take(), (Log{"22 chosen", "22 left"}));
        user.Focus(idEditable);
        Take();
        user.Press(Qt::Key_Return);
        EXPECT_EQ(Take(), Log{"1 clicked"});
    });
}

TEST_F(KitContract, RadioGroupsHoldAPlaceOrNone)
{
    Run([&](CDialogUser& user) {
        CButton(Item(idRadio + 3)).SetCheck(true);
        for (const int value : {2, 0, -1, 1}) {
            m_dialog.radio = value;
            m_dialog.UpdateData(false);
            m_dialog.radio = 77;
            m_dialog.UpdateData(true);
            EXPECT_EQ(m_dialog.radio, value);
        }
        EXPECT_EQ(Take(), Log{});
        user.Click(idRadio);
        EXPECT_EQ(Take().back(), "30 clicked");
        EXPECT_FALSE(user.IsChecked(idRadio + 1));
        EXPECT_TRUE(user.IsChecked(idRadio + 3)) << "another group";
    });
}

TEST_F(KitContract, TimersTickUntilKilledAndDieWithTheWindow)
{
    std::map<int, int> ticks;
    m_dialog.onTimer = [&](int id) { ++ticks[id]; };
    const auto ticksAgain = [&](int id) {
        ticks.clear();
        bool later = false;
        QTimer::singleShot(5, [&] { later = true; });
        return QTest::qWaitFor([&] { return later; }) && ticks[id] > 0;
    };
    Run([&](CDialogUser&) {
        m_dialog.SetTimer(1, 1);
        m_dialog.SetTimer(2, 1);
        EXPECT_TRUE(QTest::qWaitFor([&] { return ticks[1] > 2 && ticks[2] > 2; }));
        m_dialog.KillTimer(1);
        EXPECT_TRUE(ticksAgain(2));
        EXPECT_EQ(ticks[1], 0);
        m_dialog.EndDialog(kIdOk);
        EXPECT_FALSE(ticksAgain(2));
    });
    EXPECT_FALSE(ticksAgain(2));
}

TEST_F(KitContract, DialogsNestAndTheInnerOneEndsFirst)
{
    CRecordingDialogOf<CDialog> inner;
    m_driver.WhenOpens(kRecorder, [&](CDialogUser& user) {
        user.Click(idButton);
        EXPECT_TRUE(m_dialog.HasEnded());
        EXPECT_EQ(Take(), (Log{"10 left", "63 clicked", "inner 1"}));
    });
    m_driver.WhenOpens(kRecorder, [&](CDialogUser& user) {
        EXPECT_EQ(QApplication::activeModalWidget(), CNativeAccess::Widget(inner));
        m_dialog.EndDialog(7);
        EXPECT_FALSE(inner.HasEnded());
        user.Click(kIdOk);
    });
    m_dialog.onCommand = [&](int id) {
        if (id == idButton) {
            m_dialog.log.push_back("inner " + std::to_string(inner.DoModal()));
        }
    };
    EXPECT_EQ(m_dialog.DoModal(), 7);
}

TEST_F(KitContract, MessageBoxesBlockTheDialogBehindThem)
{
    Run([&](CDialogUser&) {
        const MessageHandler recording = SetMessageHandler(ShowMessageBox);
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->text(), "<b>a & b");
            EXPECT_EQ(box->parentWidget(), &Window());
            QTest::keyClick(box, Qt::Key_Escape);
        });
        ShowMessage({L"", L"<b>a & b", MessageIcon::warning});
        SetMessageHandler(recording);
        EXPECT_EQ(QApplication::activeModalWidget(), &Window());
    });
}

TEST_F(KitContract, FrameworkExceptionsAreShownAndAllOthersLeave)
{
    // What fails, once; an empty one is nothing.
    std::function<void()> failure;
    std::string failing;
    const auto failAt = [&](const char* where) {
        return [&, where](auto...) {
            if (failure && failing == where) {
                std::exchange(failure, {})();
            }
        };
    };
    m_dialog.onInit = failAt("opening");
    m_dialog.onSize = failAt("first size");
    m_dialog.onPaint = failAt("painting");
    m_dialog.onCommand = failAt("command");
    m_dialog.onTimer = failAt("timer");
    const auto script = [&](CDialogUser& user) {
        m_dialog.SetTimer(1, 1);
        user.Click(idButton);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !failure; })) << failing;
    };
    for (const auto& [where, opens] : {std::pair("opening", false),
                                       {"first size", false},
                                       {"painting", true},
                                       {"command", true},
                                       {"timer", true}}) {
        failing = where;
        failure = [] { throw CInvalidArgException(); };
        const std::size_t shown = m_driver.Messages().size();
        EXPECT_EQ(Run(script), 99) << where;
        EXPECT_EQ(m_driver.Messages().size(), shown + 1) << where;
        failure = [] { throw std::runtime_error("other"); };
        EXPECT_THROW(opens ? Run(script) : m_dialog.DoModal(), std::runtime_error) << where;
        EXPECT_FALSE(m_dialog.IsWindow());
    }
}

TEST_F(KitContract, SpinsStepByMouseAndKeys)
{
    Run([&](CDialogUser& user) {
        user.Focus(idSpin);
        user.Press(Qt::Key_Up);
        user.Press(Qt::Key_Down);
        user.Press(Qt::Key_Left);
        QWidget& spin = user.Widget(idSpin);
        for (const int y : {2, spin.height() - 2}) {
            QTest::mouseClick(spin.childAt(2, y), Qt::LeftButton);
        }
        EXPECT_EQ(Take(), (Log{"step 1", "step -1", "step 1", "step -1"}));
    });
}

TEST_F(KitContract, KeysOfTheDialog)
{
    const struct
    {
        Qt::Key key;
        std::vector<int> focuses;
        Log expected;
        int result;
        bool okEnabled = true;
    } cases[] = {
        {Qt::Key_Return, {idText, idCheck, idSorted, idTree, kIdOk}, {"1 clicked"}, kIdOk},
        {Qt::Key_Enter, {idCheck}, {"1 clicked"}, kIdOk},
        {Qt::Key_Return, {idText}, {}, 99, false},
        {Qt::Key_Return, {idButton}, {"63 clicked"}, 99},
        {Qt::Key_Return, {idButton}, {"63 clicked"}, 99, false},
        {Qt::Key_Return, {kIdCancel}, {"2 clicked"}, kIdCancel},
        {Qt::Key_Escape, {idText, idSorted, idEditable, idTree}, {"2 clicked"}, kIdCancel},
        {Qt::Key_F1, {idTree, idText}, {"help"}, 99},
    };
    for (const auto& c : cases) {
        for (const int focus : c.focuses) {
            const int result = Run([&](CDialogUser& user) {
                Item(kIdOk).EnableWindow(c.okEnabled);
                user.Focus(focus);
                Take();
                user.Press(c.key);
                EXPECT_EQ(Take(), c.expected) << focus << ' ' << c.key;
            });
            EXPECT_EQ(result, c.result) << focus << ' ' << c.key;
        }
    }
    EXPECT_EQ(Run([](CDialogUser& user) { user.Press(Qt::Key_F4, Qt::AltModifier); }), kIdCancel);
    EXPECT_EQ(Run([&](CDialogUser&) { EXPECT_FALSE(Window().close()); }), kIdCancel);
}

TEST_F(KitContract, TheCaptionBarShowsTheTitleAndOpensTheMenuThatCloses)
{
    Run([&](CDialogUser& user) {
        QWidget* bar = Window().childAt(40, 5);
        const QImage before = bar->grab().toImage();
        m_dialog.SetWindowText(L"Altro titolo");
        EXPECT_NE(bar->grab().toImage(), before);
        EXPECT_EQ(Window().childAt(Window().width() - 5, 5)->accessibleName(), "Chiudi");
        user.Focus(idText);
        QTimer::singleShot(0, [] {
            ASSERT_NE(QApplication::activePopupWidget(), nullptr);
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_C);
        });
        user.Press(Qt::Key_Space, Qt::AltModifier);
        EXPECT_EQ(user.Text(idText), L"");
        EXPECT_TRUE(m_dialog.HasEnded());
    });
}

TEST_F(KitContract, TheGripSizesUntilItIsReleased)
{
    Run([&](CDialogUser& user) {
        QWidget& grip = user.Widget(idGrip);
        const QSize larger = Window().size() + QSize(30, 20);
        const QSize least(300, 200);
        const auto dragged = [&](QWidget& on, const QPoint& by, Qt::MouseButtons buttons) {
            const QPoint at = QPoint(2, 2) + by;
            QMouseEvent move(QEvent::MouseMove, at, on.mapToGlobal(at), Qt::NoButton, buttons, {});
            QApplication::sendEvent(&on, &move);
            return Window().size();
        };
        QTest::mousePress(&grip, Qt::LeftButton, {}, {2, 2});
        EXPECT_EQ(dragged(grip, {30, 20}, Qt::LeftButton), larger);
        EXPECT_EQ(dragged(grip, {-900, -900}, Qt::LeftButton), least);
        QTest::mouseRelease(&grip, Qt::LeftButton);
        EXPECT_EQ(dragged(grip, {30, 20}, Qt::NoButton), least);
        m_dialog.MoveWindow({10, 20, 110, 120});
        EXPECT_EQ(m_dialog.GetWindowRect(), (CRect{10, 20, 310, 220}));
    });
}

TEST_F(KitContract, AHundredDialogsLeaveNothingBehind)
{
    const auto before = QApplication::allWidgets().size();
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(Run([](CDialogUser& user) { user.Press(Qt::Key_Return); }), kIdOk);
        EXPECT_FALSE(m_dialog.tree.IsWindow());
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(QApplication::allWidgets().size(), before);
}

} // namespace
