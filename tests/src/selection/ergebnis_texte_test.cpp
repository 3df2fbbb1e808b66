#include "selection/ergebnis_texte.h"

#include <gtest/gtest.h>

namespace {

TEST(ErgebnisTexteTest, CellsShowWholeMillimetresAndWattsAndOneDecimalOfLitres)
{
    EXPECT_EQ(ErgebnisText(0) + ErgebnisText(19) + SpaltenTitel(8) + SpaltenTooltip(-1), L"");
    HK_VDI3805_TYP row;
    row.Name = L"22";
    row.Daten.Hoehe = 600.5;
    row.Daten.Tiefe = 101.5;
    row.Daten.Laenge = 1000.0;
    row.Daten.LeistungEN442 = 1700.0;
    row.Daten.Leistung = 850.0;
    row.Daten.Inhalt = 6.25;
    const CString texte[] = {L"22", L"600", L"102", L"1000", L"1700", L"850", L"0", L"6.2"};
    for (int spalte = 0; spalte < kErgebnisSpalten; ++spalte) {
        CString text = L"?";
        ZellText(row, spalte, text);
        EXPECT_EQ(text, texte[spalte]);
        EXPECT_TRUE(HabenDenselbenWert(row, row, spalte));
    }
    HK_VDI3805_TYP other = row;
    other.Name = L"21";
    other.Daten.Elemente = -0.0;
    EXPECT_FALSE(HabenDenselbenWert(row, other, 0));
    EXPECT_FALSE(HabenDenselbenWert(row, other, 6)) << "shown as -0";
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

} // namespace
