#include "host/host_prompts.h"
#include "tests/dialog_support/empty_drawer.h"
#include "tests/host_defaults/host_dialog_driver.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include <functional>
#include <map>

namespace {

/// A drawing of a few layers and nothing else.
class CLayerDrawing : public CEmptyDrawer
{
public:
    void GetLayerNames(CStringArray& namen, int art) override
    {
        EXPECT_EQ(art, 2);
        for (const auto& [name, color] : m_layers) {
            namen.Add(name);
        }
    }
    int GetLayerColor(const CString& layer) override { return m_layers.at(layer); }

private:
    std::map<CString, int> m_layers = {
        {L"TUBI_ritorno", 5}, {L"Tubi_mandata", 1}, {L"muri", 8}, {L"Radiatori", 30}};
};

class LayerDialog : public ::testing::Test
{
protected:
    /// Runs the dialog with the steps.
    bool Run(const std::function<void(QWidget&)>& steps, CDrawer* drawer)
    {
        OnNextDialog(steps);
        return ShowBigLayerDlg(drawer, m_layer, m_color);
    }
    bool Run(const std::function<void(QWidget&)>& steps) { return Run(steps, &m_drawing); }

    static QLineEdit& Name(QWidget& dialog) { return Child<QLineEdit>(dialog, 1); }

    CLayerDrawing m_drawing;
    CString m_layer = L"MURI";
    int m_color = 77;
};

TEST_F(LayerDialog, OpensOnTheLayerWhateverItsCase)
{
    EXPECT_TRUE(Run([](QWidget& dialog) {
        auto& list = Child<QTreeWidget>(dialog);
        ASSERT_EQ(list.topLevelItemCount(), 4);
        EXPECT_EQ(list.topLevelItem(0)->text(0), "muri") << "sorted, case aside";
        EXPECT_EQ(list.topLevelItem(2)->text(0), "Tubi_mandata");
        EXPECT_EQ(list.currentItem(), list.topLevelItem(0));
        PressKey(dialog, Qt::Key_Return);
    }));
    EXPECT_EQ(m_layer, L"muri");
    EXPECT_EQ(m_color, 8);
}

TEST_F(LayerDialog, TheFilterLeavesWhatContainsItAndTheArrowsWalkIt)
{
    EXPECT_TRUE(Run([](QWidget& dialog) {
        TypeText(dialog, "tubi");
        const auto& list = Child<QTreeWidget>(dialog);
        EXPECT_TRUE(list.topLevelItem(0)->isHidden());
        EXPECT_TRUE(list.topLevelItem(1)->isHidden());
        EXPECT_FALSE(list.topLevelItem(2)->isHidden());
        EXPECT_FALSE(list.topLevelItem(3)->isHidden());
        PressKey(dialog, Qt::Key_Down);
        PressKey(dialog, Qt::Key_Down);
        PressKey(dialog, Qt::Key_Return);
    }));
    EXPECT_EQ(m_layer, L"TUBI_ritorno");
    EXPECT_EQ(m_color, 5);
}

TEST_F(LayerDialog, ANewNameKeepsTheColourGivenAndTakesNoForbiddenSign)
{
    EXPECT_TRUE(Run([](QWidget& dialog) {
        Name(dialog).setFocus();
        Name(dialog).clear();
        TypeText(dialog, " nu*o/vo ");
        PressKey(dialog, Qt::Key_Return);
    }));
    EXPECT_EQ(m_layer, L"nuovo");
    EXPECT_EQ(m_color, 77);
}

TEST_F(LayerDialog, AnEmptyNameCannotBeConfirmedAndCancelLeavesBoth)
{
    EXPECT_FALSE(Run([](QWidget& dialog) {
        Name(dialog).setText("  ");
        PressKey(dialog, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        Name(dialog).setText("altro");
        PressKey(dialog, Qt::Key_Escape);
    }));
    EXPECT_EQ(m_layer, L"MURI");
    EXPECT_EQ(m_color, 77);
}

TEST_F(LayerDialog, ANewLayerGetsAColourOfThePalette)
{
    m_layer = L"nuovo";
    EXPECT_TRUE(Run([](QWidget& dialog) {
        OnNextDialog([](QWidget& colors) {
            PressKey(colors, Qt::Key_Right);
            PressKey(colors, Qt::Key_Return);
        });
        Child<QPushButton>(dialog).click();
        PressKey(dialog, Qt::Key_Return);
    }));
    EXPECT_EQ(m_color, 87);
}

TEST_F(LayerDialog, WithoutADrawingANameCanStillBeGiven)
{
    m_color = 0;
    EXPECT_TRUE(Run(
        [](QWidget& dialog) {
            EXPECT_EQ(Child<QTreeWidget>(dialog).topLevelItemCount(), 0);
            PressKey(dialog, Qt::Key_Return);
        },
        nullptr));
    EXPECT_EQ(m_layer, L"MURI");
    EXPECT_EQ(m_color, 7) << "white where no colour was given";
}

} // namespace
