#include "selection/auswahl_kriterien.h"
#include "tests/src/selection/muster_uebergabe.h"

#include "frame/hkauswahl_uebergabe.h"
#include "frame/vdi6030_start.h"
#include "host/host_prefs.h"
#include "platform/number_scan.h"
#include "selection/heizsysteme.h"
#include "tests/src/selection/test_dialog.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <string>

namespace {

using Texts = std::vector<CString>;

/// Opens dialogs over the sample catalogues, with stores of the test's own.
class KriterienTest : public CMusterAuswahlTest
{
protected:
    CTestDialog& Open(bool mitProdukt = true)
    {
        m_dialog = std::make_unique<CTestDialog>(m_uebergabe);
        m_dialog->layer = CTestListe({L"0", L"HEIZ"});
        m_dialog->Oeffnen(mitProdukt);
        return *m_dialog;
    }

    std::unique_ptr<CTestDialog> m_dialog;
};

TEST_F(KriterienTest, OpeningShowsTheHandOverAndFiltersOnceForTheProduct)
{
    m_uebergabe.NeuLesen = 1;
    CTestDialog& dialog = Open();
    EXPECT_EQ(dialog.aufbauten, std::vector<bool>{false}) << "the pass of the product stands";
    EXPECT_FALSE(dialog.vdi.IsErsterLauf());
    EXPECT_EQ(dialog.texte[18002] + L" " + dialog.texte[18003] + L" " + dialog.texte[18005],
              L"400 3000 1000");
    EXPECT_EQ(dialog.listen[18004].texte, dialog.listen[18008].texte);
    EXPECT_EQ(dialog.listen[18004].Text(dialog.listen[18004].gewaehlt), L"300");
    EXPECT_EQ(dialog.listen[18008].Text(dialog.listen[18008].gewaehlt), L"600");
    EXPECT_EQ(dialog.texte[18107], L"20");
    EXPECT_EQ(m_uebergabe.Raumtemperatur, 20.5) << "showing does not round it";
    EXPECT_EQ(dialog.texte[7008], L"75.4");
    EXPECT_EQ(dialog.texte[7007], L"");
    EXPECT_EQ(dialog.listen[7006].texte, Texts{L"Standard (75/65)"});
    EXPECT_EQ(dialog.listen[7006].gewaehlt, 0);
    EXPECT_EQ(dialog.gesperrt, std::set<int>{18016});
    EXPECT_EQ(dialog.layer.texte, (Texts{L"0", L"HEIZ", L"HEIZ_$d"})) << "no room, no floor";
    EXPECT_EQ(dialog.layer.gewaehlt, 2);
}

TEST_F(KriterienTest, OpeningWithoutAProductLeavesTheGridEmpty)
{
    CTestDialog& dialog = Open(false);
    EXPECT_TRUE(dialog.aufbauten.empty());
    EXPECT_EQ(dialog.listen[18004].Anzahl(), 0);
    dialog.Tippe(18003, L"2500");
    EXPECT_EQ(m_uebergabe.HoeheMin, 300.0) << "empty lists leave the limits";
    EXPECT_EQ(m_uebergabe.TiefeMax, 500.0);
}

TEST_F(KriterienTest, ALimitThatNoEntryBeginsWithOpensTheWholeRange)
{
    m_uebergabe.HoeheMin = 301.0;
    m_uebergabe.TiefeMin = 20.0;
    CTestDialog& dialog = Open();
    const CTestListe& heights = dialog.listen[18004];
    EXPECT_EQ(heights.gewaehlt, 0);
    EXPECT_EQ(dialog.listen[18008].gewaehlt, heights.Anzahl() - 1);
    EXPECT_EQ(m_uebergabe.HoeheMin, _wtof(heights.texte.front()));
    EXPECT_EQ(m_uebergabe.HoeheMax, _wtof(heights.texte.back()));
    for (const ErgebnisTexte& zeile : dialog.gitter.zeilen) {
        EXPECT_LE(_wtof(zeile[1]), 610.0) << "the bounds change, the rows not yet";
    }
    const auto count = dialog.gitter.zeilen.size();
    dialog.Waehle(18008, heights.Anzahl() - 1);
    EXPECT_GT(dialog.gitter.zeilen.size(), count);
}

TEST_F(KriterienTest, WithoutABestRowTheFirstRecomputingFilters)
{
    m_uebergabe.LaengeMin = m_uebergabe.LaengeMax = 1.0;
    EXPECT_EQ(Open().aufbauten, std::vector<bool>{true});
}

TEST_F(KriterienTest, ARoomGivesTheWantedOutputAndTheFloorOfTheLayer)
{
    const struct
    {
        double bedarf, gedeckt;
        const wchar_t *start, *rest;
    } cases[] = {
        {3000, 0, L"1500", L"3000"},
        {3000, 1000, L"2000", L"2000"},
        {1000, 1500, L"-500", L"0"},
    };
    for (const auto& c : cases) {
        Raum(c.bedarf, c.gedeckt);
        CTestDialog& dialog = Open();
        EXPECT_EQ(dialog.texte[18005], c.start);
        EXPECT_EQ(dialog.texte[18048], L"PT.Cucina");
        EXPECT_EQ(dialog.haken[18047] + dialog.haken[18049], 0);
        EXPECT_TRUE(dialog.gesperrt.contains(18016));
        EXPECT_EQ(dialog.kriterien.m_strLayer, L"HEIZ_PT");
        EXPECT_EQ(dialog.layer.texte.back(), L"HEIZ_PT");
        dialog.neuLesen.clear();
        dialog.Hake(18047, true);
        EXPECT_EQ(dialog.texte[18005], c.rest);
        EXPECT_EQ(dialog.neuLesen.back(), 1);
        EXPECT_EQ(m_uebergabe.NeuLesen, 0);
        dialog.aufbauten.clear();
        dialog.Hake(18047, false);
        EXPECT_TRUE(dialog.aufbauten.empty());
        EXPECT_EQ(dialog.texte[18005], c.rest);
    }
}

TEST_F(KriterienTest, APercentageOfTheDemandBecomesTheWantedOutput)
{
    Raum(3001.0, 0.0);
    CTestDialog& dialog = Open();
    dialog.Hake(18047, true);
    dialog.Hake(18049, true);
    EXPECT_EQ(dialog.texte[18005], L"1501") << "halves go upward";
    EXPECT_EQ(dialog.haken[18047], 0);
    EXPECT_FALSE(dialog.gesperrt.contains(18016));
    dialog.Tippe(18016, L"10");
    EXPECT_EQ(dialog.texte[18005], L"300");
    EXPECT_EQ(dialog.neuLesen.back(), 1);

    dialog.Tippe(18016, L"3.33");
    EXPECT_EQ(m_uebergabe.Leistung, 100.0);
    EXPECT_EQ(dialog.neuLesen.back(), 1);
    dialog.Tippe(18016, L"2");
    EXPECT_EQ(dialog.texte[18005], L"60");
    EXPECT_EQ(m_uebergabe.Leistung, 60.0);
    EXPECT_EQ(dialog.neuLesen.back(), 0) << "recomputed by the field's event alone";
    dialog.Tippe(18016, L"0");
    EXPECT_EQ(dialog.texte[18005], L"60");

    dialog.Tippe(18016, L"50");
    dialog.Hake(18049, false);
    EXPECT_FALSE(dialog.gesperrt.contains(18016)) << "until the fields are shown again";
    EXPECT_EQ(dialog.texte[18005], L"1501");
    dialog.kriterien.FelderAnzeigen();
    EXPECT_TRUE(dialog.gesperrt.contains(18016));
}

TEST_F(KriterienTest, WithoutARoomThereIsNothingToTakeAPercentageOf)
{
    CTestDialog& dialog = Open();
    dialog.Hake(18049, true);
    EXPECT_TRUE(dialog.gesperrt.contains(18016));
    EXPECT_EQ(dialog.texte[18005], L"1000");
}

TEST_F(KriterienTest, OutputModeAndShowAllSwitchTheFilterAndTheFields)
{
    CTestDialog& dialog = Open();
    const auto within = dialog.gitter.zeilen.size();
    dialog.Hake(18017, true);
    EXPECT_LT(dialog.gitter.zeilen.size(), within);
    for (const ErgebnisTexte& zeile : dialog.gitter.zeilen) {
        EXPECT_NEAR(_wtof(zeile[5]), 1000.0, 100.0);
    }
    EXPECT_EQ(dialog.gesperrt, std::set<int>{18016});
    dialog.Tippe(18005, L"");
    EXPECT_EQ(m_uebergabe.Leistung, 0.0);
    EXPECT_EQ(dialog.texte[18015], L"0.0");
    dialog.Hake(18017, false);
    EXPECT_EQ(m_uebergabe.Leistung, 1000.0);
    EXPECT_EQ(dialog.gesperrt, (std::set<int>{18005, 18011, 18016}));
    EXPECT_EQ(dialog.gitter.zeilen.size(), within);

    dialog.Hake(18019, true);
    EXPECT_GT(dialog.gitter.zeilen.size(), within);
    EXPECT_EQ(dialog.gesperrt,
              (std::set<int>{18002, 18003, 18004, 18005, 18008, 18009, 18010, 18011, 18016}));
    dialog.Hake(18019, false);
    EXPECT_EQ(dialog.gesperrt, (std::set<int>{18005, 18011, 18016}));
    EXPECT_EQ(dialog.gitter.zeilen.size(), within);
}

TEST_F(KriterienTest, LengthsAndOutputRecomputeWithEveryKeystrokeAndReadNoFile)
{
    CTestDialog& dialog = Open();
    dialog.neuLesen.clear();
    dialog.Tippe(18003, L"1000 mm");
    EXPECT_EQ(m_uebergabe.LaengeMax, 1000.0);
    dialog.Tippe(18003, L"");
    dialog.Tippe(18002, L"");
    EXPECT_EQ(m_uebergabe.LaengeMin + m_uebergabe.LaengeMax, 0.0);
    EXPECT_EQ(dialog.texte[18015], L"-100.0") << "nothing selected";
    dialog.Tippe(18005, L"800");
    dialog.Tippe(18005, L"800");
    EXPECT_EQ(dialog.neuLesen, std::vector<int>(4, 0));
}

TEST_F(KriterienTest, TheRoomTemperatureTakesACommaAndCountsOnLeaving)
{
    CTestDialog& dialog = Open();
    dialog.kriterien.RaumtemperaturVerlassen();
    EXPECT_EQ(m_uebergabe.Raumtemperatur, 20.5) << "nothing was typed";
    const CString before = dialog.texte[18011];
    dialog.aufbauten.clear();
    dialog.Tippe(18107, L"24,5");
    EXPECT_EQ(m_uebergabe.Raumtemperatur, 24.5);
    EXPECT_TRUE(dialog.aufbauten.empty());
    const double factor = m_uebergabe.Umrechnungsfaktor;
    dialog.kriterien.RaumtemperaturVerlassen();
    EXPECT_LT(m_uebergabe.Umrechnungsfaktor, factor);
    EXPECT_EQ(dialog.texte[18107], L"24,5");
}

TEST_F(KriterienTest, HeatingSystemsAreChosenStoredAndDeleted)
{
    CTestDialog& dialog = Open();
    const auto record = [this] { return std::pair(m_uebergabe.Vorlauf, m_uebergabe.Ruecklauf); };
    dialog.Waehle(7006, 0);
    EXPECT_EQ(record(), std::pair(75.0, 65.0));
    EXPECT_EQ(dialog.texte[7007], L"Standard");

    dialog.Tippe(7007, L"Bassa");
    dialog.Tippe(7008, L"0");
    dialog.kriterien.SystemSpeichern();
    EXPECT_EQ(dialog.listen[7006].Anzahl(), 1) << "a temperature is missing";
    dialog.Tippe(7008, L"45");
    dialog.Tippe(7009, L"35");
    EXPECT_EQ(record(), std::pair(75.0, 65.0));
    const double factor = m_uebergabe.Umrechnungsfaktor;
    dialog.kriterien.SystemSpeichern();
    EXPECT_EQ(record(), std::pair(45.0, 35.0));
    EXPECT_LT(m_uebergabe.Umrechnungsfaktor, factor);
    EXPECT_EQ(dialog.listen[7006].texte, (Texts{L"Standard (75/65)", L"Bassa (45/35)"}));
    EXPECT_EQ(dialog.listen[7006].gewaehlt, 1);

    dialog.kriterien.SystemLoeschen();
    EXPECT_EQ(record(), std::pair(75.0, 65.0)) << "the first one left comes into force";
    dialog.listen[7006].Waehlen(-1);
    dialog.kriterien.SystemLoeschen();
    EXPECT_EQ(dialog.listen[7006].Anzahl(), 1) << "nothing selected, nothing deleted";
    dialog.listen[7006].Waehlen(0);
    dialog.kriterien.SystemLoeschen();
    EXPECT_EQ(dialog.listen[7006].Anzahl(), 0);
    EXPECT_EQ(record(), std::pair(75.0, 65.0));
    EXPECT_EQ(dialog.texte[7007], L"Standard");
}

TEST_F(KriterienTest, OkStoresWhatTheNextSelectionStartsWith)
{
    VDI6030START before;
    before.AbstandWand = 0.05;
    ASSERT_TRUE(WriteDefFile_VDI6030START(&before, false));
    CTestDialog& dialog = Open();
    dialog.kriterien.m_nLayerFarbe = 5;
    dialog.kriterien.m_strLayer = L"";
    dialog.Tippe(7007, L"Invernale");
    dialog.Tippe(18003, L"2500"); // an event that reads the fields
    dialog.Tippe(7008, L"70");
    dialog.kriterien.Uebernehmen();
    EXPECT_EQ(m_uebergabe.Vorlauf, 75.4) << "typed last, read by no event";
    EXPECT_EQ(m_uebergabe.Leistung, _wtof(dialog.texte[18011]));
    const VDI6030START* const start = ReadDefFile_VDI6030START(false);
    ASSERT_NE(start, nullptr);
    EXPECT_EQ(start->SystemVorlauf, 75);
    EXPECT_EQ(start->SystemRuecklauf, 65);
    EXPECT_EQ(start->SystemName, L"Invernale");
    EXPECT_EQ(start->Hersteller, L"Valmorena");
    EXPECT_EQ(start->Art, L"Radiatori a piastra compatti");
    EXPECT_EQ(start->Produkt, L"Tipo 22");
    EXPECT_EQ(start->AbstandWand, 0.05);
    EXPECT_TRUE(m_folder.Exists("HEIZUNG/CmbData.txt"));

    // The next one finds the system by its temperatures, and its layer where it came without one.
    Raum(1000.0, 0.0);
    m_dialog = std::make_unique<CTestDialog>(m_uebergabe);
    m_dialog->kriterien.m_strLayer.clear();
    m_dialog->Oeffnen();
    EXPECT_EQ(m_dialog->texte[7007], L"Standard");
    EXPECT_EQ(m_dialog->kriterien.m_strLayer, L"HEIZ_PT") << "the stored one was empty";
    EXPECT_EQ(m_dialog->kriterien.m_nLayerFarbe, 1);
    m_dialog->kriterien.m_strLayer = L"CALDO";
    m_dialog->kriterien.m_nLayerFarbe = 7;
    m_dialog->kriterien.Uebernehmen();
    m_dialog = std::make_unique<CTestDialog>(m_uebergabe);
    m_dialog->kriterien.m_strLayer.clear();
    m_dialog->Oeffnen();
    EXPECT_EQ(m_dialog->kriterien.m_strLayer, L"CALDO");
    EXPECT_EQ(m_dialog->kriterien.m_nLayerFarbe, 7);
    EXPECT_EQ(Open().kriterien.m_strLayer, L"HEIZ_PT") << "a layer of the caller wins";
}

TEST_F(KriterienTest, TemperaturesThatAnyEventHasReadGoWithOk)
{
    CTestDialog& dialog = Open();
    dialog.Tippe(7008, L"70.6");
    dialog.Tippe(7009, L"55");
    dialog.Tippe(18003, L"2500");
    EXPECT_EQ(m_uebergabe.Vorlauf, 75.4) << "they are in no force yet";
    dialog.kriterien.Uebernehmen();
    EXPECT_EQ(m_uebergabe.Vorlauf, 70.6);
    EXPECT_EQ(m_uebergabe.Ruecklauf, 55.0);
    const VDI6030START* const start = ReadDefFile_VDI6030START(false);
    EXPECT_EQ(start->SystemVorlauf, 70);
    EXPECT_EQ(start->SystemRuecklauf, 55);
}

TEST_F(KriterienTest, OpeningSelectsTheSystemOfTheCallersTemperatures)
{
    m_folder.WriteBytes("HEIZUNG/CmbData.txt",
                        "[VDI6030_HS]\r\nAlta (80/60)|Media (60/50)*|Bassa (45/35)|\r\n");
    m_uebergabe.Vorlauf = 45.3;
    m_uebergabe.Ruecklauf = 35.0;
    EXPECT_EQ(Open().listen[7006].gewaehlt, 2) << "not the one that was selected last";
    EXPECT_EQ(m_dialog->texte[7007], L"Bassa");
    m_uebergabe.Ruecklauf = 34.0;
    EXPECT_EQ(Open().listen[7006].gewaehlt, 0) << "none has these temperatures";
    EXPECT_EQ(m_dialog->texte[7009], L"34");
}

/// Whatever the user does, the grid shows what a pass of its own over the record gives.
TEST_F(KriterienTest, AfterAnyActionTheGridAgreesWithTheRecord)
{
    Raum(2400.0, 600.0);
    CTestDialog& dialog = Open();
    std::mt19937 random(20261121);
    const auto below = [&random](int end) {
        return static_cast<int>(random() % static_cast<unsigned>(end));
    };
    for (int step = 0; step < 200; ++step) {
        const int action = below(9);
        SCOPED_TRACE(std::to_string(step) + ": action " + std::to_string(action));
        const int sizeLists[] = {18004, 18008, 18009, 18010};
        const int id = sizeLists[below(4)];
        switch (action) {
        case 0:
            dialog.Waehle(id, below(dialog.listen[id].Anzahl() + 1) - 1);
            break;
        case 1:
            dialog.Tippe(18002 + below(2), std::to_wstring(below(3000)));
            break;
        case 2:
            dialog.Tippe(18005, std::to_wstring(below(4000)));
            break;
        case 3:
            dialog.Tippe(18016, std::to_wstring(below(120)));
            break;
        case 4:
            dialog.Hake(18017, below(2) == 1);
            break;
        case 5:
            dialog.Hake(18019, below(3) == 1);
            break;
        case 6:
            dialog.Hake(below(2) == 1 ? 18047 : 18049, below(2) == 1);
            break;
        case 7:
            dialog.Tippe(18107, std::to_wstring(15 + below(10)));
            dialog.kriterien.RaumtemperaturVerlassen();
            break;
        default:
            dialog.WaehleZeile(below(static_cast<int>(dialog.gitter.zeilen.size()) + 1));
            break;
        }
        HK_DATEN_VDI3805_UEBERGABE record = m_uebergabe;
        CHKVdi3805 fresh(&record);
        fresh.SetLeistungFilter(dialog.haken[18017]);
        fresh.SetAlleAnzeigen(dialog.haken[18019]);
        fresh.Filtern();
        std::vector<ErgebnisTexte> expected;
        for (const auto* row = fresh.GetErgebnis(); row != nullptr; row = row->pNext) {
            ZellTexte(*row, expected.emplace_back());
        }
        ASSERT_EQ(dialog.gitter.zeilen, expected);
        ASSERT_EQ(_wtof(dialog.texte[18005]), m_uebergabe.Leistung);
        ASSERT_EQ(_wtof(dialog.texte[18002]), m_uebergabe.LaengeMin);
        ASSERT_EQ(dialog.texte[18011], dialog.gitter.Text(5, dialog.gitter.aktuell));
    }
}

} // namespace
