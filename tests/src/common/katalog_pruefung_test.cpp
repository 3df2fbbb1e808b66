#include "common/katalog_pruefung.h"

#include <gtest/gtest.h>

#include <deque>
#include <limits>
#include <string>

namespace {

struct CRow
{
    wchar_t bauart;
    double hoehe, tiefe, laenge, leistung;
    double elemente = 0.0;
    double inhalt = 1.0;
    const wchar_t* name = L"T";
};

/// The faults as "row rule", the product as -1.
std::string Faults(const std::vector<CRow>& rows, const std::vector<double>& hoehen,
                   const std::vector<double>& tiefen = {100.0})
{
    HK_VDI3805_PRODUKT produkt;
    std::deque<HK_VDI3805_TYP> chain;
    for (const CRow& row : rows) {
        HK_VDI3805_TYP& typ = chain.emplace_back();
        typ.Name = row.name;
        typ.Daten.Bauart = row.bauart;
        typ.Daten.Hoehe = row.hoehe;
        typ.Daten.Tiefe = row.tiefe;
        typ.Daten.Laenge = row.laenge;
        typ.Daten.LeistungEN442 = row.leistung;
        typ.Daten.Elemente = row.elemente;
        typ.Daten.Inhalt = row.inhalt;
        (chain.size() == 1 ? produkt.pTyp : chain[chain.size() - 2].pNext) = &typ;
    }
    for (const double hoehe : hoehen) {
        produkt.Hoehen.Add(hoehe);
    }
    for (const double tiefe : tiefen) {
        produkt.Tiefen.Add(tiefe);
    }
    const char* const names[] = {"endlos",   "anzahl",      "liste",   "wert",
                                 "ganzzahl", "reihenfolge", "doppelt", "unerreichbar"};
    std::string text;
    for (const CKatalogMangel& mangel : PruefeProdukt(produkt)) {
        EXPECT_FALSE(mangel.strText.empty());
        text += std::to_string(mangel.nRow) + " " + names[static_cast<int>(mangel.regel)] + "; ";
    }
    return text;
}

TEST(KatalogPruefung, WhatTheModuleStumblesOverIsFoundAndNothingElse)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const struct
    {
        const char* what;
        std::vector<CRow> rows;
        std::vector<double> hoehen;
        const char* faults;
    } cases[] = {
        {"two series, the second beginning shorter",
         {{'M', 300, 100, 400, 900}, {'M', 300, 100, 600, 900}, {'M', 600, 100, 400, 1700}},
         {300, 600},
         ""},
        {"two series of the same sizes, left and right",
         {{'M', 300, 100, 400, 900},
          {'M', 300, 100, 600, 900},
          {'M', 300, 100, 400, 900, 0, 1, L"R"},
          {'M', 300, 100, 600, 900, 0, 1, L"R"}},
         {300},
         ""},
        {"lengths that fall within a series",
         {{'M', 300, 100, 400, 900}, {'M', 300, 100, 800, 900}, {'M', 300, 100, 600, 900}},
         {300},
         "2 reihenfolge; "},
        {"lengths that fall throughout",
         {{'E', 300, 100, 800, 900}, {'E', 300, 100, 600, 700}, {'E', 300, 100, 400, 500}},
         {300},
         "1 reihenfolge; 2 reihenfolge; "},
        {"a series that begins where the one before ends",
         {{'E', 300, 100, 600, 900}, {'E', 500, 100, 600, 900}},
         {300, 500},
         "1 reihenfolge; "},
        {"lists out of order, with a duplicate, with a gap and with too much",
         {{'E', 300, 100, 600, 900}, {'E', 500, 100, 500, 900}},
         {900, 500, 500},
         "-1 liste; -1 liste; -1 liste; -1 liste; "},
        {"the same row twice, and the same measures with another content",
         {{'E', 300, 100, 600, 900},
          {'E', 300, 100, 600, 900},
          {'E', 300, 100, 600, 900, 0, 2, L"U"}},
         {300},
         "1 doppelt; 2 doppelt; "},
        {"values without sense",
         {{'M', 300, 100, -1, 900},
          {'M', 300, 100, nan, 900},
          {'E', 300, 100, 600, 0.4},
          {'E', 300, 100, 700, 900, 0, 0}},
         {300},
         "0 wert; 0 wert; 1 wert; 1 wert; 2 wert; 3 wert; "},
        {"measures that are no whole millimetres or too long, each value once",
         {{'M', 300.5, 100, 400, 900}, {'M', 300.5, 100, 40000, 900}},
         {300.5},
         "0 ganzzahl; 1 ganzzahl; "},
        {"sections", {{'S', 300, 100, 45, 90, 1}, {'s', 300, 100, 90, 90, 2.5}}, {300}, "1 wert; "},
        {"single sections only", {{'S', 300, 100, 45, 90, 1}}, {300}, "-1 unerreichbar; "},
        {"no rows", {}, {}, "-1 anzahl; -1 liste; "},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Faults(c.rows, c.hoehen), c.faults) << c.what;
    }
}

TEST(KatalogPruefung, AChainThatLeadsBackIsToldOnceAndEnds)
{
    HK_VDI3805_TYP row;
    row.pNext = &row;
    HK_VDI3805_PRODUKT produkt;
    produkt.pTyp = &row;
    EXPECT_EQ(PruefeProdukt(produkt).front().regel, KatalogRegel::endlos);
}

} // namespace
