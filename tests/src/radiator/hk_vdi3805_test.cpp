#include "radiator/hk_vdi3805.h"

#include "reference_host/prefs/host_settings.h"
#include "tests/support/memory_catalogue.h"

#include <gtest/gtest.h>

#include <string>

using namespace reference_host;

namespace {

class FilterTest : public ::testing::Test
{
protected:
    /// Names of the rows found, one character each.
    static CString Names(const CHKVdi3805& katalog)
    {
        CString names;
        for (const auto* row = katalog.GetErgebnis(); row != nullptr; row = row->pNext) {
            names += row->Name;
        }
        return names;
    }

    /// Names of the rows that a pass with these modes takes.
    static CString Taken(HK_DATEN_VDI3805_UEBERGABE& uebergabe, int leistungFilter = 0,
                         int alle = 0)
    {
        CHKVdi3805 katalog(&uebergabe);
        katalog.SetLeistungFilter(leistungFilter);
        katalog.SetAlleAnzeigen(alle);
        katalog.Filtern();
        return Names(katalog);
    }

    CTempFolder m_folder;
    CMemoryCatalogue m_catalogue;
};

TEST_F(FilterTest, TheLongestRowOfASeriesThatEndsTooShortStays)
{
    // Series of 400-600, 400-1000-1600, 900-900 and 500-700.
    wchar_t name = L'a';
    for (const double length : {400.0, 600.0, 400.0, 1000.0, 1600.0, 900.0, 900.0, 500.0, 700.0}) {
        m_catalogue.Add(L'E', 600, 100, length, 1000, 0, 0, CString(1, name++));
    }
    auto uebergabe = m_catalogue.Uebergabe(1000);
    uebergabe.LaengeMin = 1000.0;
    uebergabe.LaengeMax = 1200.0;
    // b and g end their series below the range; f is followed by an equal length, e is too long
    // whatever follows, and i as the product's last row gets no second chance.
    EXPECT_EQ(Taken(uebergabe), L"bdg");
    uebergabe.LaengeMin = 500.0;
    uebergabe.LaengeMax = 600.0;
    EXPECT_EQ(Taken(uebergabe), L"bh") << "both ends of the range belong to it";
    uebergabe.LaengeMin = 2000.0;
    uebergabe.LaengeMax = 600.0;
    EXPECT_EQ(Taken(uebergabe), L"") << "a length equal to the upper end is not below it";
}

TEST_F(FilterTest, ARequirementOfZeroBecomesAThousandWatts)
{
    m_catalogue.AddUnit(1000, L"a");
    for (const int filter : {0, 1}) {
        auto uebergabe = m_catalogue.Uebergabe(0.0);
        CHKVdi3805 katalog(&uebergabe);
        katalog.SetLeistungFilter(filter);
        EXPECT_EQ(uebergabe.Leistung, 1000.0);
        // The bounds were derived from the 0 that the host gave, and stay there.
        katalog.Filtern();
        EXPECT_EQ(Names(katalog), filter == 0 ? L"a" : L"");
    }
    auto untouched = m_catalogue.Uebergabe(0.0);
    CHKVdi3805 katalog(&untouched);
    katalog.Filtern();
    EXPECT_EQ(untouched.Leistung, 0.0);
}

TEST_F(FilterTest, AfterTheFirstRefreshTheBandFollowsTheRequirement)
{
    m_catalogue.AddUnit(950, L"a");
    m_catalogue.AddUnit(1950, L"b");
    auto uebergabe = m_catalogue.Uebergabe(1000);
    uebergabe.LeistungMin = 0.0;
    uebergabe.Toleranz = 0.5;
    CHKVdi3805 katalog(&uebergabe);
    katalog.SetErsterLauf(false);
    katalog.Filtern();
    EXPECT_EQ(Names(katalog), L"a");
    uebergabe.Leistung = 2000;
    katalog.Filtern();
    EXPECT_EQ(Names(katalog), L"b") << "no row of the earlier pass survives";
    EXPECT_EQ(uebergabe.Toleranz, 0.1);
    EXPECT_DOUBLE_EQ(uebergabe.LeistungMin, 1800.0);
    EXPECT_DOUBLE_EQ(uebergabe.LeistungMax, 2200.0);
}

TEST_F(FilterTest, TheListEndsAtTwoThousandRowsAndTheSizesDoNot)
{
    for (int i = 0; i < 2001; ++i) {
        m_catalogue.AddUnit(1000 + i, L"a");
    }
    m_catalogue.Produkt().Hoehen.Add(300.0);
    m_catalogue.Produkt().Tiefen.Add(61.0);
    m_catalogue.Produkt().Tiefen.Add(102.0);
    auto uebergabe = m_catalogue.Uebergabe(1000);
    CHKVdi3805 katalog(&uebergabe);
    for (const int alle : {0, 1}) {
        katalog.SetLeistungFilter(0);
        katalog.SetAlleAnzeigen(alle);
        katalog.Filtern();
        EXPECT_EQ(Names(katalog).size(), 2000U);
        EXPECT_EQ(katalog.GetHoehen().GetSize(), 1);
        EXPECT_EQ(katalog.GetTiefen().GetSize(), 2) << "replaced, not appended to";
    }
    katalog.SetAlleAnzeigen(0);
    uebergabe.HoeheMax = 1.0;
    katalog.Filtern();
    EXPECT_EQ(katalog.GetErgebnis(), nullptr);
    EXPECT_EQ(katalog.GetTiefen().GetSize(), 2) << "those of the product even if no row passes";
    uebergabe.Produkt = L"un altro";
    katalog.Filtern();
    EXPECT_EQ(katalog.GetErgebnis(), nullptr);
    EXPECT_TRUE(katalog.GetHoehen().IsEmpty());
    EXPECT_TRUE(katalog.GetTiefen().IsEmpty());
}

TEST_F(FilterTest, UnknownPositionsGiveAnEmptyResultInSilence)
{
    m_catalogue.AddUnit(1000);
    for (CString HK_DATEN_VDI3805_UEBERGABE::*level :
         {&HK_DATEN_VDI3805_UEBERGABE::Hersteller, &HK_DATEN_VDI3805_UEBERGABE::Art,
          &HK_DATEN_VDI3805_UEBERGABE::Produkt}) {
        auto uebergabe = m_catalogue.Uebergabe(1000);
        uebergabe.*level = L"nessuno";
        EXPECT_EQ(Taken(uebergabe), L"");
    }
}

TEST_F(FilterTest, TheFileIsReadWhenUnreadOrWhenAskedForAndOnlyThen)
{
    const auto write = [this](const char* output) {
        m_folder.WriteBytes("Marca/hk.tga", std::string("010;2020-01-01;Marca;2026-01-01;\n"
                                                        "100;1;Genere;\n110;1;Prodotto;\n"
                                                        "700;1;Tipo;E;600;100;") +
                                                output + ";1.3;5;\n710.01;1;1000;\n");
    };
    const CSettingOverride setting(kSettingHKDir, m_folder.Path());
    write("900");
    auto uebergabe = m_catalogue.Uebergabe(1000);
    uebergabe.Hersteller = L"Marca";
    CHKVdi3805 katalog(&uebergabe);
    katalog.SetLeistungFilter(0);
    const auto output = [&] {
        katalog.Filtern();
        return katalog.GetErgebnis() != nullptr ? katalog.GetErgebnis()->Daten.LeistungEN442 : -1.0;
    };
    EXPECT_EQ(output(), 900.0);
    write("1200");
    EXPECT_EQ(output(), 900.0) << "read once";
    uebergabe.NeuLesen = 2;
    uebergabe.Hersteller = L"nessuno";
    EXPECT_EQ(output(), -1.0);
    EXPECT_EQ(uebergabe.NeuLesen, 2) << "still to be done";
    uebergabe.Hersteller = L"Marca";
    EXPECT_EQ(output(), 1200.0);
    EXPECT_EQ(uebergabe.NeuLesen, 0);
}

TEST_F(FilterTest, RowsBuiltToMeasureAreMadeForTheStandardOutput)
{
    const CSettingOverride setting(kSettingHKDir, m_folder.Path());
    m_folder.WriteBytes("Marca/hk.tga", "010;2020-01-01;Marca;2026-01-01;\n100;1;Genere;\n"
                                        "110;1;Prodotto;\n700;1;G;S;600;100;65;1.3;0.9;\n"
                                        "710.03;45;200;\n");
    auto uebergabe = m_catalogue.Uebergabe(1000);
    uebergabe.Hersteller = L"Marca";
    uebergabe.NeuLesen = 1;
    uebergabe.Vorlauf = 55.0;
    uebergabe.Ruecklauf = 45.0;
    CHKVdi3805 katalog(&uebergabe);
    katalog.SetLeistungFilter(0);
    katalog.Filtern();
    EXPECT_EQ(uebergabe.NeuLesen, 0) << "cleared by the first reading too";
    // 1000 W / 0.495 are 2020 W at standard conditions: 31 sections of 65 W, which give
    // 2015 * 0.495 = 997 W. Made for 1000 W the rows would end at 24 sections.
    EXPECT_EQ(katalog.BesteAuswahlMinLeistung(&uebergabe) >= 0, true);
    EXPECT_EQ(uebergabe.Daten.Elemente, 31.0);
    EXPECT_EQ(uebergabe.Daten.Bauart, L'S');
}

} // namespace
