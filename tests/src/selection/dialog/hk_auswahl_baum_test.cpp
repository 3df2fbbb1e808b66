// The catalogue tree of the selection dialog.

#include "tests/src/selection/dialog/auswahl_fixture.h"

using namespace reference_host;

namespace {

TEST_F(CAuswahlDialogTest, AProductOfTheTreeGoesToTheHandOverAndFillsTheLists)
{
    Zeige([&](CDialogUser& user) {
        const CString maker = Baum(user).topLevelItem(0)->text(0).toStdWString();
        const CString art = L"Radiatori tubolari in acciaio";
        user.ChooseInTree(18000, {maker, art, L"3 colonne"});
        EXPECT_EQ(m_uebergabe.Hersteller + L"|" + m_uebergabe.Art + L"|" + m_uebergabe.Produkt,
                  maker + L"|" + art + L"|3 colonne");
        EXPECT_FALSE(GitterZeilen(user).empty());
        const auto* produkt = FindProdukt(FindArt(FindHersteller(maker), art), L"3 colonne");
        const Texte hoehen = user.Items(18004);
        EXPECT_EQ(static_cast<int>(hoehen.size()), produkt->Hoehen.GetSize())
            << "those of the former product are gone";
        EXPECT_TRUE(std::ranges::is_sorted(hoehen, {},
                                           [](const CString& text) { return std::stoi(text); }));
        EXPECT_EQ(hoehen, user.Items(18008));
    });
}

TEST_F(CAuswahlDialogTest, AFolderTakesTheRowsAwayAndNothingElse)
{
    for (const bool tippen : {false, true}) {
        ExpectResult(0, [&](CDialogUser& user) {
            const auto rows = GitterZeilen(user);
            KlickeZeile(user, 2);
            const CString leistung = user.Text(18011);
            user.ChooseInTree(kBaum, {L"Valmorena"});
            EXPECT_TRUE(GitterZeilen(user).empty());
            EXPECT_EQ(user.Text(18011), leistung);
            if (tippen) {
                user.Type(18003, L"3001");
                EXPECT_EQ(GitterZeilen(user), rows);
                KlickeZeile(user, 2);
            }
            user.Click(kIdOk);
        });
        EXPECT_EQ(m_uebergabe.Produkt, L"Tipo 22");
        EXPECT_EQ(m_uebergabe.Leistung, m_uebergabe.Daten.Leistung) << "the former radiator";
    }
}

/// The selection over a maker of the test's own.
class CEigenerKatalogTest : public CAuswahlDialogTest
{
protected:
    CEigenerKatalogTest()
    {
        SchreibeAlfa();
        m_uebergabe.Hersteller = L"Alfa";
        m_uebergabe.Art = L"Piastre";
    }

    void SchreibeAlfa() const
    {
        m_maker.WriteBytes("Alfa/hk.tga",
                           "010;2004;Alfa;2024\n"
                           "100;1;Piastre\n"
                           "110;1;Tipo 22\n700;1;P;E;600;100;1000;1.3;5\n710.01;1;1000\n"
                           "100;2;Bagno\n"
                           "110;1;Comune\n700;1;B;E;1200;40;600;1.3;5\n710.01;1;500\n");
    }

    CTempFolder m_maker;
    CSettingOverride m_eigene{kSettingHKDir, m_maker.Path()};
};

TEST_F(CEigenerKatalogTest, AMakerWhoseFileFailsOnTheNextReadingKeepsItsItems)
{
    for (const bool wiederDa : {false, true}) {
        Zeige([&](CDialogUser& user) {
            QTreeWidgetItem& alfa = *Baum(user).topLevelItem(0);
            const Texte vorher = user.TreeLines(kBaum);
            std::filesystem::remove(m_maker.Root() / "Alfa/hk.tga");
            user.Click(18017);
            ASSERT_EQ(FindHersteller(L"Alfa")->pArt, nullptr) << "the click read the file again";
            if (wiederDa) {
                SchreibeAlfa();
            }
            alfa.setExpanded(false);
            QTest::mouseDClick(Baum(user).viewport(), Qt::LeftButton, {},
                               Baum(user).visualItemRect(&alfa).center());
            EXPECT_TRUE(alfa.isExpanded());
            EXPECT_EQ(user.TreeLines(kBaum), vorher);
            EXPECT_EQ(user.ChosenInTree(kBaum), (Texte{L"Alfa", L"Piastre", L"Tipo 22"}));
        });
        EXPECT_EQ(m_uebergabe.Produkt, L"Tipo 22") << "nothing was selected on the way";
        SchreibeAlfa();
    }
}

} // namespace
