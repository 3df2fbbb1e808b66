#include "valve/ventil_bewertung.h"
#include "valve/ventil_texte.h"

#include "platform/exception.h"
#include "tests/src/valve/ventil_fixture.h"
#include "tests/support/message_log.h"

#include <limits>
#include <sstream>
#include <utility>
#include <vector>

namespace {

using Werte = std::vector<float>;

const std::string kDatensatz = "700;1;2;15;0.9;10;120;600;;;;1;;";

Werte Zeilen(const VDI3805_VENTIL_KV& ventil, const VDI3805_VENTIL_KV::Table& table)
{
    return Werte(table.begin(), table.begin() + ventil.AnzahlKv);
}

class CVentilBewertungTest : public CVentilTest
{
protected:
    /// Loads a file of one group with these records and an article of the type in front of them.
    void Lade(const std::string& records, const std::string& typ = "02")
    {
        const std::string head = "100;1;A|110;1;B|800;" + TgaNr(typ, "0001") + "|";
        ASSERT_TRUE(katalog.LadeHersteller(NeuerHersteller(Saetze(head + records))));
    }

    void Bewerte()
    {
        const VENT_VDI3805_GRUPPE& gruppe = *katalog.ErsteHauptgruppe->Gruppen;
        const VENT_VDI3805_DATEN* const daten = SucheDatensatz(gruppe, *gruppe.Artikel);
        ASSERT_NE(daten, nullptr);
        BewerteVentil(*gruppe.Artikel, *daten, ventil);
    }

    void Bewerte(const std::string& records, const std::string& typ = "02")
    {
        Lade(records, typ);
        Bewerte();
    }

    CVentVdiKatalog katalog;
    VDI3805_VENTIL_KV ventil;
};

/// A row of the file; written as "0N=4" for the presetting 0, named N, with a kvs of 4.
struct CZeile
{
    std::string einstellung, name, kvs;
};

std::vector<CZeile> LiesZeilen(const std::string& text)
{
    std::vector<CZeile> rows;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        const std::size_t name = word.find_first_not_of("-0123456789");
        const std::size_t kvs = word.find('=');
        rows.push_back({word.substr(0, name), word.substr(name, kvs - name), word.substr(kvs + 1)});
    }
    return rows;
}

/// The rows as records. xp counts them, so that it tells where a row has gone to, and kv is its
/// tenfold.
std::string Tabelle(const std::string& rows)
{
    std::string records = kDatensatz;
    int number = 0;
    for (const CZeile& row : LiesZeilen(rows)) {
        const std::string index = std::to_string(++number);
        records += "|710.01;" + index + ";" + index + ";;" + row.name + ";" + row.einstellung +
                   ";;;" + index + "0;" + row.kvs + ";";
    }
    return records;
}

std::string Zeilen(int count)
{
    std::string records = kDatensatz;
    for (int i = 0; i < count; ++i) {
        records += "|710.01;1;;;;" + std::to_string(i) + ";;;1";
    }
    return records;
}

} // namespace

TEST_F(CVentilBewertungTest, NominalDataComeFromTheDataSet)
{
    ventil.Gruppe = ventil.Hauptgruppe = ventil.Bezeichnung = L"x";
    ventil.Hersteller = ventil.VentilNr = L"x";
    Bewerte("700;1;2;15.9;0.9;10.5;120;600x;a;b;c;-1;Testo;d|710.01;1;2;;;1;;;0.25");
    EXPECT_EQ(ventil.Gruppe + ventil.Hauptgruppe + ventil.Bezeichnung + ventil.Hersteller +
                  ventil.VentilNr,
              L"xxxxx")
        << "key and names are left alone";
    EXPECT_EQ(ventil.VentilArt, 2);
    EXPECT_EQ(ventil.DN, 15.0) << "read as a whole number";
    EXPECT_EQ(ventil.Kvs, 0.9F);
    EXPECT_EQ(ventil.Wert5, 10.5F);
    EXPECT_EQ(ventil.Wert6, 120.0F);
    EXPECT_EQ(ventil.DruckMax, 600.0F);
    EXPECT_EQ(ventil.Einstellbar, 1) << "any number but 0";
    EXPECT_EQ(ventil.Zusatz, L"Testo");
    EXPECT_EQ(ventil.VentilTyp, 2);
    EXPECT_EQ(ventil.AnzahlKv, 1);
}

TEST_F(CVentilBewertungTest, NumbersEndWhereTheyStopBeingOne)
{
    Bewerte("700;1; 2x;x;0,9;1e2;.5;1e99;;;;0.9;;|710.01;1;-1.5;;;1,5;;;1e39");
    EXPECT_EQ(ventil.DN, 0.0);
    EXPECT_EQ(ventil.Kvs, 0.0F) << "a decimal comma ends the number";
    EXPECT_EQ(ventil.Wert5, 100.0F);
    EXPECT_EQ(ventil.Wert6, 0.5F);
    EXPECT_EQ(ventil.DruckMax, std::numeric_limits<float>::infinity());
    EXPECT_EQ(ventil.Einstellbar, 0) << "a whole number of 0";
    EXPECT_EQ(ventil.Zusatz, L"") << "the empty last field is there";
    EXPECT_EQ(ventil.Xp[0], -1.5F);
    EXPECT_EQ(ventil.Einstellung[0], 1.0F);
    EXPECT_EQ(ventil.Kv[0], std::numeric_limits<float>::infinity());
}

TEST_F(CVentilBewertungTest, ARowFillsTheTablesByTheKindOfValve)
{
    // kvs is that of the row only if the line has a tenth field.
    const struct
    {
        const char* typ;
        const char* line;
        float bypass, hk, anteil, kv, kvs;
    } cases[] = {
        {"02", "710.01;1;2;x;N;3;x;0.7;0.25", 0, 0, 0, 0.25F, 0.25F},
        {"02", "710.01;1;2;x;N;3;x;0.7;0.25;0.5", 0, 0, 0, 0.25F, 0.5F},
        {"02", "710.01;1;2;;;3;;;0.25;", 0, 0, 0, 0.25F, 0.25F},
        {"02", "710.01;1;2;;;3;;;0.25;;", 0, 0, 0, 0.25F, 0},
        {"00", "710.01;1;2;;;3;;0.7;0.25;", 0, 0, 0, 0.25F, 0.25F},
        // 0.25 of 0.75 + 0.25.
        {"01", "710.01;1;2;;N;3;;0.75;0.25", 0.75F, 0.25F, 25, 1, 1},
        {"01", "710.01;1;2;;;3;;0.75;0.25;0.5", 0.75F, 0.25F, 25, 1, 0.5F},
        // 100/3 is cut to the nearest whole, 12.5 upwards.
        {"01", "710.01;1;2;;;3;;2;1", 2, 1, 33, 3, 3},
        {"01", "710.01;1;2;;;3;;7;1", 7, 1, 13, 8, 8},
        {"01", "710.01;1;2;;;3;;;2", 0, 2, 100, 2, 2},
        {"01", "710.01;1;2;;;3;;2;0", 2, 0, 0, 2, 2},
        {"01", "710.01;1;2;;;3;;0;0", 0, 0, 0, 0, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.typ) + " " + c.line);
        Bewerte(kDatensatz + "|" + c.line, c.typ);
        EXPECT_EQ(ventil.AnzahlKv, 1);
        EXPECT_EQ(ventil.Xp[0], 2.0F);
        EXPECT_EQ(ventil.Einstellung[0], 3.0F);
        EXPECT_EQ(ventil.KvBypass[0], c.bypass);
        EXPECT_EQ(ventil.KvHK[0], c.hk);
        EXPECT_EQ(ventil.AnteilHK[0], c.anteil);
        EXPECT_EQ(ventil.Kv[0], c.kv);
        EXPECT_EQ(ventil.KvsTab[0], c.kvs);
    }
}

TEST_F(CVentilBewertungTest, RowsAreOrderedByTheirPresettingsAndKvs)
{
    const struct
    {
        const char* what;
        const char* rows;
        Werte einstellung;
        Werte xp; // which row of the file stands there
    } cases[] = {
        {"falling kvs: file order", "3=9 2=8", {3, 2}, {1, 2}},
        {"rising kvs: reversed", "1=7 2=8 3=9", {3, 2, 1}, {3, 2, 1}},
        {"equal kvs: not reversed", "1=8 2=8", {1, 2}, {1, 2}},
        {"only the first two rows decide on the direction", "3=8 2=7 1=9", {3, 2, 1}, {1, 2, 3}},

        // The row behind a repetition lands on its place, so that the first of them stays.
        {"1, 1, 1, 2, 1", "1=9 1=8 1=7 2=6 1=5", {1, 2, 1}, {1, 4, 5}},
        // What counts for the direction are the rows that stayed: 5 and 8.
        {"a repetition does not decide on the direction", "1=5 1=4 2=8", {2, 1}, {3, 1}},

        // Largest presetting 6, so that the named row gets 7 and, reversed, stands last.
        {"0 with a name, 2, 4, 6, rising kvs", "0N=1 2=2 4=3 6=4", {6, 4, 2, 7}, {4, 3, 2, 1}},
        // 7 is no longer 0 when the first row would be extrapolated.
        {"0 with a name, 6, 4, 2, falling kvs", "0N=4 6=3 4=2 2=1", {7, 6, 4, 2}, {1, 2, 3, 4}},
        {"a presetting below 0 counts as none", "-2N=4 6=3", {7, 6}, {1, 2}},
        {"a name does not replace a presetting", "5N=4 6=3", {5, 6}, {1, 2}},
        // Of five rows the first two are looked at, of four also two: 5 / 2 = 4 / 2 = 2.
        {"named rows in the second half stay",
         "5=9 0A=8 -1B=7 3=6 0C=5",
         {5, 6, -1, 3, 0},
         {1, 2, 3, 4, 5}},
        // The largest of them is 0, the start value, not -3.
        {"presettings below 0 raise no maximum", "-4A=9 -3=8", {1, -3}, {1, 2}},
        // Four rows stay, and the largest presetting is 9: the 0 among the first two gets 10.
        {"names are looked at after repetitions are gone",
         "9=9 9=8 0N=7 1=6 2=5",
         {9, 10, 1, 2},
         {1, 3, 4, 5}},
        // The second row's name went with it: the third, on its place, has none.
        {"a dropped row leaves no name", "9=9 9N=8 0=7 1=6 2=5", {9, 0, 1, 2}, {1, 3, 4, 5}},
        // The names stay behind when the rows change places, but they are no longer asked for.
        {"equal presettings may come of names", "0A=9 -1B=8 3=7 2=6", {4, 4, 3, 2}, {1, 2, 3, 4}},

        // 4 - 2 + 4 = 6.
        {"0, 4, 2, falling kvs", "0=9 4=8 2=7", {6, 4, 2}, {1, 2, 3}},
        // Of six rows three are looked at: 3 + 1 = 4 twice, and two equal values do not fall.
        {"0, 4, 4 of names", "0=9 -1A=8 -2B=7 3=6 2=5 1=4", {0, 4, 4, 3, 2, 1}, {1, 2, 3, 4, 5, 6}},
        {"0, 2, 4, falling kvs: the values rise", "0=9 2=8 4=7", {0, 2, 4}, {1, 2, 3}},
        {"two rows are too few for a line", "0=9 4=8", {0, 4}, {1, 2}},
        {"below 0 is not 0", "-1=9 4=8 2=7", {-1, 4, 2}, {1, 2, 3}},
        // Reversed first: 0, 5, 2. Then 5 - 2 + 5 = 8.
        {"the first row is that after reversing", "2=7 5=8 0=9", {8, 5, 2}, {3, 2, 1}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        Bewerte(Tabelle(c.rows));
        EXPECT_EQ(Zeilen(ventil, ventil.Einstellung), c.einstellung);
        EXPECT_EQ(Zeilen(ventil, ventil.Xp), c.xp);
        // All tables keep step.
        const std::vector<CZeile> rows = LiesZeilen(c.rows);
        Werte kv;
        Werte kvs;
        for (const float xp : c.xp) {
            kv.push_back(10.0F * xp);
            kvs.push_back(std::stof(rows[static_cast<std::size_t>(xp) - 1].kvs));
        }
        EXPECT_EQ(Zeilen(ventil, ventil.Kv), kv);
        EXPECT_EQ(Zeilen(ventil, ventil.KvsTab), kvs);
    }
}

TEST_F(CVentilBewertungTest, BypassValvesKnowNoNames)
{
    // Without names the first row stays 0, and as 1 is above 0 there is nothing to extrapolate.
    Bewerte(Tabelle("0N=9 1=8 2=7"), "01");
    EXPECT_EQ(Zeilen(ventil, ventil.Einstellung), (Werte{0, 1, 2}));
    // 4 - 3 + 4 = 5: the extrapolation is for all kinds.
    Bewerte(Tabelle("3=7 4=8 0N=9"), "01");
    EXPECT_EQ(Zeilen(ventil, ventil.Einstellung), (Werte{5, 4, 3}));
}

TEST_F(CVentilBewertungTest, ReversingTakesEveryTable)
{
    Bewerte(kDatensatz + "|710.01;1;1;;;1;;3;1;5|710.01;2;2;;;2;;1;1;6", "01");
    EXPECT_EQ(Zeilen(ventil, ventil.Xp), (Werte{2, 1}));
    EXPECT_EQ(Zeilen(ventil, ventil.KvBypass), (Werte{1, 3}));
    EXPECT_EQ(Zeilen(ventil, ventil.KvHK), (Werte{1, 1}));
    EXPECT_EQ(Zeilen(ventil, ventil.AnteilHK), (Werte{50, 25}));
    EXPECT_EQ(Zeilen(ventil, ventil.Kv), (Werte{2, 4}));
    EXPECT_EQ(Zeilen(ventil, ventil.KvsTab), (Werte{6, 5}));
    EXPECT_EQ(Zeilen(ventil, ventil.Einstellung), (Werte{2, 1}));
}

TEST_F(CVentilBewertungTest, ARepetitionAtTheEndLeavesItsValuesUncounted)
{
    Bewerte(Tabelle("1=9 2=8 2=7"));
    EXPECT_EQ(ventil.AnzahlKv, 2);
    EXPECT_EQ(ventil.Xp[2], 3.0F);
    EXPECT_EQ(ventil.KvsTab[2], 7.0F);
}

TEST_F(CVentilBewertungTest, AWrongRowIndexIsTakenWithoutAMessage)
{
    const CMessageLog messages;
    Bewerte(kDatensatz + "|710.01;7;1;;;1;;;3|710.01;x;2;;;2;;;2|710.01;;3;;;3;;;1");
    EXPECT_EQ(Zeilen(ventil, ventil.Xp), (Werte{1, 2, 3}));
    EXPECT_TRUE(messages.Texts().empty());
}

TEST_F(CVentilBewertungTest, TheRowsEndAtAnotherType)
{
    const std::pair<std::string, int> cases[] = {
        {kDatensatz + "|710.01;1;1;;;1;;;3|700;2|710.01;1;1;;;2;;;3", 1},
        {kDatensatz + "|710.01;1;1;;;1;;;3|710.02;1|710.01;1;1;;;2;;;3", 1},
        {kDatensatz + "|710.02;1|710.01;1;1;;;2;;;3", 0},
        {kDatensatz + "|710.01;1;1;;;1;;;3|720.02|160;1|710.01;1;1;;;2;;;3", 2},
        // Whatever kind it is, as long as it is not above 11.
        {"700;1;11;15;;;;;;;;;;|710.01;1;1;;;1;;;3", 1},
        {"700;1;-1;15;;;;;;;;;;|710.01;1;1;;;1;;;3", 1},
        {"700;1;x;15;;;;;;;;;;|710.01;1;1;;;1;;;3", 1}};
    for (const auto& [records, count] : cases) {
        SCOPED_TRACE(records);
        Bewerte(records);
        EXPECT_EQ(ventil.AnzahlKv, count);
    }
}

TEST_F(CVentilBewertungTest, FiftyRowsShowAMessageAndEndTheTable)
{
    const std::string repetition = "|710.01;1;;;;48;;;1";
    const std::pair<std::string, int> cases[] = {
        {Zeilen(49), 49},
        {Zeilen(49) + repetition + repetition, 49},
        {Zeilen(50), 50},
        {Zeilen(60), 50},
        // A row that would raise is not read any more.
        {Zeilen(50) + "|710.01;51", 50},
    };
    for (const auto& [records, count] : cases) {
        SCOPED_TRACE(records);
        const CMessageLog messages;
        Bewerte(records);
        EXPECT_EQ(ventil.AnzahlKv, count);
        EXPECT_EQ(messages.Texts(),
                  count < 50 ? std::vector<CString>() : std::vector<CString>{L"MAXKV"});
        EXPECT_EQ(Zeilen(ventil, ventil.Einstellung).back(), static_cast<float>(count - 1));
    }
}

TEST_F(CVentilBewertungTest, WithoutRowsTheTablesAreEmptyOrUntouched)
{
    VDI3805_VENTIL_KV full;
    full.VentilTyp = 77;
    full.AnzahlKv = 3;
    full.Reserve1 = 1.0F;
    full.Reserve2 = 1;
    full.Kv.fill(5.0F);
    full.Einstellung.fill(5.0F);
    const struct
    {
        const char* what;
        std::string records;
        int typ;
        float kv;
    } cases[] = {
        {"last node of its list", kDatensatz, 77, 5.0F},
        {"last node of its list, kind unknown", "700;1;12;15;;;;;;;;;;", 77, 5.0F},
        {"another type behind it", kDatensatz + "|700;2", 2, 0.0F},
        {"kind above 11", "700;1;12;15;;;;;;;;;;|710.01;1;1;;;1;;;3", 2, 0.0F},
        {"kind above 11, a bad row", "700;1;12;15;;;;;;;;;;|710.01;1", 2, 0.0F},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        ventil = full;
        Bewerte(c.records);
        EXPECT_EQ(ventil.DN, 15.0);
        EXPECT_EQ(ventil.AnzahlKv, 0);
        EXPECT_EQ(ventil.Reserve1, 0.0F);
        EXPECT_EQ(ventil.Reserve2, 0);
        EXPECT_EQ(ventil.VentilTyp, c.typ);
        EXPECT_EQ(ventil.Kv[0], c.kv);
        EXPECT_EQ(ventil.Einstellung[49], c.kv);
    }
}

TEST_F(CVentilBewertungTest, ALineWithoutARequiredFieldRaises)
{
    const struct
    {
        std::string records;
        const char* typ;
        int art;
        int count;
    } cases[] = {
        {"700;1", "02", 9, 5},
        {"700;1;2", "02", 2, 5},
        {"700;1;2;3;4;5;6;7;8;9;10;11;", "02", 2, 5},
        {kDatensatz + "|710.01", "02", 2, 0},
        {kDatensatz + "|710.01;1;2;3;4;5;6;7", "02", 2, 0},
        {kDatensatz + "|710.01;1;;;;;;;", "02", 2, 0},
        {kDatensatz + "|710.01;1;2;3;4;5;6;7;8|710.01;1;2;3;4;6", "02", 2, 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.records);
        ventil.VentilArt = 9;
        ventil.AnzahlKv = 5;
        Lade(c.records, c.typ);
        EXPECT_THROW(Bewerte(), CInvalidArgException);
        EXPECT_EQ(ventil.VentilArt, c.art);
        EXPECT_EQ(ventil.AnzahlKv, c.count) << "filled as far as it came";
    }
}

TEST(VentilArtText, RunsInStepWithTheKindsFromTheSecondOn)
{
    EXPECT_EQ(VentilArtText(1), VentilArtText(2));
    EXPECT_EQ(VentilArtText(3), L"Attacco monotubo per valvole C.S. a piastra");
    EXPECT_EQ(VentilArtText(11), L"PdC localizzata(p.e. Saracinesca di chiusura)");
    for (const int other : {0, 12, -1, std::numeric_limits<int>::max()}) {
        EXPECT_EQ(VentilArtText(other), L"") << other;
    }
}

TEST_F(CVentilBewertungTest, TextsAreThoseOfTheArticlesNumbers)
{
    const std::string texts = "160;1;Testa;x|160;2;Altra|160;1;Doppia|160;12;Lunga|160;3|160;4;|"
                              "160;0;Zero|200;-1;Meno|200;1;Angolo;|400;3;Ottone;";
    const struct
    {
        const char* what;
        std::string tgaNr;
        const wchar_t* antrieb;
        const wchar_t* bauform;
        const wchar_t* werkstoff;
    } cases[] = {
        {"the first of equal numbers", TgaNr("02", "0001", "01", "01", "03"), L"Testa;x",
         L"Angolo;", L"Ottone;"},
        {"0, not there, not there", TgaNr("02", "0001", "00", "09", "01"), L"...", L"...", L"..."},
        {"the cut is for numbers of one digit", TgaNr("02", "0001", "12", "-1", "??"), L";Lunga",
         L"...", L"..."},
        {"a line without a text", TgaNr("02", "0001", "03"), L"", L"...", L"..."},
        {"a line with an empty text", TgaNr("02", "0001", "04"), L"", L"...", L"..."},
        {"no ident", "010001", L"...", L"...", L"..."},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        ASSERT_TRUE(katalog.LadeHersteller(
            NeuerHersteller(Saetze("100;1;A|110;1;B|" + texts + "|800;" + c.tgaNr))));
        const VENT_VDI3805_GRUPPE& gruppe = *katalog.ErsteHauptgruppe->Gruppen;
        const VentilTexte found = SucheTexte(gruppe, *gruppe.Artikel);
        EXPECT_EQ(found.Antrieb, c.antrieb);
        EXPECT_EQ(found.Bauform, c.bauform);
        EXPECT_EQ(found.Werkstoff, c.werkstoff);
    }
    Lade("110;9;C|" + texts);
    const VENT_VDI3805_GRUPPE& gruppe = *katalog.ErsteHauptgruppe->Gruppen;
    VENT_VDI3805_ARTIKEL artikel = *gruppe.Artikel;
    artikel.Ident.fill(1);
    EXPECT_EQ(SucheTexte(gruppe, artikel).Antrieb, L"...") << "texts of another group";
}
