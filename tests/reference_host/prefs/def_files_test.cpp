#include "frame/hkauswahl_uebergabe.h"
#include "frame/vdi6030_start.h"
#include "host/host_prefs.h"
#include "reference_host/prefs/host_settings.h"
#include "reference_host/prefs/lent_start.h"
#include "tests/src/platform/archived.h"
#include "tests/support/colleague.h"
#include "tests/support/other_program.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

using namespace reference_host;

namespace {

const CRuntimeClass* const kKlasse = &HKAUSWAHL_UEBERGABE::GetThisClass();
constexpr wchar_t kName[] = L"HkAuswahl.def";

VDI6030START SomeStart()
{
    VDI6030START start;
    start.Hersteller = L"Valmorena";
    start.Art = L"Radiatori \u00E0";
    start.Produkt = L"Tipo 22";
    start.AbstandWand = 0.05;
    start.AbstandBoden = -0.15;
    start.SystemName = L"Standard";
    start.SystemVorlauf = 75;
    start.SystemRuecklauf = -65;
    start.Anschluss.Name = L"Eckventil";
    start.Anschluss.PosRI[2] = 0.5;
    start.VentilVorlauf.Bezeichnung = L"V";
    start.VentilRuecklauf.Kvs = 1.5F;
    return start;
}

class DefFiles : public ::testing::Test
{
protected:
    static bool Write(const CString& layer, int farbe)
    {
        HKAUSWAHL_UEBERGABE record;
        record.Layer = layer;
        record.LayerFarbe = farbe;
        return WriteDefFile(&record, kKlasse, kName);
    }

    static const HKAUSWAHL_UEBERGABE* Read()
    {
        return static_cast<HKAUSWAHL_UEBERGABE*>(ReadDefFile(kKlasse, kName));
    }

    CTempFolder m_folder;
    CSettingOverride m_setting{kSettingDefFolder, m_folder.Path("new/folder")};
    const std::string m_file = "new/folder/HkAuswahl.def";
};

TEST_F(DefFiles, RecordsComeBackAsStored)
{
    EXPECT_EQ(Read(), nullptr);
    EXPECT_EQ(ReadDefFile_VDI6030START(false), nullptr);

    ASSERT_TRUE(Write(L"HEIZ_\u00C4\U0001F525", -7));
    ASSERT_NE(Read(), nullptr);
    EXPECT_EQ(Read()->Layer, L"HEIZ_\u00C4\U0001F525");
    EXPECT_EQ(Read()->LayerFarbe, -7);
    ASSERT_TRUE(Write(L"", 0));
    EXPECT_EQ(Read()->Layer, L"");

    VDI6030START start = SomeStart();
    ASSERT_TRUE(WriteDefFile_VDI6030START(&start, false));
    const VDI6030START* const read = ReadDefFile_VDI6030START(false);
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(Payload(*read), Payload(start));
    EXPECT_EQ(read->VentilVorlauf.Bezeichnung, L"V");
    EXPECT_EQ(read->VentilRuecklauf.Kvs, 1.5F);
}

TEST_F(DefFiles, AReadingOfOneFileLeavesTheObjectOfAnother)
{
    ASSERT_TRUE(Write(L"uno", 1));
    const HKAUSWAHL_UEBERGABE* const uno = Read();
    EXPECT_EQ(ReadDefFile(kKlasse, L"altro.def"), nullptr);
    EXPECT_EQ(uno->Layer, L"uno");
}

TEST_F(DefFiles, ADamagedFileReadsAsNoneAndIsReplaced)
{
    ASSERT_TRUE(Write(L"HEIZ", 3));
    VDI6030START start = SomeStart();
    ASSERT_TRUE(WriteDefFile_VDI6030START(&start, false));
    const std::string startFile = "new/folder/Vdi6030Start.def";
    const std::string whole = m_folder.ReadBytes(m_file);
    const std::string wholeStart = m_folder.ReadBytes(startFile);
    for (const std::size_t cut : {std::size_t{0}, whole.size() - 1}) {
        m_folder.WriteBytes(m_file, whole.substr(0, cut));
        EXPECT_EQ(Read(), nullptr) << cut;
        m_folder.WriteBytes(startFile, wholeStart.substr(0, cut));
        EXPECT_EQ(ReadDefFile_VDI6030START(false), nullptr) << cut;
    }
    // A sound archive, but of another record.
    m_folder.WriteBytes(startFile, whole);
    EXPECT_EQ(ReadDefFile_VDI6030START(false), nullptr);
    m_folder.WriteBytes(m_file, wholeStart);
    EXPECT_EQ(Read(), nullptr);
    EXPECT_TRUE(Write(L"di nuovo", 1));
    EXPECT_EQ(Read()->Layer, L"di nuovo");
}

TEST_F(DefFiles, WhatCannotBeWrittenIsRefused)
{
    EXPECT_FALSE(WriteDefFile(nullptr, kKlasse, kName));
    EXPECT_FALSE(WriteDefFile_VDI6030START(nullptr, false));
    ConnValues other;
    EXPECT_FALSE(WriteDefFile(&other, kKlasse, kName)) << "it would not read back";
    m_folder.WriteBytes("file", "");
    const CSettingOverride blocked(kSettingDefFolder, m_folder.Path("file"));
    EXPECT_FALSE(Write(L"a", 1));
    EXPECT_EQ(Read(), nullptr);
}

TEST_F(DefFiles, WhatCannotBeReadIsNotReplacedByWhatWasMadeUpInItsStead)
{
    VDI6030START start = SomeStart();
    ASSERT_TRUE(Write(L"HEIZ", 3));
    ASSERT_TRUE(WriteDefFile_VDI6030START(&start, false));
    namespace fs = std::filesystem;
    const auto set = [this](unsigned folder, unsigned files) {
        const fs::path records = m_folder.Root() / "new/folder";
        for (const fs::path& path : {m_folder.Root(), m_folder.Root() / "new", records}) {
            fs::permissions(path, fs::perms(folder));
        }
        for (const auto& entry : fs::directory_iterator(records)) {
            fs::permissions(entry.path(), fs::perms(files));
        }
    };
    set(0777, 0222);
    {
        const CAsColleague colleague;
        EXPECT_EQ(Read(), nullptr);
        EXPECT_EQ(ReadDefFile_VDI6030START(false), nullptr);
    }
    // Now it could be read again, but what the module holds is still made up.
    set(0777, 0666);
    VDI6030START madeUp;
    EXPECT_FALSE(Write(L"", 0));
    EXPECT_FALSE(WriteDefFile_VDI6030START(&madeUp, false));

    ASSERT_NE(Read(), nullptr);
    EXPECT_EQ(Read()->Layer, L"HEIZ");
    ASSERT_NE(ReadDefFile_VDI6030START(false), nullptr);
    EXPECT_EQ(Payload(*ReadDefFile_VDI6030START(false)), Payload(SomeStart()));
    EXPECT_TRUE(Write(L"", 0));
    EXPECT_TRUE(WriteDefFile_VDI6030START(&madeUp, false));
}

TEST(DISABLED_Other, ChangesStartValues)
{
    const CSettingOverride setting(kSettingDefFolder, PathOfOther());
    VDI6030START theirs = *ReadDefFile_VDI6030START(false);
    theirs.AbstandWand = 0.5;
    theirs.Produkt = L"Tipo 33";
    EXPECT_TRUE(WriteDefFile_VDI6030START(&theirs, false));
}

TEST_F(DefFiles, StartValuesThatAnotherProcessChangedMeanwhileStay)
{
    VDI6030START start = SomeStart();
    ASSERT_TRUE(WriteDefFile_VDI6030START(&start, false));
    VDI6030START ours = *ReadDefFile_VDI6030START(false);
    ASSERT_TRUE(COtherProgram("ChangesStartValues", m_folder.Path("new/folder")).Succeeds());

    ours.Anschluss.Name = L"Durchgang";
    ours.Hersteller = L"Altomonte";
    ASSERT_TRUE(WriteDefFile_VDI6030START(&ours, false));
    const VDI6030START stored = *ReadDefFile_VDI6030START(false);
    EXPECT_EQ(stored.AbstandWand, 0.5);
    EXPECT_EQ(stored.Anschluss.Name, L"Durchgang");
    EXPECT_EQ(stored.Hersteller, L"Altomonte");
    EXPECT_EQ(stored.Produkt, L"Tipo 22") << "a place in the catalogue is not mixed of two";
}

TEST_F(DefFiles, OfLentStartValuesThoseAreStoredThatChange)
{
    LendStart(SomeStart()); // nothing is stored yet
    VDI6030START ours = *ReadDefFile_VDI6030START(false);
    EXPECT_EQ(Payload(ours), Payload(SomeStart()));
    ours.AbstandWand = 0.33;
    ASSERT_TRUE(WriteDefFile_VDI6030START(&ours, false));
    EXPECT_EQ(Payload(GetLentStart().value_or(VDI6030START())), Payload(ours));
    EndLentStart();
    ASSERT_NE(ReadDefFile_VDI6030START(false), nullptr);
    const VDI6030START stored = *ReadDefFile_VDI6030START(false);
    EXPECT_EQ(stored.AbstandWand, 0.33);
    EXPECT_EQ(stored.Hersteller, L"");
    EXPECT_EQ(stored.Anschluss.Name, L"");
}

} // namespace
