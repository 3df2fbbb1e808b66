#include "uikit/kit_recorder.h"

#include "platform/exception.h"
#include "uikit/button.h"
#include "uikit/combo_box.h"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <stdexcept>

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
    struct
    {
        int field;
        const wchar_t* text;
        const wchar_t* message;
    } const cases[] = {
        {idNumber, L"", L"Inserire un numero."},
        {idNumber, L"1,5", L"Inserire un numero."},
        {idNumber, L"2 m", L"Inserire un numero."},
        {idNumber, L"nan", L"Inserire un numero."},
        {idInteger, L"2.5", L"Inserire un numero intero."},
        {idInteger, L"3000000000", L"Inserire un numero intero."},
    };
    Run([&](CDialogUser& user) {
        for (const auto& c : cases) {
            m_dialog.UpdateData(false);
            Item(c.field).SetWindowText(c.text);
            Item(idBehind).SetWindowText(L"anders");
            user.Focus(idText);
            EXPECT_FALSE(m_dialog.UpdateData(true));
            ASSERT_FALSE(m_driver.Messages().empty());
            EXPECT_EQ(m_driver.Messages().back().text, c.message);
            EXPECT_EQ(m_dialog.GetFocusId(), c.field);
            EXPECT_EQ(m_dialog.number, 1.5);
            EXPECT_EQ(m_dialog.integer, 3);
            EXPECT_EQ(m_dialog.behind, L"dietro");
        }
        EXPECT_EQ(m_driver.Messages().size(), std::size(cases));
        Item(idNumber).SetWindowText(L" -2.25 ");
        Item(idInteger).SetWindowText(L"-7");
        EXPECT_TRUE(m_dialog.UpdateData(true));
        EXPECT_EQ(m_dialog.number, -2.25);
        EXPECT_EQ(m_dialog.integer, -7);
        m_dialog.number = 0.1;
        m_dialog.UpdateData(false);
        EXPECT_EQ(Item(idNumber).GetWindowText(), L"0.1");
    });
}

TEST_F(KitContract, ListsSortFindAndDelete)
{
    Run([&](CDialogUser& user) {
        CComboBox sorted;
        CNativeAccess::CopyTo(sorted, Item(idSorted));
        for (const auto& [text, place] : std::vector<std::pair<const wchar_t*, int>>{
                 {L"beta", 0}, {L"Alfa", 0}, {L"gamma", 2}, {L"Beta", 2}, {L"alfa2", 1}}) {
            EXPECT_EQ(sorted.AddString(text), place);
            EXPECT_EQ(sorted.GetCurSel(), -1) << "adding chooses nothing";
        }
        EXPECT_EQ(user.Items(idSorted),
                  (std::vector<CString>{L"Alfa", L"alfa2", L"beta", L"Beta", L"gamma"}));
        EXPECT_EQ(sorted.FindString(0, L"ALFA"), 0);
        EXPECT_EQ(sorted.FindString(1, L"alfa"), 1);
        EXPECT_EQ(sorted.FindString(2, L"alfa"), 0) << "around the end";
        EXPECT_EQ(sorted.FindString(0, L"lfa"), -1);

        sorted.SetCurSel(2);
        EXPECT_TRUE(sorted.DeleteString(0));
        EXPECT_EQ(sorted.GetCurSel(), 1) << "the choice keeps its item";
        EXPECT_TRUE(sorted.DeleteString(1));
        EXPECT_EQ(sorted.GetCurSel(), -1);
        EXPECT_FALSE(sorted.DeleteString(-1));
        while (sorted.DeleteString(0)) {
            EXPECT_EQ(sorted.GetCurSel(), -1);
        }
        EXPECT_EQ(sorted.GetCount(), 0);
        sorted.AddString(L"x");
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
        EXPECT_EQ(combo.GetCurSel(), -1);
        user.Focus(idEditable);
        Take();
        QTest::keyClicks(CNativeAccess::Widget(combo), "uno");
        EXPECT_EQ(Take(), (Log{"22 typed", "22 typed", "22 typed"}));
        user.Press(Qt::Key_Tab);
        EXPECT_EQ(Take(), Log{"22 left"}) << "typing the text of an item is no choice";
        user.Choose(idEditable, 0);
        EXPECT_EQ(combo.GetWindowText(), L"uno");
        EXPECT_EQ(Take(), Log{"22 chosen"});
        user.Focus(idEditable);
        user.Focus(idText);
        EXPECT_EQ(Take(), Log{"22 left"});
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
            EXPECT_TRUE(user.IsChecked(idRadio + 3)) << "another group";
        }
        EXPECT_EQ(Take(), Log{});
        user.Click(idRadio);
        EXPECT_EQ(Take().back(), "30 clicked");
        EXPECT_FALSE(user.IsChecked(idRadio + 1));
    });
}

TEST_F(KitContract, TimersTickUntilKilledAndDieWithTheWindow)
{
    std::map<int, int> ticks;
    m_dialog.onTimer = [&](int id) { ++ticks[id]; };
    const auto ticksLater = [&] {
        bool later = false;
        ticks.clear();
        QTimer::singleShot(5, [&] { later = true; });
        EXPECT_TRUE(Until([&] { return later; }));
        return ticks.size();
    };
    Run([&](CDialogUser&) {
        m_dialog.SetTimer(1, 1);
        m_dialog.SetTimer(2, 1);
        EXPECT_TRUE(Until([&] { return ticks[1] > 2 && ticks[2] > 2; }));
        m_dialog.KillTimer(1);
        const int killed = ticks[1];
        ticks[2] = 0;
        EXPECT_TRUE(Until([&] { return ticks[2] > 5; }));
        EXPECT_EQ(ticks[1], killed);
        m_dialog.EndDialog(kIdOk);
        EXPECT_EQ(ticksLater(), 0U);
    });
    EXPECT_EQ(ticksLater(), 0U);
}

TEST_F(KitContract, DialogsNestAndTheInnerOneEndsFirst)
{
    CRecordingDialog inner;
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
        const MessageHandler recording = SetMessageHandler({});
        EnsureApplication();
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
    const auto fail = [&](const char* where) {
        if (failure && failing == where) {
            std::exchange(failure, {})();
        }
    };
    m_dialog.onInit = [&] { fail("opening"); };
    m_dialog.onSize = [&] { fail("first size"); };
    m_dialog.onPaint = [&] { fail("painting"); };
    m_dialog.onCommand = [&](int) { fail("command"); };
    m_dialog.onTimer = [&](int) { fail("timer"); };
    const auto script = [&](CDialogUser& user) {
        m_dialog.SetTimer(1, 1);
        user.Click(idButton);
        EXPECT_TRUE(Until([&] { return !failure; })) << failing;
    };
    for (const char* where : {"opening", "first size", "painting", "command", "timer"}) {
        failing = where;
        failure = [] { throw CInvalidArgException(); };
        const std::size_t shown = m_driver.Messages().size();
        EXPECT_EQ(Run(script), 99) << where;
        EXPECT_EQ(m_driver.Messages().size(), shown + 1) << where;

        failure = [] { throw std::runtime_error("other"); };
        if (failing == "opening" || failing == "first size") {
            EXPECT_THROW(m_dialog.DoModal(), std::runtime_error) << where;
        } else {
            EXPECT_THROW(Run(script), std::runtime_error) << where;
        }
        EXPECT_FALSE(m_dialog.IsWindow());
    }
}

TEST_F(KitContract, OpacityIsKeptExactly)
{
    EXPECT_FALSE(m_dialog.SetAlpha(3));
    m_dialog.onInit = [&] {
        for (int alpha = 0; alpha < 256; ++alpha) {
            EXPECT_TRUE(m_dialog.SetAlpha(alpha));
            EXPECT_EQ(m_dialog.GetAlpha(), alpha);
        }
    };
    Run([](CDialogUser&) {});
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
    struct
    {
        int focus;
        Qt::Key key;
        bool okEnabled;
        Log expected;
        int result;
    } const cases[] = {
        {idText, Qt::Key_Return, true, {"1 clicked"}, kIdOk},
        {idCheck, Qt::Key_Enter, true, {"1 clicked"}, kIdOk},
        {idSorted, Qt::Key_Return, true, {"1 clicked"}, kIdOk},
        {idTree, Qt::Key_Return, true, {"1 clicked"}, kIdOk},
        {idText, Qt::Key_Return, false, {}, 99},
        {idButton, Qt::Key_Return, true, {"63 clicked"}, 99},
        {idButton, Qt::Key_Return, false, {"63 clicked"}, 99},
        {kIdCancel, Qt::Key_Return, true, {"2 clicked"}, kIdCancel},
        {kIdOk, Qt::Key_Return, true, {"1 clicked"}, kIdOk},
        {idText, Qt::Key_Escape, true, {"2 clicked"}, kIdCancel},
        {idSorted, Qt::Key_Escape, true, {"2 clicked"}, kIdCancel},
        {idEditable, Qt::Key_Escape, true, {"2 clicked"}, kIdCancel},
        {idTree, Qt::Key_Escape, true, {"2 clicked"}, kIdCancel},
        {idTree, Qt::Key_F1, true, {"help"}, 99},
        {idText, Qt::Key_F1, true, {"help"}, 99},
    };
    for (const auto& c : cases) {
        const int result = Run([&](CDialogUser& user) {
            Item(kIdOk).EnableWindow(c.okEnabled);
            user.Focus(c.focus);
            Take();
            user.Press(c.key);
            EXPECT_EQ(Take(), c.expected) << c.focus << ' ' << c.key;
        });
        EXPECT_EQ(result, c.result) << c.focus << ' ' << c.key;
    }
    EXPECT_EQ(Run([](CDialogUser& user) { user.Press(Qt::Key_F4, Qt::AltModifier); }), kIdCancel);
    EXPECT_EQ(Run([&](CDialogUser&) { EXPECT_FALSE(Window().close()); }), kIdCancel);
}

TEST_F(KitContract, EntriesOfTheSystemMenuReachTheDialog)
{
    const auto choose = [](const QString& text) {
        QTimer::singleShot(0, [text] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (QAction* action : menu->actions()) {
                if (action->text().startsWith(text)) {
                    menu->setActiveAction(action);
                }
            }
            QTest::keyClick(menu, Qt::Key_Return);
        });
    };
    Run([&](CDialogUser& user) {
        m_dialog.GetSystemMenu().AppendSeparator();
        m_dialog.GetSystemMenu().Append(16, L"Eigener");
        choose("Eigener");
        user.Press(Qt::Key_Space, Qt::AltModifier);
        EXPECT_EQ(Take(), Log{"system 16"});
        user.Focus(idText);
        choose("&Chiudi");
        user.Press(Qt::Key_Space, Qt::AltModifier);
        EXPECT_EQ(user.Text(idText), L"");
        EXPECT_TRUE(m_dialog.HasEnded());
    });
}

TEST_F(KitContract, TheDialogPaintsOnItsFrameAndHearsOfPresses)
{
    Run([&](CDialogUser&) {
        QWidget* bar = Window().childAt(40, 5);
        EXPECT_EQ(bar->grab().toImage().pixelColor(152, 4), QColor(255, 0, 0));
        QTest::mouseClick(bar, Qt::LeftButton, {}, {152, 5});
        EXPECT_EQ(Take(), Log{"frame 152 5"});
        const QImage before = bar->grab().toImage();
        m_dialog.SetWindowText(L"Altro titolo");
        EXPECT_NE(bar->grab().toImage(), before);
        EXPECT_EQ(Window().childAt(Window().width() - 5, 5)->accessibleName(), "Chiudi");
    });
}

TEST_F(KitContract, TheGripSizesUntilItIsReleased)
{
    Run([&](CDialogUser& user) {
        QWidget& grip = user.Widget(idGrip);
        const QSize before = Window().size();
        const auto drag = [&](QWidget& on, const QPoint& by, Qt::MouseButtons buttons) {
            const QPoint at = QPoint(2, 2) + by;
            QMouseEvent move(QEvent::MouseMove, at, on.mapToGlobal(at), Qt::NoButton, buttons, {});
            QApplication::sendEvent(&on, &move);
        };
        QTest::mousePress(&grip, Qt::LeftButton, {}, {2, 2});
        drag(grip, {30, 20}, Qt::LeftButton);
        EXPECT_EQ(Window().size(), before + QSize(30, 20));
        drag(grip, {-900, -900}, Qt::LeftButton);
        EXPECT_EQ(Window().size(), QSize(300, 200));
        QTest::mouseRelease(&grip, Qt::LeftButton);
        drag(grip, {30, 20}, Qt::NoButton);
        drag(Window(), {500, 500}, Qt::NoButton);
        EXPECT_EQ(Window().size(), QSize(300, 200));
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
