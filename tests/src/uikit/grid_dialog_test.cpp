#include "tests/dialog_support/dialog_driver.h"

#include "uikit/grid.h"
#include "uikit/native/access.h"

#include <gtest/gtest.h>

#include <QTableView>

#include <stdexcept>

namespace {

constexpr int kDialog = 7001;

enum Id
{
    idBefore = 10,
    idGrid,
    idBehind,
};

using enum ControlKind;

const DialogTemplate kTemplate = {kDialog,
                                  L"Griglia",
                                  160,
                                  100,
                                  frameFixed,
                                  {{idBefore, edit, L"", 4, 4, 60, 13},
                                   {idGrid, placeholder, L"", 4, 20, 150, 56},
                                   {idBehind, edit, L"", 70, 4, 60, 13},
                                   {kIdOk, defaultButton, L"OK", 4, 82, 44, 14},
                                   {kIdCancel, button, L"Annulla", 52, 82, 44, 14}}};

class CChoosyGrid : public CUGCtrl
{
public:
    std::vector<int> rows;
    std::vector<wchar_t> characters;
    wchar_t processedCharacter = L'\0';
    bool fails = false;

protected:
    void OnSetup() override
    {
        SetColumnCount(1);
        for (int row = 0; row < 5; ++row) {
            AppendRow();
        }
        GotoCell(0, 0);
    }
    void OnRowChange(int, int newRow) override
    {
        rows.push_back(newRow);
        if (fails) {
            throw std::runtime_error("row");
        }
    }
    void OnCharTyped(wchar_t* character, bool& processed) override
    {
        characters.push_back(*character);
        processed = *character == processedCharacter;
    }
};

class CGridDialog : public CDialog
{
public:
    CGridDialog() : CDialog(kTemplate) {}

    CChoosyGrid grid;

protected:
    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        EXPECT_TRUE(grid.AttachTo(GetDlgItem(idGrid),
                                  [this](const std::function<void()>& work) { Guard(work); }));
        return true;
    }
};

class GridDialogTest : public ::testing::Test
{
protected:
    int Run(const CDialogDriver::Script& script)
    {
        m_driver.WhenOpens(kDialog, script);
        return m_dialog.DoModal();
    }

    CDialogDriver m_driver;
    CGridDialog m_dialog;
};

TEST_F(GridDialogTest, EnterAndEscInTheGridAreTheDialogsUnlessProcessed)
{
    for (const auto& [key, result] :
         {std::pair(Qt::Key_Return, kIdOk), std::pair(Qt::Key_Escape, kIdCancel)}) {
        EXPECT_EQ(Run([&, pressed = key](CDialogUser& user) {
                      user.Focus(idGrid);
                      user.Press(Qt::Key_Down);
                      user.Press(pressed);
                  }),
                  result);
    }
    m_dialog.grid.processedCharacter = 27;
    EXPECT_EQ(Run([&](CDialogUser& user) {
                  user.Focus(idGrid);
                  user.Press(Qt::Key_Escape);
                  user.Press(Qt::Key_Return);
              }),
              kIdOk);
    EXPECT_EQ(m_dialog.grid.characters, (std::vector<wchar_t>{13, 27, 27, 13}));
    EXPECT_EQ(m_dialog.grid.rows, (std::vector<int>{1, 1}));
    EXPECT_EQ(m_dialog.grid.GetRowCount(), 5) << "every opening begins an empty grid";
}

TEST_F(GridDialogTest, TheGridIsTheControlOfItsId)
{
    Run([&](CDialogUser& user) {
        std::vector<int> order;
        for (int i = 0; i < 5; ++i) {
            order.push_back(m_dialog.GetFocusId());
            user.Press(Qt::Key_Tab);
        }
        EXPECT_EQ(order, (std::vector<int>{idBefore, idGrid, idBehind, kIdOk, kIdCancel}));
        user.Focus(idBehind);
        user.Press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(m_dialog.GetFocusId(), idGrid);

        EXPECT_EQ(m_dialog.GetDlgItem(idGrid).GetPlace(), m_dialog.grid.GetPlace());
        m_dialog.GetDlgItem(idGrid).EnableWindow(false);
        user.Focus(idBefore);
        user.Press(Qt::Key_Tab);
        EXPECT_EQ(m_dialog.GetFocusId(), idBehind) << "disabled, Tab passes it by";
        m_dialog.EndDialog(kIdOk);
    });
}

TEST_F(GridDialogTest, TheCellsFollowTheControl)
{
    Run([&](CDialogUser& user) {
        const CRect place = {3, 40, 103, 90};
        m_dialog.MoveControls({{idGrid, place}});
        const auto* view = user.Widget(idGrid).findChild<QTableView*>();
        EXPECT_EQ(view->size(), QSize(100, 50));
        EXPECT_EQ(m_dialog.grid.GetPlace(), place);
        m_dialog.grid.MoveWindow({3, 40, 63, 90});
        EXPECT_EQ(view->width(), 60);
        m_dialog.grid.ShowWindow(false);
        EXPECT_FALSE(view->isVisible());
        m_dialog.EndDialog(kIdOk);
    });
}

TEST_F(GridDialogTest, AnExceptionInTheGridEndsTheDialog)
{
    m_dialog.grid.fails = true;
    EXPECT_THROW(Run([](CDialogUser& user) {
                     user.Focus(idGrid);
                     user.Press(Qt::Key_Down);
                 }),
                 std::runtime_error);
}

} // namespace
