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
    ExpectResult(0, [&](CDialogUser& user) {
        const Zeile dritte = GitterZeilen(user)[2];
        KlickeZeile(user, 2);
        EXPECT_EQ(user.Text(18011), dritte[5]);
        EXPECT_EQ(m_uebergabe.TypName, dritte[0]);
        QTest::keyClick(&Gitter(user), Qt::Key_Down);
        EXPECT_EQ(user.Text(18011), GitterZeilen(user)[3][5]);

        user.Type(18003, L"500");
        QWidget* view = Gitter(user).viewport();
        QTest::mouseDClick(Gitter(user).horizontalHeader()->viewport(), Qt::LeftButton, {},
                           {20, 10});
        QTest::mouseDClick(view, Qt::LeftButton, {}, {20, view->height() - 3});
        EXPECT_FALSE(user.Dialog().HasEnded());
        QTest::mouseDClick(view, Qt::LeftButton, {}, MitteDerZeile(user, 1));
    });
    EXPECT_EQ(m_uebergabe.Daten.Laenge, 500.0);
    const auto* const start = ReadDefFile_VDI6030START(false);
    ASSERT_NE(start, nullptr);
    EXPECT_EQ(start->Produkt, L"Tipo 22");

    ExpectResult(-2, [&](CDialogUser& user) {
        Gitter(user).setFocus();
        QTest::keyClick(&Gitter(user), Qt::Key_Escape);
    });
}

TEST_F(CAuswahlDialogTest, TheBestRowIsChosenUntilTheUserPicksAnother)
{
    const CString lang = L"un nome che è più lungo di ogni titolo";
    CMemoryCatalogue katalog;
    katalog.AddUnit(500.0, L"a");
    katalog.AddUnit(990.0, L"b");
    katalog.Add(L'E', 600.0, 22.5, 800.0, 1500.0, 0.0, 0.0, lang);
    m_uebergabe = katalog.Uebergabe(1000.0);
    ExpectResult(0, [&](CDialogUser& user) {
        const QTableView& view = Gitter(user);
        EXPECT_EQ(view.currentIndex().row(), 1);
        EXPECT_EQ(user.Texts({18011, 18015}), (Texte{L"990", L"-1.0"}));
        for (int spalte = 1; spalte < 8; ++spalte) {
            EXPECT_GE(view.columnWidth(spalte), 60) << spalte;
        }
        EXPECT_GE(view.columnWidth(0), view.fontMetrics().horizontalAdvance(ToNative(lang)));

        KlickeZeile(user, 0);
        EXPECT_EQ(m_uebergabe.TypName, L"a");
        EXPECT_EQ(user.Text(18015), L"-50.0");
        KlickeZeile(user, 2);
        EXPECT_EQ(user.Text(18011), L"1500");
        EXPECT_EQ(m_uebergabe.TypName, L"a") << "no whole millimetres, no choice";

        int neuGezeigt = 0;
        const QObject solange;
        QObject::connect(view.model(), &QAbstractItemModel::modelReset, &solange,
                         [&neuGezeigt] { ++neuGezeigt; });
        user.Type(18005, L"1400");
        EXPECT_EQ(neuGezeigt, 0) << "showing row by row would make a rebuild slow";
        EXPECT_EQ(view.currentIndex().row(), 2) << "a rebuild goes to the best row";
        EXPECT_EQ(m_uebergabe.TypName, lang) << "which needs no whole millimetres";
        user.Click(kIdOk);
    });
    EXPECT_EQ(m_uebergabe.Leistung, 1500.0);
}

TEST_F(CAuswahlDialogTest, HeadingsSortDescendingFirst)
{
    CMemoryCatalogue katalog;
    katalog.Add(L'E', 600.0, 100.0, 1000.0, 500.0, 0.0, 0.0, L"b");
    katalog.Add(L'E', 700.0, 100.0, 1000.0, 1500.0, 0.0, 0.0, L"a");
    katalog.Add(L'E', 500.0, 100.0, 1000.0, 990.0, 0.0, 0.0, L"c");
    m_uebergabe = katalog.Uebergabe(1000.0);
    Zeige([](CDialogUser& user) {
        const auto namen = [&user](int spalte) {
            KlickeKopf(user, spalte);
            CString folge;
            for (const Zeile& zeile : GitterZeilen(user)) {
                folge += zeile[0];
            }
            return folge;
        };
        EXPECT_EQ(namen(5), L"acb");
        EXPECT_EQ(namen(5), L"bca");
        EXPECT_EQ(namen(0), L"cba");
        user.Type(18003, L"1");
        EXPECT_EQ(namen(1), L"");
        user.Type(18003, L"1000");
        EXPECT_EQ(namen(1), L"abc") << "a click on the empty grid turns nothing round";
    });
}

TEST_F(CAuswahlDialogTest, WithoutARowTheUserIsToldOnceAndTheRangeGrows)
{
    CMemoryCatalogue katalog;
    katalog.Add(L'E', 600.0, 300.0, 400.0, 900.0);
    katalog.Produkt().Hoehen.Add(600.0);
    katalog.Produkt().Tiefen.Add(22.5);
    katalog.Produkt().Tiefen.Add(300.0);
    m_uebergabe = katalog.Uebergabe(1000.0);
    m_uebergabe.LaengeMin = 500.0;
    m_uebergabe.LaengeMax = 1000.0;
    m_uebergabe.HoeheMin = m_uebergabe.HoeheMax = 600.0;
    m_uebergabe.TiefeMin = 22.5;
    m_uebergabe.TiefeMax = 100.0;
    // OK without a row.
    ExpectResult(
        -1,
        [&](CDialogUser& user) {
            ASSERT_EQ(m_driver.Messages().size(), 1U);
            EXPECT_EQ(m_driver.Messages()[0].caption, L"Scelta Corpi scaldanti");
            EXPECT_EQ(m_driver.Messages()[0].icon, MessageIcon::information);
            EXPECT_EQ(m_driver.Messages()[0].text, L"Nessun corpo scaldante con le\nmisure 1000 / "
                                                   L"600\ntrovato.\nSelezionare un'altro!");
            EXPECT_EQ(GitterZeilen(user).size(), 1U);
            EXPECT_EQ(m_uebergabe.LaengeMin, 0.0);
            EXPECT_EQ(m_uebergabe.TiefeMin, 22.5);
            EXPECT_EQ(m_uebergabe.TiefeMax, 300.0);
            user.Type(18003, L"1");
            EXPECT_TRUE(GitterZeilen(user).empty());
            EXPECT_EQ(user.Text(18011), L"") << "a rebuild goes to row 0";
            EXPECT_EQ(m_driver.Messages().size(), 1U);
            user.Click(kIdOk);
        },
        true);

    katalog.Clear();
    ExpectResult(
        -1,
        [&](CDialogUser& user) {
            EXPECT_EQ(user.Texts({18011, 18015}), (Texte{L"Resa\nC.S", L"-100.0"}))
                << "a widening without success shows the heading";
            user.Click(kIdOk);
        },
        true);
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
        ExpectResult(0, [&](CDialogUser& user) {
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
        });
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

TEST_F(CAuswahlDialogTest, TheGridHasALookOfItsOwn)
{
    Zeige([](CDialogUser& user) {
        QTableView& view = Gitter(user);
        QHeaderView& kopf = *view.horizontalHeader();
        EXPECT_EQ(view.font(), ToNative(CFont{L"Segoe UI", 15, 100}));
        EXPECT_EQ(kopf.height(), qRound(32 * GetDialogScale()));
        EXPECT_EQ(kopf.viewport()->grab().toImage().pixelColor(1, 1), QColor(Qt::white));
        EXPECT_EQ(kopf.minimumSectionSize(), 60) << "for the user's dragging too";

        KlickeZeile(user, 1);
        view.setFocus();
        ASSERT_TRUE(view.hasFocus());
        const QRect zelle = view.visualRect(view.currentIndex());
        const QImage bild = view.viewport()->grab(zelle).toImage();
        const QRect rand(0, 0, 1, zelle.height());
        EXPECT_NE(bild.pixelColor(0, 1), QColor(Qt::white));
        EXPECT_EQ(bild.copy(rand), bild.copy(rand.translated(1, 0))) << "no frame on top of it";
    });
}

TEST_F(CAuswahlDialogTest, EveryColumnHasItsHeadingAndEveryCellOfItExplainsIt)
{
    const std::pair<const wchar_t*, const wchar_t*> spalten[] = {
        {L"Type", L"Descrizione tipo del corpo scaldante"},
        {L"Alt.\n[mm]", L"Altezza del corpo scaldante"},
        {L"Prof.\n[mm]", L"Profondità del corpo scaldante"},
        {L"Lung.\n[mm]", L"Lunghezza del corpo scaldante"},
        {L"EN442\n[Watt]", L"Resa corpo scaldante secondo EN442"},
        {L"Resa\nC.S", L"Resa a norma del corpo scaldante"},
        {L"Nr.\nElem", L"Numero elementi del corpo scaldante (a piastra == 1)"},
        {L"Litri", L"Contenuto acqua corpi scaldanti"}};
    Zeige([&](CDialogUser& user) {
        QHeaderView& kopf = *Gitter(user).horizontalHeader();
        ASSERT_EQ(kopf.count(), 8);
        for (int spalte = 0; spalte < 8; ++spalte) {
            const auto& [titel, text] = spalten[spalte];
            EXPECT_EQ(kopf.model()->headerData(spalte, Qt::Horizontal).toString().toStdWString(),
                      titel);
            const int x = kopf.sectionViewportPosition(spalte) + 9;
            EXPECT_EQ(TipAt(*kopf.viewport(), {x, 9}).toStdWString(), text);
            const QPoint place(x, MitteDerZeile(user, 1).y());
            EXPECT_EQ(TipAt(*Gitter(user).viewport(), place).toStdWString(), text);
        }
        QToolTip::hideText();
    });
}

} // namespace
