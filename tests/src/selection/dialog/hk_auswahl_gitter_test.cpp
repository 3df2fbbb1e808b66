// The result grid of the selection dialog under mouse and keys.

#include "frame/vdi6030_start.h"
#include "host/host_prefs.h"
#include "tests/dialog_support/widget_look.h"
#include "tests/src/selection/dialog/auswahl_fixture.h"
#include "tests/support/memory_catalogue.h"

#include <QPixmap>

namespace {

TEST_F(CAuswahlDialogTest, TheGridChoosesConfirmsAndCloses)
{
    EXPECT_EQ(Oeffne([&](CDialogUser& user) {
                  const Zeile dritte = GitterZeilen(user)[2];
                  KlickeZeile(user, 2);
                  EXPECT_EQ(user.Text(18011), dritte[5]);
                  EXPECT_EQ(m_uebergabe.TypName, dritte[0]);
                  QTest::keyClick(&Gitter(user), Qt::Key_Down);
                  EXPECT_EQ(user.Text(18011), GitterZeilen(user)[3][5]);

                  KlickeKopf(user, 5);
                  const auto rows = GitterZeilen(user);
                  EXPECT_GE(std::stoi(rows.front()[5]), std::stoi(rows.back()[5]));
                  EXPECT_NE(m_uebergabe.TypName, rows[3][0]) << "the choice stays";

                  user.Type(18003, L"500");
                  QWidget* view = Gitter(user).viewport();
                  QTest::mouseDClick(Gitter(user).horizontalHeader()->viewport(), Qt::LeftButton,
                                     {}, {20, 10});
                  QTest::mouseDClick(view, Qt::LeftButton, {}, {20, view->height() - 3});
                  EXPECT_FALSE(user.Dialog().HasEnded());
                  QTest::mouseDClick(view, Qt::LeftButton, {}, MitteDerZeile(user, 1));
              }),
              0);
    EXPECT_EQ(m_uebergabe.Daten.Laenge, 500.0);
    const auto* const start = ReadDefFile_VDI6030START(false);
    ASSERT_NE(start, nullptr);
    EXPECT_EQ(start->Produkt, L"Tipo 22");

    EXPECT_EQ(Oeffne([&](CDialogUser& user) {
                  Gitter(user).setFocus();
                  QTest::keyClick(&Gitter(user), Qt::Key_Escape);
              }),
              -2);
}

TEST_F(CAuswahlDialogTest, RoundedRowsCannotBeChosenByAClick)
{
    CMemoryCatalogue katalog;
    katalog.Add(L'E', 600.0, 22.5, 800.0, 1000.0, 0.0, 0.0, L"mezzo");
    katalog.AddUnit(500.0, L"intero");
    m_uebergabe = katalog.Uebergabe(1000.0);
    EXPECT_EQ(Oeffne([&](CDialogUser& user) {
                  EXPECT_EQ(m_uebergabe.TypName, L"mezzo");
                  KlickeZeile(user, 1);
                  EXPECT_EQ(m_uebergabe.TypName, L"intero");
                  KlickeZeile(user, 0);
                  EXPECT_EQ(user.Text(18011), L"1000");
                  EXPECT_EQ(m_uebergabe.TypName, L"intero");
                  user.Click(kIdOk);
              }),
              0);
    EXPECT_EQ(m_uebergabe.Leistung, 1000.0);
}

TEST_F(CAuswahlDialogTest, AfterASortTheRowThatIsPickedIsTheOneThatReturns)
{
    CMemoryCatalogue katalog;
    for (const auto& [leistung, name] :
         {std::pair(500.0, L"a"), {990.0, L"b"}, {1200.0, L"c"}, {1500.0, L"d"}}) {
        katalog.AddUnit(leistung, name);
    }
    for (const bool doppelt : {false, true}) {
        m_uebergabe = katalog.Uebergabe(1000.0);
        EXPECT_EQ(Oeffne([&](CDialogUser& user) {
                      KlickeKopf(user, 5);
                      EXPECT_EQ(m_uebergabe.TypName, L"b") << "a sort picks nothing";
                      EXPECT_EQ(Gitter(user).currentIndex().row(), 1);
                      if (doppelt) {
                          QTest::mouseDClick(Gitter(user).viewport(), Qt::LeftButton, {},
                                             MitteDerZeile(user, 1));
                      } else {
                          KlickeZeile(user, 1);
                          EXPECT_EQ(user.Text(18011), L"1200");
                          user.Click(kIdOk);
                      }
                  }),
                  0);
        EXPECT_EQ(m_uebergabe.TypName, L"c");
        EXPECT_EQ(m_uebergabe.Leistung, 1200.0);
    }
}

TEST_F(CAuswahlDialogTest, HeadingsShowTheDirectionOfTheirSortUntilTheNextOne)
{
    Zeige([](CDialogUser& user) {
        const auto kopf = [&] {
            return Gitter(user).horizontalHeader()->viewport()->grab().toImage();
        };
        const QImage vorher = kopf();
        const auto rows = GitterZeilen(user);
        KlickeKopf(user, 5);
        const QImage absteigend = kopf();
        EXPECT_NE(absteigend, vorher);
        user.Type(18003, L"3001");
        EXPECT_EQ(GitterZeilen(user), rows);
        EXPECT_EQ(kopf(), absteigend) << "fresh rows are not sorted, and the arrow stays";
        KlickeKopf(user, 5);
        EXPECT_EQ(kopf(), vorher);
    });
}

TEST_F(CAuswahlDialogTest, EveryCellOfAColumnExplainsIt)
{
    Zeige([](CDialogUser& user) {
        QHeaderView& kopf = *Gitter(user).horizontalHeader();
        for (const auto& [spalte, text] : {std::pair(0, L"Descrizione tipo del corpo scaldante"),
                                           {2, L"Profondità del corpo scaldante"},
                                           {7, L"Contenuto acqua corpi scaldanti"}}) {
            const int x = kopf.sectionViewportPosition(spalte) + 9;
            EXPECT_EQ(TipAt(*kopf.viewport(), {x, 9}).toStdWString(), text);
            const QPoint place(x, MitteDerZeile(user, 1).y());
            EXPECT_EQ(TipAt(*Gitter(user).viewport(), place).toStdWString(), text);
        }
        QToolTip::hideText();
    });
}

} // namespace
