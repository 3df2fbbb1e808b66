#include "platform/encoding.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"
#include "tests/workbench/building/json_at.h"
#include "workbench/building/json_writer.h"
#include "workbench/schedule/json_values.h"
#include "workbench/schedule/schedule_columns.h"
#include "workbench/schedule/schedule_csv.h"
#include "workbench/schedule/valve_json.h"
#include "workbench/schedule/valve_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

using namespace reference_host;

namespace workbench {

namespace {

const std::string kHead = "010;200410;Prova S.p.A.;20240301;\n"; // line 1
const std::string kGroup = "100;1;Valvole;\n110;1;Serie PT;\n";  // lines 2 and 3

// Data set 1 is a valve with presettings in falling order, the first of them without a number; data
// set 2 one with bypass.
const std::string kData = "700;1;2;15;0.88;10;120;600;;;;1;;\n" // line 4
                          "710.01;1;2.0;;N;0;;;0.55;0.88;\n"
                          "710.01;2;2.0;;;2.5;;;0.125;0.25;\n"
                          "700;2;3;15;1.7;10;120;200;;;;0;note;\n" // line 7
                          "710.01;1;1.5;;;2;;0.85;0.85;\n"
                          "710.01;2;1.5;;;1;;0.75;0.25;\n";
const std::string kPlain = "020000000000000000000000000000000100";
const std::string kBypass = "010000000000000000000000000000000200";
const std::string kArticles = "800;" + kPlain + ";PT-15;;;Termostatica;\n" // line 10
                              + "800;" + kBypass + ";PB-15;;;Monotubo;\n";

CJsonAt Written(const CJsonValue& value)
{
    CJsonWriter writer;
    writer.Value(nullptr, value);
    return CJsonAt(writer.Take());
}

/// The module remembers the last valve by maker and number, so every maker here has a name of his
/// own.
class ValveTest : public testing::Test
{
protected:
    CValveKey Make(const CString& maker, const std::string& number, const std::string& bytes)
    {
        m_folder.WriteBytes(Utf8FromWide(maker) + "/ha.tga", bytes);
        return {maker, WideFromUtf8(number)};
    }

    CTempFolder m_folder;
    CSettingOverride m_valves{kSettingVEDir, m_folder.Path()};
};

CSchedule MakeValveSchedule(const std::vector<CRoomValves>& ofRooms)
{
    CSchedule schedule;
    schedule.floors.resize(1);
    for (const CRoomValves& valves : ofRooms) {
        schedule.floors[0].rows.push_back({{}, {}, valves});
    }
    return schedule;
}

} // namespace

TEST_F(ValveTest, EitherValveMayBeMissing)
{
    const CValveKey key = Make(L"B1", kPlain, kHead + kGroup + kData + kArticles);
    EXPECT_EQ(FetchValves({key, {}}).vorlauf.status, ValveStatus::found);
    EXPECT_EQ(FetchValves({key, {}}).ruecklauf.status, ValveStatus::none);
    const CRoomValves back = FetchValves({{}, key});
    EXPECT_EQ(back.vorlauf.status, ValveStatus::none);
    EXPECT_EQ(back.ruecklauf.ventil.Bezeichnung, L"PT-15");
}

TEST_F(ValveTest, MissingAndDamagedFilesAreToldWithTheirLine)
{
    const CValveKey sound = Make(L"C0", kBypass, kHead + kGroup + kData + kArticles);
    const std::string article = "800;" + kPlain + ";PT-15;\n";
    const struct
    {
        std::string bytes, told;
        ValveStatus status = ValveStatus::badFile;
    } cases[] = {
        {kHead + kGroup + kData, "il file di %M non ha la valvola " + kPlain,
         ValveStatus::notFound},
        {"010;1;Prova;1\r\n\r\n100;1;Valvole\n" + kData + article, // an empty line counts
         "%F: riga 4: il record 700 non ha un record 110 sopra di sé"},
        {kHead + "110;1;Serie\n", "%F: riga 2: il record 110 non ha un record 100 sopra di sé"},
        {kHead + kGroup + "720.02;1\n" + kData + article,
         "%F: riga 4: il record 720.02 non ha un record 700 sopra di sé"},
        {"010;1;Prova;\n", "%F: riga 1: al record 010 manca il campo 3"},
        {kHead + kGroup + kData + article + "720.01;1;;;;;;;\n",
         "%F: riga 11: al record 720.01 manca il campo 8"},
        {kHead + kGroup + kData + "800\n", "%F: riga 10: al record 800 manca il campo 1"},
        {kHead + kGroup + "700;1;2;15;0.88;10;120;600;;;;\n" + article,
         "%F: riga 4: al record 700 mancano i campi da 11 a 12"},
        {kHead + kGroup + "700;1;2;15;0.88;10;120;600;;;;1;;\n710.01;1;2.0;;N;0;;;\n" + article,
         "%F: riga 5: al record 710.01 manca il campo 8"},
        {"000;\n" + kHead + kGroup + kData + article,
         "%F: riga 1: la testata 000 è di un altro tipo di file"},
        {kHead + kGroup + article, "%F: riga 4: alla valvola " + kPlain +
                                       " manca il numero d'ordine o il record 700 a cui rimanda"},
    };
    int count = 0;
    for (const auto& test : cases) {
        const CString maker = L"C" + std::to_wstring(++count);
        const CValveKey key = Make(maker, kPlain, test.bytes);
        CString told = WideFromUtf8(test.told);
        for (const auto& [mark, text] :
             {std::pair(L"%M", maker),
              std::pair(L"%F", m_folder.Path(Utf8FromWide(maker) + "/ha.tga"))}) {
            if (const std::size_t at = told.find(mark); at != CString::npos) {
                told.replace(at, 2, text);
            }
        }
        const CRoomValves valves = FetchValves({key, sound});
        EXPECT_EQ(valves.vorlauf.strNote, told);
        EXPECT_EQ(valves.vorlauf.status, test.status) << test.told;
        EXPECT_EQ(valves.vorlauf.ventil.Hersteller, maker);
        EXPECT_EQ(valves.vorlauf.ventil.AnzahlKv, 0) << "half a record must not be handed on";
        EXPECT_EQ(valves.ruecklauf.ventil.Bezeichnung, L"PB-15") << "the other file is sound";
        EXPECT_EQ(FetchValves({sound, key}).ruecklauf.strNote, told);
    }
}

TEST_F(ValveTest, MissingMakersAndFilesAreTold)
{
    m_folder.WriteBytes("D2/altro.txt", "");
    m_folder.WriteBytes("D3/ha.tga/in mezzo", "");
    const CString number = WideFromUtf8(kPlain);
    EXPECT_EQ(FetchValves({CValveKey{L"D1", number}, {}}).vorlauf.strNote,
              L"la cartella delle valvole non ha il produttore \"D1\"");
    EXPECT_EQ(FetchValves({CValveKey{L"D2", number}, {}}).vorlauf.strNote,
              L"manca il file " + m_folder.Path("D2/ha.tga"));
    EXPECT_EQ(FetchValves({CValveKey{L"D3", number}, {}}).vorlauf.status, ValveStatus::badFile);

    m_folder.WriteBytes("dentro/altro.txt", "");
    m_folder.WriteBytes("fuori/ha.tga", kHead + kGroup + kData + kArticles);
    const CSettingOverride inside(kSettingVEDir, m_folder.Path("dentro"));
    for (const wchar_t* way : {L"../fuori", L"..\\fuori", L".."}) {
        EXPECT_EQ(FetchValves({CValveKey{way, number}, {}}).vorlauf.strNote,
                  L"\"" + CString(way) + L"\" non è il nome di un produttore");
    }
}

TEST_F(ValveTest, AFolderThatCannotBeReadIsTold)
{
    const CString number = WideFromUtf8(kPlain);
    std::filesystem::create_directory_symlink("D4", m_folder.Root() / "D4");
    const CValveOutcome loop = FetchValves({CValveKey{L"D4", number}, {}}).vorlauf;
    EXPECT_EQ(loop.status, ValveStatus::badFile);
    EXPECT_TRUE(loop.strNote.starts_with(m_folder.Path("D4") + L": non si può leggere: "));
}

TEST(ValveSchedule, DamagedFilesOfBothValvesAreToldOnceAndMissingValvesAreNot)
{
    CRoomValves supply, both, missing;
    supply.vorlauf = {ValveStatus::badFile, {}, L"ha.tga: riga 3"};
    both.vorlauf = supply.vorlauf;
    both.ruecklauf = {ValveStatus::badFile, {}, L"ha.tga: riga 7"};
    missing.vorlauf.status = missing.ruecklauf.status = ValveStatus::notFound;
    EXPECT_EQ(MakeValveSchedule({supply, both, missing}).GetUnread(),
              (std::vector<CString>{L"ha.tga: riga 3", L"ha.tga: riga 7"}));
}

TEST_F(ValveTest, ScheduleShowsNamesTablesAndTheBill)
{
    const CValveKey plain = Make(L"E1", kPlain, kHead + kGroup + kData + kArticles);
    const CValveKey bypass = {L"E1", WideFromUtf8(kBypass)};
    const CValveKey unknown = {L"E1", CString(36, L'9')};
    const CRoomValves both = FetchValves({plain, bypass});
    const CRoomValves lost = FetchValves({unknown, plain});

    const std::vector<CString> names = FormatValves(both);
    ASSERT_EQ(names.size(), 1u);
    EXPECT_EQ(names[0], L"    mandata: PT-15        Valvole/Serie PT,                   DN 15, kvs "
                        L"0,880   ritorno: PB-15        Valvole/Serie PT,                   DN 15, "
                        L"kvs 1,700");
    const std::vector<CString> missing = FormatValves(lost);
    ASSERT_EQ(missing.size(), 2u);
    EXPECT_EQ(missing[0].find(L"    mandata: non trovata  "), 0u);
    EXPECT_EQ(missing[1], L"    mandata: il file di E1 non ha la valvola " + unknown.strVentilNr);

    const std::vector<CString> kv = FormatKvTables(both);
    ASSERT_EQ(kv.size(), 4u);
    const std::size_t right = names[0].find(L"PB-15");
    EXPECT_EQ(kv[0].substr(13, 39), L"Preregolazione  xp K  kv m³/h  kvs m³/h");
    EXPECT_EQ(kv[3].substr(13, 39), L"          2,50   2,0    0,125     0,250");
    EXPECT_EQ(kv[0].substr(right), L"Preregolazione  xp K  kv bypass m³/h  kv corpo m³/h  quota %");
    EXPECT_EQ(kv[3].substr(right), L"          1,00   1,5           0,750          0,250       25");

    const CSchedule schedule = MakeValveSchedule({both, lost, {}});
    EXPECT_EQ(FormatValveBill(MakeValveBill(schedule)), L"Valvole  Articolo  DN  Pezzi\n"
                                                        L"----------------------------\n"
                                                        L"E1       PB-15     15      1\n"
                                                        L"E1       PT-15     15      2\n"
                                                        L"Valvole: 3; mancanti: 1.\n");
    EXPECT_EQ(FormatValveBill(MakeValveBill(MakeValveSchedule({{}}))), L"");

    const CString csv = FormatScheduleCsv(schedule, CsvForm::plain);
    const CString plainCsv = L";E1;" + plain.strVentilNr + L";PT-15;15;0.880;sì";
    EXPECT_NE(csv.find(plainCsv + L";E1;" + bypass.strVentilNr + L";PB-15;15;1.700;no;\r\n"),
              CString::npos);
    EXPECT_NE(csv.find(L";E1;" + unknown.strVentilNr + L";;;;" + plainCsv + L";mandata: il file"),
              CString::npos);
    const CString heading = csv.substr(0, csv.find(L'\n'));
    const CString total = csv.substr(csv.rfind(L'\n', csv.size() - 2));
    EXPECT_EQ(std::count(total.begin(), total.end(), L';'),
              std::count(heading.begin(), heading.end(), L';'));

    const CJsonAt json = Written(MakeValvesJson(both));
    EXPECT_EQ(json["supply"]["number"].Text(), plain.strVentilNr);
    EXPECT_EQ(json["supply"]["kvs"].Number(), 0.88);
    EXPECT_EQ(json["supply"]["rows"][0]["presetting"].Number(), 3.5);
    EXPECT_EQ(json["return"]["rows"][1]["radiatorPercent"].Number(), 25.0);
    EXPECT_EQ(json["return"]["text"].Text(), L"note");
    const CJsonAt jsonOfLost = Written(MakeValvesJson(lost));
    EXPECT_EQ(jsonOfLost["supply"]["status"].Text(), L"notFound");
    EXPECT_TRUE(MakeValvesJson({}).IsEmpty());
    const CJsonAt bill = Written(MakeItemsJson(MakeValveBill(schedule).items, BillColumns()));
    EXPECT_EQ(bill[1]["count"].Number(), 2);
}

} // namespace workbench
