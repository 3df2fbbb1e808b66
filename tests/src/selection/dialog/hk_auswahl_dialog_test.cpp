// The radiator selection as its callers open it, in the hands of a user.

#include "host/host_prefs.h"
#include "tests/src/selection/dialog/auswahl_fixture.h"
#include "tests/support/memory_catalogue.h"

#include <QAbstractButton>

using namespace reference_host;

namespace {

TEST_F(CAuswahlDialogTest, OpensOnTheHandOver)
{
    const CSettingOverride letzter(kSettingHKBlock, L"ze");
    Raum(3000.0, 0.0);
    m_uebergabe.LeistungMin = 999.0;
    ExpectResult(0, [&](CDialogUser& user) {
        EXPECT_EQ(user.Text(18109), GetHKDir(false));
        EXPECT_EQ(user.ChosenInTree(kBaum),
                  (Texte{L"Valmorena", L"Radiatori a piastra compatti", L"Tipo 22"}));
        EXPECT_EQ(user.Texts({18002, 18003, 18005, 18012, 18048, 18107}),
                  (Texte{L"400", L"3000", L"1500", L"3000", L"PT.Cucina", L"20"}));
        EXPECT_EQ(m_uebergabe.Raumtemperatur, 20.5) << "showing does not round it";
        EXPECT_EQ(user.Texts({7007, 7008, 7009}), (Texte{L"", L"75.4", L"65.2"}));
        EXPECT_FALSE(user.IsChecked(18017) || user.IsChecked(18047));
        EXPECT_EQ(user.Items(18004), user.Items(18008));
        EXPECT_EQ(user.Texts({18004, 18008}), (Texte{L"300", L"600"}));
        EXPECT_TRUE(user.IsEnabled(18005) && user.IsEnabled(18011));
        EXPECT_TRUE(Verbietet(user, {250, 3187, 18016}));
        EXPECT_FALSE(user.Widget(3232).isVisible());
        EXPECT_FALSE(user.Widget(18018).isVisible());

        EXPECT_EQ(user.Text(3187), L"HEIZ_PT");
        EXPECT_EQ(user.Chosen(3187), 1) << "the entry that begins so";
        EXPECT_EQ(user.Items(3187), (Texte{L"0", L"HEIZ_PT_2", L"MURI"}));
        EXPECT_EQ(user.Items(18080), (Texte{L"ABCD", L"ZETA"}));
        EXPECT_EQ(user.Chosen(18080), 1) << "the last one, by its beginning";

        EXPECT_GT(GitterZeilen(user).size(), 20U);
        EXPECT_GE(Gitter(user).columnWidth(1), 60);
        user.Click(kIdOk);
    });
    EXPECT_EQ(m_uebergabe.Leistung, m_uebergabe.Daten.Leistung) << "the chosen radiator's";
}

TEST_F(CAuswahlDialogTest, StoringAndDeletingHaveTheirOwnIcons)
{
    Zeige([](CDialogUser& user) {
        for (const auto& [id, nummer] : {std::pair(268, 35), {269, 36}}) {
            const auto& knopf = dynamic_cast<QAbstractButton&>(user.Widget(id));
            const QImage icon = ToNative(CImageLoader().LoadLumoIcon(nummer, 16, 16));
            EXPECT_EQ(knopf.icon().pixmap(16).toImage(), QPixmap::fromImage(icon).toImage()) << id;
        }
    });
}

TEST_F(CAuswahlDialogTest, WithoutDrawingOrProductTheDialogStillWorks)
{
    m_pDrawer = nullptr;
    m_uebergabe.Hersteller = L"Nessuno";
    ExpectResult(-1, [&](CDialogUser& user) {
        EXPECT_TRUE(user.Items(3187).empty());
        EXPECT_TRUE(user.Items(18080).empty());
        EXPECT_TRUE(GitterZeilen(user).empty());
        EXPECT_EQ(m_uebergabe.NeuLesen, 0) << "the wish of before";
        const auto timer = [&] { return user.Text(18011) == L"Resa\nC.S"; };
        EXPECT_TRUE(QTest::qWaitFor(timer)) << "row -1, the heading";
        EXPECT_EQ(user.Text(18015), L"-100.0");
        user.Click(3144);
        user.Type(18003, L"2000");
        EXPECT_EQ(m_uebergabe.HoeheMin, 300.0) << "empty lists leave the limits";
        EXPECT_EQ(m_uebergabe.TiefeMax, 500.0);
        constexpr int kZweiTakte = 200;
        EXPECT_FALSE(QTest::qWaitFor(timer, kZweiTakte)) << "the timer ticks once";
        user.Click(18017);
        user.Click(kIdOk);
    });
    // Before any row was looked for again.
    ExpectResult(-1, [](CDialogUser& user) { user.Click(kIdOk); });
    EXPECT_EQ(m_layer, L"HEIZ_$d__");
    EXPECT_EQ(m_farbe, 5);
}

/// Boxes of two heights and three depths, one of each.
class CMassTest : public CAuswahlDialogTest
{
protected:
    CMassTest()
    {
        for (const double hoehe : {300.0, 600.0}) {
            m_katalog.Produkt().Hoehen.Add(hoehe);
            for (const double tiefe : {60.0, 100.0, 160.0}) {
                m_katalog.Add(L'E', hoehe, tiefe, 1000.0, 1000.0);
            }
        }
        for (const double tiefe : {60.0, 100.0, 160.0}) {
            m_katalog.Produkt().Tiefen.Add(tiefe);
        }
        m_uebergabe = m_katalog.Uebergabe(1000.0);
    }

    CMemoryCatalogue m_katalog;
};

TEST_F(CMassTest, TheListsShowTheLimitsOrTheWholeRange)
{
    const struct
    {
        double min, max;
        CString von, bis;
        std::size_t zeilen;
    } cases[] = {
        {60.0, 100.0, L"60", L"100", 4},
        {100.0, 100.0, L"100", L"100", 2},
        // The bounds change, the rows not yet, unless there is none.
        {61.0, 100.0, L"60", L"160", 2},
        {100.0, 200.0, L"60", L"160", 4},
        {6.0, 16.0, L"60", L"160", 6},
    };
    for (const auto& c : cases) {
        m_uebergabe.TiefeMin = c.min;
        m_uebergabe.TiefeMax = c.max;
        Zeige([&](CDialogUser& user) {
            EXPECT_EQ(user.Text(18009) + L" " + user.Text(18010), c.von + L" " + c.bis)
                << c.min << ' ' << c.max;
            EXPECT_EQ(GitterZeilen(user).size(), c.zeilen) << c.min << ' ' << c.max;
        });
        EXPECT_EQ(m_uebergabe.TiefeMax, std::stod(c.bis)) << "as the lists have it, Cancel or not";
    }
}

TEST_F(CAuswahlDialogTest, NumbersShowPlainAndKeepWhatTheirTextCannotHold)
{
    Raum(100000.0, 0.0);
    m_uebergabe.Vorlauf = 75.0 + 1.0 / 3.0;
    Oeffne([](CDialogUser& user) {
        EXPECT_EQ(user.Text(18012), L"100000");
        EXPECT_EQ(user.Text(7008), L"75.3333333333333");
        user.Type(18003, L"2000");
        user.Click(kIdOk);
    });
    EXPECT_EQ(m_uebergabe.Vorlauf, 75.0 + 1.0 / 3.0);
}

} // namespace
