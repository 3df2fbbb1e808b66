#include "tests/src/valve/ventil_fixture.h"
#include "tests/support/message_log.h"
#include "valve/ventil_abruf.h"
#include "valve/ventil_bewertung.h"
#include "valve/ventil_texte.h"

#include <algorithm>
#include <functional>
#include <set>

using namespace reference_host;

namespace {

/// The valve files of the repository.
class CVentilSamplesTest : public testing::Test
{
protected:
    template <class Take>
    void ForEachArticle(Take take)
    {
        for (const wchar_t* const maker : {L"Fontespada", L"Möhrental", L"Ostervliet"}) {
            SCOPED_TRACE(maker);
            CVentVdiKatalog katalog;
            ASSERT_TRUE(katalog.LadeHersteller(maker));
            ForEachArtikel(katalog, [&](const auto& gruppe, const auto& artikel) {
                SCOPED_TRACE(Utf8FromWide(artikel.BestellNr));
                take(maker, gruppe, artikel);
            });
        }
    }

private:
    CSettingOverride m_setting{kSettingVEDir, WideFromUtf8(RADSEL_DATA_DIR "/valves")};
};

bool Between(double value, double low, double high)
{
    return value >= low && value <= high;
}

/// True if each of the first values is above the next.
bool Falls(const VDI3805_VENTIL_KV::Table& table, int count)
{
    return std::is_sorted(table.begin(), table.begin() + count, std::greater_equal<>());
}

void ExpectBelievable(const VDI3805_VENTIL_KV& ventil)
{
    EXPECT_TRUE(Between(ventil.AnzahlKv, 1, 50)) << ventil.AnzahlKv;
    EXPECT_TRUE(Between(ventil.DN, 10, 25)) << ventil.DN;
    EXPECT_TRUE(Between(ventil.Kvs, 0.2, 3.0)) << ventil.Kvs;
    EXPECT_TRUE(Between(ventil.DruckMax, 100, 2000));
    EXPECT_TRUE(ventil.Einstellbar == 1 || ventil.AnzahlKv == 1);
    EXPECT_NE(VentilArtText(ventil.VentilArt), L"");
    EXPECT_TRUE(Falls(ventil.KvsTab, ventil.AnzahlKv));
    EXPECT_TRUE(Falls(ventil.Kv, ventil.AnzahlKv));
    EXPECT_TRUE(Falls(ventil.Einstellung, ventil.AnzahlKv));
    for (std::size_t i = 0; i < static_cast<std::size_t>(ventil.AnzahlKv); ++i) {
        EXPECT_EQ(ventil.Xp[i], 2.0F);
        EXPECT_TRUE(Between(ventil.Kv[i], 0.01, 3.0)) << ventil.Kv[i];
        EXPECT_TRUE(Between(ventil.KvsTab[i], ventil.Kv[i], ventil.Kvs + 0.0005F));
        EXPECT_EQ(ventil.AnteilHK[i] > 0.0F, ventil.VentilTyp == 1);
        EXPECT_TRUE(Between(ventil.AnteilHK[i], 0, 60));
    }
}

} // namespace

TEST_F(CVentilSamplesTest, EveryArticleIsFoundByItsKeyAndHasABelievableTable)
{
    const CMessageLog messages;
    int articles = 0;
    int bypasses = 0;
    std::set<int> counts;
    ForEachArticle([&](const CString& maker, const auto&, const VENT_VDI3805_ARTIKEL& artikel) {
        ASSERT_EQ(artikel.TgaNr.size(), 36U);
        VDI3805_VENTIL_KV ventil;
        CVentVdiKatalog katalog;
        ASSERT_TRUE(katalog.SucheVentil(maker, artikel.TgaNr, ventil));
        EXPECT_EQ(ventil.Bezeichnung, artikel.BestellNr) << "another article has the same number";
        ExpectBelievable(ventil);
        ++articles;
        bypasses += ventil.VentilTyp == 1 ? 1 : 0;
        counts.insert(ventil.AnzahlKv);
    });
    EXPECT_GE(articles, 300);
    EXPECT_GE(bypasses, 10);
    EXPECT_GE(counts.size(), 8U) << "tables of many lengths";
    EXPECT_EQ(messages.Texts(), std::vector<CString>{L"MAXKV"}) << "one article is too long";
}

TEST_F(CVentilSamplesTest, EveryArticleHasItsTexts)
{
    ForEachArticle(
        [](const CString&, const VENT_VDI3805_GRUPPE& gruppe, const VENT_VDI3805_ARTIKEL& artikel) {
            const VentilTexte texte = SucheTexte(gruppe, artikel);
            for (const CString& text : {texte.Antrieb, texte.Bauform, texte.Werkstoff}) {
                EXPECT_NE(text, L"...");
                EXPECT_GT(text.find(L';'), 3U) << Utf8FromWide(text);
            }
            const CString form = texte.Bauform.substr(0, texte.Bauform.find(L';'));
            EXPECT_NE(artikel.Bezeichnung.find(L", " + form + L", "), CString::npos);
        });
}

/// The tree of the dialog shows about that much of an article's name.
TEST_F(CVentilSamplesTest, TheBeginningOfItsNameTellsAnArticleFromTheOthersOfItsGroup)
{
    constexpr std::size_t kShown = 20;
    std::set<std::pair<CString, CString>> beginnings;
    ForEachArticle([&](const CString& maker, const VENT_VDI3805_GRUPPE& gruppe,
                       const VENT_VDI3805_ARTIKEL& artikel) {
        const CString beginning = artikel.Bezeichnung.substr(0, kShown);
        EXPECT_TRUE(beginnings.emplace(maker + gruppe.Name, beginning).second)
            << Utf8FromWide(artikel.Bezeichnung);
    });
}
