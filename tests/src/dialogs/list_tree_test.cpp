#include "dialogs/list_tree.h"

#include "tests/dialog_support/dialog_driver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <tuple>
#include <utility>
#include <vector>

namespace {

enum Ids
{
    idDialog = 7100,
    idBaum = 10,
};

using enum ControlKind;

const DialogTemplate kTemplate = {idDialog, L"Prova",   120,
                                  80,       frameFixed, {{idBaum, tree, L"", 4, 4, 100, 40}}};

using Path = std::vector<CString>;

class CListenDialog : public CDialog
{
public:
    CListenDialog() : CDialog(kTemplate) {}

    /// Opens the dialog and has the work done on its controls.
    void Run(const std::function<void()>& work)
    {
        m_driver.WhenOpens(idDialog, [&](CDialogUser&) {
            work();
            EndDialog(kIdOk);
        });
        DoModal();
    }

    /// Adds the last text of a path below the others, which are there.
    void Add(Path path)
    {
        const CString text = path.back();
        HTREEITEM& item = m_items[path];
        path.pop_back();
        item = m_baum.InsertItem(text, -1, -1, m_items[path]);
    }

    /// The items by their paths; of none, null.
    std::map<Path, HTREEITEM> m_items;
    CTreeCtrl m_baum;

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, idBaum, m_baum); }

private:
    CDialogDriver m_driver;
};

constexpr TreeSearch kForward;
constexpr TreeSearch kBackward = {false, false};

/// Two makers with a kind and products, one that has not been read.
void Fill(CListenDialog& dialog)
{
    const Path paths[] = {{L"Alfa Nord"},
                          {L"Alfa Nord", L"Piastre"},
                          {L"Alfa Nord", L"Piastre", L"Uno"},
                          {L"Alfa Nord", L"Piastre", L"Due"},
                          {L"Beta"},
                          {L"Beta", L"..."},
                          {L"Alfa"},
                          {L"Alfa", L"Piastre"},
                          {L"Alfa", L"Piastre", L"Uno"}};
    std::ranges::for_each(paths, [&](const Path& path) { dialog.Add(path); });
}

TEST(FindTreeItem, WalksFromBehindTheStartAndAroundTheEnds)
{
    const std::tuple<Path, CString, TreeSearch, Path> cases[] = {
        {{}, L"alfa nord", kForward, {L"Alfa Nord"}},
        {{L"Alfa Nord"}, L"alfa", kForward, {L"Alfa"}},
        {{L"Alfa Nord", L"Piastre", L"Due"}, L"e", kForward, {L"Beta"}},
        {{L"Alfa", L"Piastre", L"Uno"}, L"uno", kForward, {L"Alfa Nord", L"Piastre", L"Uno"}},
        {{L"Beta"}, L"beta", kForward, {}},
        {{L"Beta"}, L"manca", kForward, {}},
        {{L"Beta"}, L"", kForward, {}},
        {{L"Alfa"}, L"piastre", {true}, {}},
        {{L"Alfa"}, L"Piastre", {true}, {L"Alfa", L"Piastre"}},
        {{L"Beta"}, L"e", kBackward, {L"Alfa Nord", L"Piastre", L"Due"}},
        {{L"Alfa Nord", L"Piastre", L"Uno"}, L"a", kBackward, {L"Alfa Nord", L"Piastre"}},
        {{L"Alfa Nord"}, L"a", kBackward, {L"Alfa", L"Piastre"}},
        {{L"Alfa Nord"}, L"uno", kBackward, {L"Alfa", L"Piastre", L"Uno"}},
        {{L"Beta"}, L"ALF", {false, true, false, true}, {}},
        {{L"Beta"}, L"ALFA", {false, true, false, true}, {L"Alfa"}},
    };
    CListenDialog dialog;
    dialog.Run([&] {
        EXPECT_EQ(FindTreeItem(L"a", dialog.m_baum, kForward, nullptr), nullptr) << "empty tree";
        Fill(dialog);
        for (const auto& [start, text, search, found] : cases) {
            EXPECT_EQ(FindTreeItem(text, dialog.m_baum, search, dialog.m_items[start]),
                      dialog.m_items[found])
                << testing::PrintToString(text);
        }
    });
}

TEST(FindTreeItem, BeginsAtTheSelectionWhereNoStartIsGiven)
{
    CListenDialog dialog;
    dialog.Run([&] {
        dialog.Add({L"Alfa"});
        const HTREEITEM alfa = dialog.m_items[{L"Alfa"}];
        EXPECT_EQ(FindTreeItem(L"alfa", dialog.m_baum, kForward, nullptr), alfa)
            << "nothing is selected, so that the first item is looked at";
        dialog.m_baum.SelectItem(alfa);
        EXPECT_EQ(FindTreeItem(L"alfa", dialog.m_baum, kForward, nullptr), nullptr);
        dialog.Add({L"Alfa 2"});
        EXPECT_EQ(FindTreeItem(L"alfa", dialog.m_baum, kForward, nullptr),
                  dialog.m_items[{L"Alfa 2"}]);
    });
}

TEST(FindTreeItem, CaseIsLeftAsideInEveryAlphabet)
{
    CListenDialog dialog;
    dialog.Run([&] {
        for (const auto& [capital, small] : {std::pair{L"\u00C4RE", L"\u00E4re"},
                                             {L"\u0416\u0490", L"\u0436\u0491"},
                                             {L"\u0531\u054F", L"\u0561\u057F"},
                                             {L"\u1E9C\u1EA0", L"\u1E9C\u1EA1"},
                                             {L"\u2C80\uFF21", L"\u2C81\uFF41"}}) {
            dialog.m_baum.DeleteAllItems();
            dialog.Add({capital});
            EXPECT_NE(FindTreeItem(small, dialog.m_baum, kForward, nullptr), nullptr)
                << testing::PrintToString(small);
        }
    });
}

TEST(FindTreeItem, AWordCountsOnlyAtTheStartOfWhatRemains)
{
    const std::vector<std::pair<CString, bool>> cases = {
        {L"tubo", true},        {L"tubo 2", true},      {L"tubo2", true},
        {L"Tubo, lungo", true}, {L"tubo\u00B0", true},  {L"tubo\u00E0", false},
        {L"tubo_2", false},     {L"tubol", false},      {L"un tubo", false},
        {L"un tubo x", false},  {L"xtubotubo", true},   {L"xtubo tubo", false},
        {L"tuboltubo", false},  {L"tubo\u4E2D", false}, {L"tubo\uFF41", false},
        {L"tubo\u0663", true},  {L"uno, tubo", false},
    };
    CListenDialog dialog;
    dialog.Run([&] {
        for (const auto& [text, counts] : cases) {
            dialog.m_baum.DeleteAllItems();
            dialog.Add({text});
            EXPECT_EQ(FindTreeItem(L"tubo", dialog.m_baum, {false, true, true}, nullptr) != nullptr,
                      counts)
                << testing::PrintToString(text);
        }
    });
}

TEST(WindowAlpha, TellsWhetherThereIsAWindow)
{
    CListenDialog dialog;
    EXPECT_FALSE(SetWindowAlpha(dialog, 200));
    dialog.Run([&] { EXPECT_TRUE(SetWindowAlpha(dialog, 200)); });
}

TEST(FixedColor, EveryIndexHasItsColour)
{
    const COLORREF white = RGB(255, 255, 255);
    const std::vector<std::pair<unsigned, COLORREF>> cases = {
        {0, white},
        {1, RGB(51, 102, 153)},
        {2, RGB(255, 255, 0)},
        {4, RGB(255, 0, 0)},
        {5, RGB(0, 0, 0)},
        {6, RGB(183, 207, 192)},
        {7, RGB(254, 254, 200)},
        {8, RGB(0, 255, 255)},
        {20, RGB(220, 220, 220)},
        {21, RGB(240, 240, 240)},
        {0xFFFFFFFF, white},
    };
    for (const auto& [index, color] : cases) {
        EXPECT_EQ(GetFixedColor(index), color) << index;
    }
}

} // namespace
