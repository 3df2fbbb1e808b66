#include "selection/heizsysteme.h"

#include "common/heizung_ordner.h"
#include "common/text_file.h"
#include "reference_host/prefs/host_settings.h"
#include "tests/src/common/lines.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_liste.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

using namespace reference_host;

namespace {

using Texts = std::vector<CString>;

const CString kKopf = L"[VDI6030_HS]";

class HeizsystemeTest : public ::testing::Test
{
protected:
    HeizsystemeTest() { std::filesystem::create_directories(m_folder.Root() / "HEIZUNG"); }

    /// `ended`: the last line has a line end, as every other.
    void Schreibe(const Texts& lines, bool ended = true) const
    {
        ASSERT_TRUE(WriteTextFile(HeizungPfad(L"CmbData.txt"), Lines(lines), false, false, 0x1001));
        if (!ended) {
            constexpr std::uintmax_t kLineEnd = 4;
            const auto file = m_folder.Root() / "HEIZUNG/CmbData.txt";
            std::filesystem::resize_file(file, std::filesystem::file_size(file) - kLineEnd);
        }
    }

    static Texts Zeilen()
    {
        const CStringArray lines = LinesIn(HeizungPfad(L"CmbData.txt"));
        return {lines.begin(), lines.end()};
    }

    CTempFolder m_folder;
    CSettingOverride m_root{kSettingServerPath, m_folder.Path()};
};

TEST_F(HeizsystemeTest, ReadsTheSectionOrTheDefault)
{
    const CString standard = L"Standard (75/65)";
    const struct
    {
        const char* what;
        Texts lines, entries;
        int selected;
    } cases[] = {
        {"current", {kKopf, L"a (70/55)|b (55/45)*|"}, {L"a (70/55)", L"b (55/45)"}, 1},
        {"none current", {L"[x]", L"y|", kKopf, L"a|b|"}, {L"a", L"b"}, 0},
        {"two current", {kKopf, L"a*|b*|c|"}, {L"a", L"b", L"c"}, 1},
        {"stars within", {kKopf, L"a*b|*c**|"}, {L"a*b", L"c"}, 1},
        {"empty pieces count", {kKopf, L"|a|b*|c|"}, {L"a", L"b", L"c"}, 2},
        {"a position behind the list", {kKopf, L"a||b*|"}, {L"a", L"b"}, -1},
        {"a star alone", {kKopf, L"a|*|b|"}, {L"a", L"b"}, 1},
        {"no bar at the end", {kKopf, L"a|b*"}, {L"a", L"b"}, 1},
        {"all deleted", {kKopf, L""}, {}, -1},
        {"the first of two sections", {kKopf, L"a|", kKopf, L"b|"}, {L"a"}, 0},
        {"header last", {L"[x]", L"y|", kKopf}, {standard}, 0},
        {"no header", {L"[VDI6030_hs]", L"a|", L" [VDI6030_HS]", L"b|"}, {standard}, 0},
        {"empty file", {}, {standard}, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        Schreibe(c.lines);
        CTestListe list;
        EXPECT_TRUE(ListeLesen(kListeHeizsysteme, list, kGewerkHeizung));
        EXPECT_EQ(list.texte, c.entries);
        EXPECT_EQ(list.gewaehlt, c.selected);
    }
    Schreibe({kKopf, L"a|"}, false);
    CTestListe unread;
    EXPECT_TRUE(ListeLesen(kListeHeizsysteme, unread, kGewerkHeizung));
    EXPECT_EQ(unread.texte, Texts{standard}) << "a line without an end is not read";
    CTestListe list;
    EXPECT_FALSE(ListeLesen(L"andere", list, kGewerkHeizung)) << "the default is not for all";
    EXPECT_FALSE(ListeLesen(kListeHeizsysteme, list, 3));
    EXPECT_FALSE(ListeSchreiben(kListeHeizsysteme, list, 3));
    EXPECT_EQ(list.texte, Texts());
}

TEST_F(HeizsystemeTest, TheFirstRunMakesTheFile)
{
    CTestListe list;
    EXPECT_TRUE(ListeLesen(kListeHeizsysteme, list, kGewerkHeizung));
    EXPECT_TRUE(ListeSchreiben(kListeHeizsysteme, list, kGewerkHeizung));
    EXPECT_EQ(Zeilen(), (Texts{kKopf, L"Standard (75/65)*|"}));
}

TEST_F(HeizsystemeTest, AFileOutOfReachIsLeftAlone)
{
    CTestListe list;
    EXPECT_TRUE(ListeLesen(kListeHeizsysteme, list, kGewerkHeizung));
    EXPECT_TRUE(ListeSchreiben(kListeHeizsysteme, list, kGewerkHeizung));
    {
        const CFileSizeLimit full(0);
        EXPECT_FALSE(ListeSchreiben(kListeHeizsysteme, CTestListe({L"a"}), kGewerkHeizung));
    }
    EXPECT_EQ(Zeilen(), (Texts{kKopf, L"Standard (75/65)*|"}));

    const auto datei = m_folder.Root() / "HEIZUNG/CmbData.txt";
    const auto isLeftAlone = [&list] {
        CTestListe none;
        CString name;
        EXPECT_FALSE(ListeLesen(kListeHeizsysteme, none, kGewerkHeizung));
        EXPECT_FALSE(ListeSchreiben(kListeHeizsysteme, list, kGewerkHeizung));
        EXPECT_EQ(SystemSuchen(name, 75.0, 65.0), -1);
        EXPECT_EQ(none.texte, Texts());
    };
    std::filesystem::remove(datei);
    std::filesystem::create_directory(datei);
    isLeftAlone();
    std::filesystem::remove(datei);
    // Opens, and cannot be read: nothing lies at the beginning of a process's memory.
    std::filesystem::create_symlink("/proc/self/mem", datei);
    isLeftAlone();
}

TEST_F(HeizsystemeTest, WritingReplacesTheSectionAndKeepsAllOthers)
{
    const CTestListe list = [] {
        CTestListe l({L"a", L"b", L"b"});
        l.gewaehlt = 1;
        return l;
    }();
    const CString line = L"a|b*|b*|";
    const struct
    {
        const char* what;
        Texts before, after;
        bool ended = true;
    } cases[] = {
        {"in the middle",
         {L"[x]", L"\u00E4 | y*|", L"", kKopf, L"old|", L"", L"[VDI6030_HS2]", L"z"},
         {L"[x]", L"\u00E4 | y*|", L"", kKopf, line, L"", L"[VDI6030_HS2]", L"z"}},
        {"missing", {L"[x]", L"y|"}, {L"[x]", L"y|", kKopf, line}},
        {"header last", {L"[x]", L"y|", kKopf}, {L"[x]", L"y|", kKopf, kKopf, line}},
        {"another's line without an end", {L"[x]", L"y|"}, {L"[x]", L"y|", kKopf, line}, false},
        {"its line without an end", {L"[x]", kKopf, L"old|"}, {L"[x]", kKopf, line}, false},
        {"its header without an end", {L"[x]", L"y|", kKopf}, {L"[x]", L"y|", kKopf, line}, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        Schreibe(c.after);
        const std::string bytes = m_folder.ReadBytes("HEIZUNG/CmbData.txt");
        Schreibe(c.before, c.ended);
        EXPECT_TRUE(ListeSchreiben(kListeHeizsysteme, list, kGewerkHeizung));
        EXPECT_EQ(m_folder.ReadBytes("HEIZUNG/CmbData.txt"), bytes);
    }

    EXPECT_TRUE(ListeSchreiben(kListeHeizsysteme, CTestListe(), kGewerkHeizung));
    CTestListe none;
    EXPECT_TRUE(ListeLesen(kListeHeizsysteme, none, kGewerkHeizung));
    EXPECT_EQ(none.texte, Texts());
}

TEST_F(HeizsystemeTest, TemperaturesFindTheFirstEntryOfTheFile)
{
    const struct
    {
        Texts lines;
        double vorlauf, ruecklauf;
        int index;
        const wchar_t* name;
    } cases[] = {
        {{kKopf, L"a (70/55)|b (75/65)*|c (75/65)|"}, 75.4, 65.2, 1, L"b"},
        {{kKopf, L"||a (75/65)|"}, 75.0, 65.0, 2, L"a"},
        {{L"; " + kKopf + L" old", L"a (75/65)|", kKopf, L"b|c (75/65)|"}, 75, 65, 0, L"a"},
        {{kKopf, L"Bad (alt) (75/65)|"}, 75, 65, 0, L"Bad"},
        {{kKopf, L"(75/65)|"}, 75, 65, 0, L""},
        {{kKopf, L"a (75/65)|"}, 75.6, 65.0, -1, L"before"},
        {{L"[x]", L"a (75/65)|"}, 75, 65, -1, L"before"},
        {{L"[x]", L"a (75/65)|", kKopf}, 75, 65, -1, L"before"},
    };
    for (const auto& c : cases) {
        Schreibe(c.lines);
        CString name = L"before";
        EXPECT_EQ(SystemSuchen(name, c.vorlauf, c.ruecklauf), c.index);
        EXPECT_EQ(name, c.name);
    }
}

TEST(HeizsystemText, EntriesAreTakenApartWithoutErrors)
{
    const struct
    {
        const wchar_t *text, *name;
        double vorlauf, ruecklauf;
    } cases[] = {
        {L"Standard (75/65)", L"Standard", 75, 65},
        {L"a (b) (75/65)", L"a", 0, 65},
        {L"a/b (75/65)", L"a/b", 75, 65},
        {L"(75/65)", L"", 75, 65},
        {L"x(75,5/65.5)", L"", 75, 65.5},
        {L"70/55)", L"", 70, 55},
        {L"Nome (75)", L"Nome", 0, 0},
        {L"A/B (75", L"A/B", 0, 0},
        {L"70 gradi", L"", 0, 70},
        {L"solo nome", L"", 0, 0},
        {L"a (75/", L"a", 75, 0},
        {L"/", L"", 0, 0},
        {L"", L"", 0, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::PrintToString(CString(c.text)));
        CString name = L"before";
        double vorlauf = -1.0;
        double ruecklauf = -1.0;
        EXPECT_TRUE(SystemZerlegen(c.text, name, vorlauf, ruecklauf));
        EXPECT_EQ(name, c.name);
        EXPECT_EQ(vorlauf, c.vorlauf);
        EXPECT_EQ(ruecklauf, c.ruecklauf);
    }
    EXPECT_EQ(SystemText(L"Standard", 75.4, 64.5), L"Standard (75/64)");
    EXPECT_EQ(SystemText(L"", 75, 65), L"");
    EXPECT_EQ(SystemText(L"a", 0.0, 65), L"");
    EXPECT_EQ(SystemText(L"a", 75, -0.0), L"");
}

TEST(HeizsystemText, EntriesAreFoundAddedAndDeleted)
{
    CTestListe list({L"a", L"b", L"a"});
    EXPECT_EQ(EintragSuchen(list, L""), 0);
    EXPECT_EQ(EintragSuchen(list, L"b"), 1);
    EXPECT_EQ(EintragSuchen(list, L"A"), 3);
    EXPECT_EQ(list.texte.back(), L"A");

    list.gewaehlt = 2;
    EXPECT_FALSE(EintragLoeschen(list, L""));
    EXPECT_EQ(list.gewaehlt, 2) << "nothing deleted, nothing selected";
    EXPECT_TRUE(EintragLoeschen(list, L"a"));
    EXPECT_EQ(list.texte, (Texts{L"b", L"a", L"A"}));
    EXPECT_EQ(list.gewaehlt, 0);
    CTestListe last({L"a"});
    EXPECT_TRUE(EintragLoeschen(last, L"a"));
    EXPECT_EQ(last.gewaehlt, -1);
}

} // namespace
