#include "platform/encoding.h"
#include "reference_host/prefs/host_settings.h"
#include "tests/reference_host/catalog/catalogue_fixture.h"

#include <algorithm>
#include <cstddef>
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

TEST_F(CCatalogueSamplesTest, ThereIsEnoughToChooseFromAndAllOfItIsBelievable)
{
    std::size_t rows = 0;
    std::size_t longest = 0;
    int compared = 0;
    for (const HK_VDI3805_PRODUKT* produkt : Products()) {
        SCOPED_TRACE(Utf8FromWide(produkt->Name));
        // Outputs as stated, or of the shortest unit: the first row of each series, at equal depth.
        const HK_DATEN_VDI3805* before = &produkt->pTyp->Daten;
        rows += Rows(*produkt).size();
        longest = std::max(longest, Rows(*produkt).size());
        for (const HK_VDI3805_TYP* row : Rows(*produkt)) {
            const HK_DATEN_VDI3805& daten = row->Daten;
            ASSERT_TRUE(daten.Exponent >= 1.25 && daten.Exponent <= 1.35) << daten.Exponent;
            ASSERT_GT(Watts(daten), 20.0);
            // A body never holds more water than half its outer volume, in litres.
            const double volume = daten.Hoehe * daten.Tiefe * daten.Laenge / 1e6;
            ASSERT_TRUE(daten.Inhalt > 0.0 && daten.Inhalt < 0.5 * volume) << daten.Inhalt;
            if (daten.Hoehe > before->Hoehe && daten.Tiefe == before->Tiefe) {
                const double gain = daten.LeistungEN442 / before->LeistungEN442;
                EXPECT_TRUE(gain > 1.0 && gain < daten.Hoehe / before->Hoehe) << gain;
                ++compared;
            }
            if (daten.Hoehe != before->Hoehe || daten.Tiefe != before->Tiefe) {
                before = &daten;
            }
        }
    }
    EXPECT_GT(compared, 100);
    EXPECT_GE(Products().size(), 40u);
    EXPECT_GE(rows, 4000u);
    EXPECT_GT(longest, 2000u) << "more than a filter pass takes";
}
