#include "selection/ergebnis_zeilen.h"

#include "tests/src/selection/test_dialog.h"
#include "tests/support/memory_catalogue.h"
#include "tests/support/message_log.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace reference_host;

namespace {

class ErgebnisZeilenTest : public ::testing::Test
{
protected:
    /// A dialog opened on the rows that the test has added.
    CTestDialog& Open(bool warnen = false)
    {
        m_katalog.Produkt().Hoehen.Add(600.0);
        m_katalog.Produkt().Tiefen.Add(22.5);
        m_katalog.Produkt().Tiefen.Add(300.0);
        m_dialog.kriterien.m_bWarnen = warnen;
        m_dialog.Oeffnen();
        return m_dialog;
    }

    CTempFolder m_folder;
    CSettingOverride m_root{kSettingServerPath, m_folder.Path()};
    CSettingOverride m_def{kSettingDefFolder, m_folder.Path()};
    CMemoryCatalogue m_katalog;
    HK_DATEN_VDI3805_UEBERGABE m_uebergabe = m_katalog.Uebergabe(1000.0);
    CTestDialog m_dialog{m_uebergabe};
};

TEST(ErgebnisTexteTest, EveryColumnHasItsTexts)
{
    EXPECT_EQ(ErgebnisText(1), L"Scelta Corpi scaldanti");
    EXPECT_EQ(ErgebnisText(0) + ErgebnisText(19) + SpaltenTitel(8) + SpaltenTooltip(-1), L"");
    EXPECT_EQ(SpaltenTitel(0), L"Type");
    EXPECT_EQ(SpaltenTitel(6), L"Nr.\nElem");
    EXPECT_EQ(SpaltenTitel(7), L"Litri");
    EXPECT_EQ(SpaltenTooltip(2), L"Profondit\u00E0 del corpo scaldante");
    EXPECT_EQ(SpaltenTooltip(7), L"Contenuto acqua corpi scaldanti");

    HK_VDI3805_TYP row;
    row.Name = L"22";
    row.Daten.Hoehe = 600.5;
    row.Daten.Tiefe = 101.5;
    row.Daten.Laenge = 1000.0;
    row.Daten.LeistungEN442 = 1700.0;
    row.Daten.Leistung = 850.0;
    row.Daten.Inhalt = 6.25;
    ErgebnisTexte texte;
    ZellTexte(row, texte);
    EXPECT_EQ(texte,
              (ErgebnisTexte{L"22", L"600", L"102", L"1000", L"1700", L"850", L"0", L"6.2"}));
}

TEST(ErgebnisTexteTest, CellsAreOrderedByTheArtOfTheFirst)
{
    using enum ZellArt;
    const struct
    {
        CErgebnisZelle erste, zweite;
        int order, absteigend;
    } cases[] = {
        {{text, L"a"}, {text, L"b"}, -1, 1},  {{text, L"a"}, {text, L"B"}, 1, -1},
        {{text, L""}, {text, L"a"}, 1, -1},   {{text, L""}, {text, L""}, 0, 0},
        {{andere, L""}, {andere, L""}, 1, 1}, {{andere, L"10"}, {andere, L"9"}, -1, 1},
        {{zahl, L"10"}, {zahl, L"9"}, 1, -1}, {{zahl, L"9.0"}, {zahl, L"9"}, 0, 0},
        {{zahl, L""}, {zahl, L"-1"}, 1, -1},  {{zahl, L"10"}, {text, L"9"}, 1, 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(VergleicheZellen(c.erste, c.zweite, false), c.order);
        EXPECT_EQ(VergleicheZellen(c.erste, c.zweite, true), c.absteigend);
    }
}

TEST_F(ErgebnisZeilenTest, OpensOnTheBestRowAndTakesTheUsersChoice)
{
    m_katalog.AddUnit(500.0, L"a");
    m_katalog.AddUnit(990.0, L"b");
    m_katalog.Add(L'E', 600.0, 22.5, 800.0, 1500.0, 0.0, 0.0, L"c");
    CTestDialog& dialog = Open();
    ASSERT_EQ(dialog.gitter.zeilen.size(), 3U);
    EXPECT_EQ(dialog.gitter.aktuell, 1);
    EXPECT_EQ(dialog.texte[18011], L"990");
    EXPECT_EQ(dialog.texte[18015], L"-1.0");
    EXPECT_FALSE(dialog.gitter.gestoert);
    EXPECT_EQ(dialog.gitter.anpassung, (std::vector{0, 8, 3, 60}));

    dialog.WaehleZeile(0);
    EXPECT_EQ(m_uebergabe.TypName, L"a");
    EXPECT_EQ(dialog.texte[18015], L"-50.0");
    dialog.WaehleZeile(2);
    EXPECT_EQ(dialog.texte[18011], L"1500");
    EXPECT_EQ(m_uebergabe.TypName, L"a") << "no whole millimetres, no choice";
    EXPECT_EQ(dialog.zeilen.AktuelleZeile(), 2);

    dialog.Tippe(18005, L"1400");
    EXPECT_EQ(dialog.zeilen.AktuelleZeile(), 2) << "a rebuild goes to the best row";
    EXPECT_EQ(m_uebergabe.TypName, L"c") << "which needs no whole millimetres";

    dialog.zeilen.ErgebnisEntfernen();
    EXPECT_EQ(dialog.zeilen.AnzahlZeilen(), 0);
    EXPECT_TRUE(dialog.gitter.zeilen.empty());
    EXPECT_EQ(dialog.texte[18011], L"1500");
}

TEST_F(ErgebnisZeilenTest, HeadingsSortDescendingFirst)
{
    m_katalog.AddUnit(990.0);
    CTestDialog& dialog = Open();
    for (const int spalte : {5, 5, 0, -1, 8}) {
        dialog.zeilen.UeberschriftGeklickt(spalte);
    }
    dialog.zeilen.ErgebnisEntfernen();
    dialog.zeilen.UeberschriftGeklickt(1);
    dialog.zeilen.ZeilenAufbauen(false);
    dialog.zeilen.UeberschriftGeklickt(1);
    EXPECT_EQ(dialog.gitter.sortiert,
              (std::vector<std::pair<int, bool>>{{5, false}, {5, true}, {0, false}, {1, false}}))
        << "a click on the empty grid turns nothing round";
}

TEST_F(ErgebnisZeilenTest, WithoutARowTheUserIsToldOnceAndTheRangeGrows)
{
    m_katalog.Add(L'E', 600.0, 300.0, 400.0, 900.0);
    m_uebergabe.LaengeMin = 500.0;
    m_uebergabe.LaengeMax = 1000.0;
    m_uebergabe.HoeheMin = m_uebergabe.HoeheMax = 600.0;
    m_uebergabe.TiefeMin = 22.5;
    m_uebergabe.TiefeMax = 100.0;
    const CMessageLog log;
    CTestDialog& dialog = Open(true);
    EXPECT_EQ(log.Texts(), std::vector<CString>{L"Nessun corpo scaldante con le\nmisure 1000 / "
                                                L"600\ntrovato.\nSelezionare un'altro!"});
    EXPECT_FALSE(dialog.kriterien.m_bWarnen);
    EXPECT_TRUE(dialog.kriterien.m_bTreffer);
    EXPECT_EQ(dialog.gitter.zeilen.size(), 1U);
    EXPECT_EQ(m_uebergabe.LaengeMin, 0.0);
    EXPECT_EQ(m_uebergabe.TiefeMin, 22.5);
    EXPECT_EQ(m_uebergabe.TiefeMax, 300.0);

    dialog.Tippe(18003, L"1");
    EXPECT_FALSE(dialog.kriterien.m_bTreffer);
    EXPECT_EQ(log.Texts().size(), 1U);
}

TEST_F(ErgebnisZeilenTest, NoRowAtAllShowsTheHeadingAsOutput)
{
    CTestDialog& dialog = Open();
    EXPECT_EQ(dialog.gitter.aktuell, -1);
    EXPECT_EQ(dialog.texte[18011], L"Resa\nC.S");
    EXPECT_EQ(dialog.texte[18015], L"-100.0");
    EXPECT_FALSE(dialog.kriterien.m_bTreffer);
    dialog.Tippe(18003, L"1");
    EXPECT_EQ(dialog.texte[18011], L"") << "a rebuild goes to row 0";
    const CMessageLog log;
    dialog.kriterien.m_bWarnen = true;
    dialog.Tippe(18003, L"2");
    EXPECT_EQ(dialog.texte[18011], L"Resa\nC.S") << "a widening without success does not";
}

} // namespace
