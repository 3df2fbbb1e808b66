#include "workbench/plan/plan_history.h"

#include <gtest/gtest.h>

namespace workbench {

namespace {

CBuilding Named(const CString& name)
{
    CBuilding building;
    building.strName = name;
    return building;
}

} // namespace

TEST(PlanHistory, EveryStateComesBackUntilAChangeTakesItsPlace)
{
    CPlanHistory history(Named(L"0"));
    EXPECT_FALSE(history.CanUndo());
    history.Do(L"a", Named(L"1"));
    history.Do(L"b", Named(L"2"));
    history.Undo();
    EXPECT_EQ(history.Current().strName, L"1");
    EXPECT_EQ(history.GetUndoText(), L"a");
    EXPECT_EQ(history.GetRedoText(), L"b");
    history.Redo();
    history.Redo();
    EXPECT_EQ(history.Current().strName, L"2");
    EXPECT_EQ(history.GetRedoText(), L"");
    for (int i = 0; i < 3; ++i) {
        history.Undo();
    }
    EXPECT_EQ(history.Current().strName, L"0");
    EXPECT_EQ(history.GetUndoText(), L"");

    history.Do(L"c", Named(L"3"));
    EXPECT_FALSE(history.CanRedo());
    EXPECT_EQ(history.Current().strName, L"3");
    history.Undo();
    EXPECT_EQ(history.Current().strName, L"0");
}

TEST(PlanHistory, TheSavedStateIsKnownAgainAsLongAsItExists)
{
    CPlanHistory history(Named(L"0"));
    EXPECT_TRUE(history.IsSaved());
    history.Do(L"a", Named(L"1"));
    EXPECT_FALSE(history.IsSaved());
    history.MarkSaved();
    history.Undo();
    EXPECT_FALSE(history.IsSaved());
    history.Redo();
    EXPECT_TRUE(history.IsSaved());
    // The state in the file is gone, and the one in its place is another.
    history.Undo();
    history.Do(L"b", Named(L"2"));
    EXPECT_FALSE(history.IsSaved());
    history.MarkSaved();
    history.MarkUnsaved();
    EXPECT_FALSE(history.IsSaved());
}

} // namespace workbench
