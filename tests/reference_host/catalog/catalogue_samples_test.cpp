#include "platform/encoding.h"
#include "reference_host/prefs/host_settings.h"
#include "tests/reference_host/catalog/catalogue_fixture.h"
#include "tools/make_catalogues_samples.h"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

using namespace reference_host;

namespace {
/// The catalogues of the repository, all read for 1000 W.
class CCatalogueSamplesTest : public CCatalogueTest
{
protected:
    void SetUp() override
    {
        OverrideHostSetting(kSettingHKDir, WideFromUtf8(RADSEL_DATA_DIR "/catalogues"));
        for (auto* maker = ReadHKDaten(); maker; maker = maker->pNext) {
            ASSERT_GT(ReadVdiFile(maker->Name, &maker->pArt, 1000.0), 0)
                << testing::PrintToString(maker->Name);
        }
    }

    static std::vector<const HK_VDI3805_PRODUKT*> Products()
    {
        std::vector<const HK_VDI3805_PRODUKT*> products;
        for (auto* maker = ReadHKDaten(); maker; maker = maker->pNext) {
            for (auto* art = maker->pArt; art; art = art->pNext) {
                for (auto* produkt = art->pProdukt; produkt; produkt = produkt->pNext) {
                    products.push_back(produkt);
                }
            }
        }
        return products;
    }

    static HK_DATEN_VDI3805 RowOf(const CString& maker, const CString& art, const CString& produkt,
                                  double hoehe)
    {
        for (const HK_VDI3805_TYP* row : Rows(*Produkt(maker, art, produkt))) {
            if (row->Daten.Hoehe == hoehe) {
                return row->Daten;
            }
        }
        ADD_FAILURE() << "no row of this height";
        return {};
    }
};

double Watts(const HK_DATEN_VDI3805& daten)
{
    switch (daten.Bauart) {
    case L'M':
        return daten.LeistungEN442 * daten.Laenge / 1000.0;
    case L'S':
        return daten.LeistungEN442 * daten.Elemente;
    default:
        return daten.LeistungEN442;
    }
}

} // namespace

TEST_F(CCatalogueSamplesTest, TheFilesAreWhatTheGeneratorMakes)
{
    std::vector<CString> makers;
    for (const CSampleCatalogue& sample : MakeSampleCatalogues()) {
        makers.push_back(sample.strHersteller);
        std::ifstream file(RADSEL_DATA_DIR "/catalogues/" + Utf8FromWide(sample.strHersteller) +
                               "/hk.tga",
                           std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        EXPECT_TRUE(bytes == sample.strBytes) << Utf8FromWide(sample.strHersteller);
    }
    for (auto* maker = ReadHKDaten(); maker; maker = maker->pNext) {
        EXPECT_TRUE(std::ranges::count(makers, maker->Name)) << Utf8FromWide(maker->Name);
    }
}

TEST_F(CCatalogueSamplesTest, ThereIsEnoughToChooseFrom)
{
    std::size_t kinds = 0;
    for (auto* maker = ReadHKDaten(); maker; maker = maker->pNext) {
        for (auto* art = maker->pArt; art; art = art->pNext) {
            ++kinds;
        }
    }
    std::size_t rows = 0;
    std::size_t longest = 0;
    for (const HK_VDI3805_PRODUKT* produkt : Products()) {
        rows += Rows(*produkt).size();
        longest = std::max(longest, Rows(*produkt).size());
    }
    EXPECT_GE(kinds, 12u);
    EXPECT_GE(Products().size(), 40u);
    EXPECT_GE(rows, 4000u);
    // More than a filter pass takes.
    EXPECT_GT(longest, 2000u);
}

TEST_F(CCatalogueSamplesTest, PhysicalValuesAreBelievable)
{
    for (const HK_VDI3805_PRODUKT* produkt : Products()) {
        SCOPED_TRACE(Utf8FromWide(produkt->Name));
        for (const HK_VDI3805_TYP* row : Rows(*produkt)) {
            const HK_DATEN_VDI3805& daten = row->Daten;
            ASSERT_GE(daten.Exponent, 1.25);
            ASSERT_LE(daten.Exponent, 1.35);
            ASSERT_GT(Watts(daten), 20.0);
            // A body never holds more water than half its outer volume, in litres.
            const double volume = daten.Hoehe * daten.Tiefe * daten.Laenge / 1e6;
            ASSERT_GT(daten.Inhalt, 0.0);
            ASSERT_LT(daten.Inhalt, 0.5 * volume) << daten.Hoehe;
            if (daten.Bauart == L'E' && daten.Tiefe < 100) {
                ASSERT_GE(daten.LeistungEN442, 300.0);
                ASSERT_LE(daten.LeistungEN442, 1200.0);
            }
        }
    }
}

TEST_F(CCatalogueSamplesTest, OutputRisesWithHeightLessThanInProportion)
{
    // Outputs as stated, or of the shortest unit: the first row of each series, at equal depth.
    int compared = 0;
    for (const HK_VDI3805_PRODUKT* produkt : Products()) {
        SCOPED_TRACE(Utf8FromWide(produkt->Name));
        const HK_DATEN_VDI3805* before = &produkt->pTyp->Daten;
        for (const HK_VDI3805_TYP* row : Rows(*produkt)) {
            const HK_DATEN_VDI3805& daten = row->Daten;
            if (daten.Hoehe > before->Hoehe && daten.Tiefe == before->Tiefe) {
                const double gain = daten.LeistungEN442 / before->LeistungEN442;
                EXPECT_GT(gain, 1.0);
                EXPECT_LT(gain, daten.Hoehe / before->Hoehe);
                ++compared;
            }
            if (daten.Hoehe != before->Hoehe || daten.Tiefe != before->Tiefe) {
                before = &daten;
            }
        }
    }
    EXPECT_GT(compared, 100);
}

TEST_F(CCatalogueSamplesTest, WellKnownTypesGiveWhatSuchRadiatorsGive)
{
    const struct
    {
        const wchar_t* maker;
        const wchar_t* art;
        const wchar_t* produkt;
        double hoehe;
        double watts;
        double litres; // per metre or section
    } cases[] = {
        {L"Valmorena", L"Radiatori a piastra compatti", L"Tipo 10", 600, 600, 3.1},
        {L"Valmorena", L"Radiatori a piastra compatti", L"Tipo 11", 600, 1000, 3.1},
        {L"Valmorena", L"Radiatori a piastra compatti", L"Tipo 21", 600, 1300, 6.3},
        {L"Valmorena", L"Radiatori a piastra compatti", L"Tipo 22", 600, 1700, 6.3},
        {L"Valmorena", L"Radiatori a piastra compatti", L"Tipo 33", 600, 2400, 9.4},
        {L"Th\u00F6rlinger", L"R\u00F6hrenradiatoren", L"3-S\u00E4uler", 600, 65, 0.9},
        {L"Altovico", L"Radiatori in alluminio", L"Alpe 100", 580, 130, 0.4},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(Utf8FromWide(c.produkt));
        ASSERT_NE(Produkt(c.maker, c.art, c.produkt), nullptr);
        const HK_DATEN_VDI3805 daten = RowOf(c.maker, c.art, c.produkt, c.hoehe);
        EXPECT_NEAR(daten.LeistungEN442, c.watts, 0.03 * c.watts);
        const double parts = daten.Bauart == L'S' ? daten.Elemente : daten.Laenge / 1000.0;
        EXPECT_NEAR(daten.Inhalt / parts, c.litres, 0.03 * c.litres);
    }
}
