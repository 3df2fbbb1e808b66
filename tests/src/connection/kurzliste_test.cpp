#include "connection/kurzliste.h"

#include "common/heizung_ordner.h"
#include "common/text_file.h"
#include "platform/encoding.h"
#include "platform/environment.h"
#include "platform/exception.h"
#include "platform/message.h"
#include "tests/src/common/lines.h"
#include "tests/src/connection/test_ansicht.h"
#include "tests/support/message_log.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <optional>
#include <vector>

using namespace reference_host;

namespace {

constexpr wchar_t kPunkt[] = L"-0.5; 0.0;  0;0; 0.5; -0.03; 180;0";

class KurzlisteTest : public ::testing::Test
{
protected:
    KurzlisteTest()
    {
        SetEnvironmentReader([this](const CString& name) -> std::optional<CString> {
            const auto found = m_variables.find(name);
            return found != m_variables.end() ? std::optional(found->second) : std::nullopt;
        });
        m_vorher = std::filesystem::current_path();
        std::filesystem::create_directory(m_folder.Root() / "cwd");
        std::filesystem::current_path(m_folder.Root() / "cwd");
    }

    ~KurzlisteTest() override
    {
        std::filesystem::current_path(m_vorher);
        SetEnvironmentReader({});
    }

    void Schreibe(const std::vector<CString>& lines)
    {
        std::filesystem::create_directories(m_folder.Root() / "HEIZUNG");
        ASSERT_TRUE(WriteTextFile(HeizungPfad(L"Vent.txt"), Lines(lines), false, false, 0x1001));
    }

    CTempFolder m_folder;
    std::map<CString, CString> m_variables{{L"TGA_DATA_SINGLE", m_folder.Path()}};
    std::filesystem::path m_vorher;
    /// Whatever the user of this machine has in his settings.
    CSettingOverride m_server{kSettingServerPath, L""};
    CAnschlussZustand m_zustand;
    CTestAnsicht m_ansicht;
};

TEST_F(KurzlisteTest, NamesAndEntriesFollowTheirLinesAlone)
{
    // The lines with "|" between them; a V, v or R alone stands for one with a point.
    const struct
    {
        const char* what;
        const wchar_t* lines;
        std::vector<CString> names, entries;
    } cases[] = {
        {"one type", L"[Eckventil]|V|R", {L"Eckventil"}, {L"Eckventil"}},
        {"no closing bracket", L"[abc|V|R", {L"ab"}, {L"ab"}},
        {"a bracket alone", L"[|V|R", {L""}, {L""}},
        {"two names in a row", L"[a]|[b]|V|R", {L"a", L"b"}, {L"b"}},
        {"two pairs behind one name", L"[a]|V|R|V|R", {L"a"}, {L"a", L"a"}},
        {"too few numbers", L"[a]|V|R1;2", {L"a"}, {}},
        {"too few in the flow", L"[a]|V1;2|R", {L"a"}, {}},
        {"three numbers are enough", L"[a]|V1;2;3|R1;2;3", {L"a"}, {L"a"}},
        {"no flow line", L"[a]|v|R", {L"a"}, {}},
        {"a name in the place of the return", L"[a]|V|[b]|x|y", {L"a"}, {}},
        {"blank lines count", L"[a]||V|R|y", {L"a"}, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        CStringArray pieces;
        SplitString(pieces, c.lines, L'|');
        std::vector<CString> lines(pieces.begin(), pieces.end());
        for (CString& line : lines) {
            line += line == L"V" || line == L"v" || line == L"R" ? kPunkt : L"";
        }
        Schreibe(lines);
        m_zustand = {};
        m_ansicht = {};
        EXPECT_TRUE(LeseVentTxt(m_zustand, m_ansicht));
        EXPECT_EQ(m_ansicht.typen.texte, c.names);
        std::vector<CString> entries;
        for (const ConnValues& eintrag : m_zustand.m_Anschlussliste) {
            entries.push_back(eintrag.Name);
            EXPECT_EQ(eintrag.PosAN, eintrag.PosRI);
        }
        EXPECT_EQ(entries, c.entries);
    }
}

TEST_F(KurzlisteTest, AMissingOrEmptyFileIsNoListAndAHalfPairRaises)
{
    EXPECT_FALSE(LeseVentTxt(m_zustand, m_ansicht));
    Schreibe({});
    EXPECT_FALSE(LeseVentTxt(m_zustand, m_ansicht));
    Schreibe({L"[a]", CString(L"V") + kPunkt});
    try {
        LeseVentTxt(m_zustand, m_ansicht);
        ADD_FAILURE() << "no exception";
    } catch (const CInvalidArgException& fault) {
        EXPECT_EQ(fault.GetErrorMessage(), m_folder.Path("HEIZUNG/Vent.txt") +
                                               L": riga 2: manca la riga del punto di ritorno");
    }
    EXPECT_EQ(m_ansicht.typen.texte, std::vector<CString>{L"a"});
}

TEST_F(KurzlisteTest, DistancesOfAnEntryComeInTheOrderOfTheText)
{
    Anschlussliste liste;
    ASSERT_TRUE(NeuerEintrag(liste, L"a", CString(kPunkt) + L";0.1;0.2;1;0.3",
                             CString(kPunkt) + L";0.4;0.5;2;0.6"));
    EXPECT_EQ(liste[0].SeitAbstandAN, 0.1);
    EXPECT_EQ(liste[0].SeitAbstandRI, 0.4);
    EXPECT_EQ(liste[0].KreuzAbstand, 0.5) << "the return is read last";
    EXPECT_EQ(liste[0].KreuzTyp, 2);
    EXPECT_EQ(liste[0].WandAbstand, 0.6);
}

TEST_F(KurzlisteTest, StoringChangesTheListInMemoryAndNeverVentTxt)
{
    const CString punkt = kPunkt;
    const CString ritorno = L"0.5;0;0;0;-0.5;0.03;0;0";
    Schreibe({L"[a]", L"V" + punkt, L"R" + ritorno, L"[b]", L"V" + punkt, L"R" + ritorno});
    const std::string before = m_folder.ReadBytes("HEIZUNG/Vent.txt");
    LeseVentTxt(m_zustand, m_ansicht);
    m_zustand.m_Aktuell = m_zustand.m_Anschlussliste[0];
    m_zustand.m_TextName = L"nuovo";

    SchreibeVentTxt(m_zustand, m_ansicht);
    EXPECT_EQ(m_zustand.m_Anschlussliste[0].Name, L"a") << "nothing selected, nothing stored";

    m_ansicht.typen.gewaehlt = 1;
    for (const wchar_t* const name : {L"un nome lungo", L"3"}) {
        m_zustand.m_TextName = name;
        SchreibeVentTxt(m_zustand, m_ansicht);
        EXPECT_EQ(m_zustand.m_Anschlussliste[1].Name, name);
    }
    m_zustand.m_Aktuell.AnschlussRI = L"manca/punto";
    const CMessageLog messages;
    EXPECT_NO_THROW(SchreibeVentTxt(m_zustand, m_ansicht));
    EXPECT_TRUE(messages.Texts().empty()) << "that no file can have the name is not told";

    m_ansicht.typen.gewaehlt = 2;
    EXPECT_THROW(SchreibeVentTxt(m_zustand, m_ansicht), CInvalidArgException);

    EXPECT_EQ(m_folder.ReadBytes("HEIZUNG/Vent.txt"), before);
    CStringArray written;
    ReadTextFile(L"R" + ritorno, written, 0, -1);
    ASSERT_EQ(written.GetSize(), 6) << "a file of the last line's name in the current folder, with "
                                       "nothing left of what was longer";
    EXPECT_EQ(written[3], L"[3]");
    EXPECT_EQ(written[4], L"V" + punkt);
    EXPECT_EQ(written[5], L"R" + ritorno);
}

TEST_F(KurzlisteTest, TheDataRootIsLookedForInOrderAndMissedOnce)
{
    EXPECT_EQ(HeizungPfad(L"Vent.txt"), m_folder.Path() + L"\\HEIZUNG\\Vent.txt");
    m_variables[L"TGA_DATA_SINGLE_S"] = L"S:";
    EXPECT_EQ(HeizungPfad(L"Vent.txt"), L"S:\\HEIZUNG\\Vent.txt");
    OverrideHostSetting(kSettingServerPath, L"\\\\server\\tga");
    EXPECT_EQ(HeizungPfad(L"Vent.txt"), L"\\\\server\\tga\\HEIZUNG\\Vent.txt");
    OverrideHostSetting(kSettingServerPath, L"");

    m_variables.clear();
    std::vector<MessageBoxText> messages;
    SetMessageHandler([&](const MessageBoxText& message) { messages.push_back(message); });
    EXPECT_EQ(HeizungPfad(L"Vent.txt"), L"\\HEIZUNG\\Vent.txt");
    EXPECT_EQ(HeizungPfad(L"Vent.txt"), L"\\HEIZUNG\\Vent.txt");
    SetMessageHandler({});
    ASSERT_EQ(messages.size(), 1U) << "once per process";
    EXPECT_EQ(messages[0].text, L"Install-Error");
    EXPECT_EQ(messages[0].caption, L"Missing Environmental-Variable: TGA_DATA_SINGLE");
    EXPECT_EQ(messages[0].icon, MessageIcon::stop);
}

} // namespace
