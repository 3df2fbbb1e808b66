// The radiator selection as its callers open it, in the hands of a user.

#include "frame/hkauswahl_uebergabe.h"
#include "frame/vdi6030_start.h"
#include "host/host_base.h"
#include "host/host_prefs.h"
#include "host_dialogs/dialog_driver.h"
#include "selection/dialog/auswahl_fixture.h"
#include "support/memory_catalogue.h"

#include <QLineEdit>
#include <QMenu>
#include <QPixmap>
#include <QTimer>

namespace {

using Texte = std::vector<CString>;

bool Verbietet(const CDialogUser& user, std::initializer_list<int> ids)
{
    return std::ranges::none_of(ids, [&](int id) { return user.IsEnabled(id); });
}

QColor FarbeBei(QWidget& widget, QPoint at)
{
    return widget.grab().toImage().pixelColor(at);
}

QColor Farbe(int index)
{
    const COLORREF farbe = GetRGBFromColor(index);
    return {static_cast<int>(farbe & 0xFF), static_cast<int>(farbe >> 8 & 0xFF),
            static_cast<int>(farbe >> 16 & 0xFF)};
}

/// Opens the system menu, chooses its last entry, and presses a key in the dialog that opens.
void WaehleTransparenz(const CDialogUser& user, Qt::Key key)
{
    QTimer::singleShot(0, [key] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        QTimer::singleShot(0, [key] {
            QWidget* choice = QApplication::activeModalWidget();
            QTest::keyClick(choice->focusWidget(), Qt::Key_PageUp);
            QTest::keyClick(choice->focusWidget(), key);
        });
        QTest::keyClick(menu, Qt::Key_Up);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    user.Focus(18109);
    user.Press(Qt::Key_Space, Qt::AltModifier);
}

TEST_F(CAuswahlDialogTest, OpensOnTheHandOver)
{
    const CSettingOverride letzter(kSettingHKBlock, L"ze");
    Raum(3000.0, 0.0);
    m_uebergabe.LeistungMin = 999.0;
    EXPECT_EQ(Oeffne([&](CDialogUser& user) {
                  EXPECT_EQ(user.Text(18109), GetHKDir());
                  const auto& baum = dynamic_cast<QTreeWidget&>(user.Widget(18000));
                  ASSERT_EQ(baum.selectedItems().size(), 1);
                  EXPECT_EQ(baum.selectedItems().front()->text(0), "Tipo 22");
                  EXPECT_EQ(user.Text(18002) + L" " + user.Text(18003), L"400 3000");
                  EXPECT_EQ(user.Text(18005), L"1500");
                  EXPECT_EQ(user.Text(18012), L"3000");
                  EXPECT_EQ(user.Text(18048), L"PT.Cucina");
                  EXPECT_EQ(user.Text(18107), L"20");
                  EXPECT_EQ(m_uebergabe.Raumtemperatur, 20.5) << "showing does not round it";
                  EXPECT_EQ(user.Text(7008) + L"/" + user.Text(7009), L"75.4/65.2");
                  EXPECT_EQ(user.Text(7007), L"");
                  EXPECT_FALSE(user.IsChecked(18017) || user.IsChecked(18047));
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
              }),
              0);
    EXPECT_EQ(m_uebergabe.Leistung, m_uebergabe.Daten.Leistung) << "the chosen radiator's";
}

TEST_F(CAuswahlDialogTest, WithoutDrawingOrProductTheDialogStillWorks)
{
    m_pDrawer = nullptr;
    m_uebergabe.Produkt = L"Tipo 99";
    EXPECT_EQ(Oeffne([&](CDialogUser& user) {
                  EXPECT_TRUE(user.Items(3187).empty());
                  EXPECT_TRUE(user.Items(18080).empty());
                  EXPECT_TRUE(GitterZeilen(user).empty());
                  const auto timer = [&] { return user.Text(18011) == L"Resa\nC.S"; };
                  EXPECT_TRUE(QTest::qWaitFor(timer)) << "row -1, the heading";
                  EXPECT_EQ(user.Text(18015), L"-100.0");
                  user.Click(3144);
                  user.Type(18003, L"2000");
                  constexpr int kZweiTakte = 200;
                  EXPECT_FALSE(QTest::qWaitFor(timer, kZweiTakte)) << "the timer ticks once";
                  user.Click(18017);
                  user.Click(kIdOk);
              }),
              -1);
    EXPECT_EQ(m_layer, L"HEIZ_$d__");
    EXPECT_EQ(m_farbe, 5);
}

TEST_F(CAuswahlDialogTest, LayerAndColourGoBackEvenOnCancel)
{
    EXPECT_EQ(
        Oeffne([&](CDialogUser& user) {
            user.Click(250);
            user.Click(3144);
            EXPECT_TRUE(user.IsEnabled(250) && user.IsEnabled(3187));
            EXPECT_EQ(FarbeBei(user.Widget(250), {5, 5}), Farbe(5));
            user.Choose(3187, L"MURI");
            EXPECT_EQ(FarbeBei(user.Widget(250), {5, 5}), Farbe(8));
            KlickeZeile(user, 2);
            EXPECT_EQ(user.Text(3187), L"MURI");

            for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
                OnNextDialog([key](QWidget& dialog) {
                    PressKey(dialog, Qt::Key_Right);
                    PressKey(dialog, key);
                });
                user.Click(250);
                EXPECT_EQ(FarbeBei(user.Widget(250), {5, 5}), Farbe(key == Qt::Key_Return ? 9 : 8));
            }
            auto* eingabe = user.Widget(3187).findChild<QLineEdit*>();
            eingabe->selectAll();
            QTest::keyClicks(eingabe, "NUOVO");
            user.Click(kIdCancel);
        }),
        -2);
    EXPECT_EQ(m_layer, L"NUOVO");
    EXPECT_EQ(m_farbe, 9);
    EXPECT_FALSE(m_folder.Exists("HkAuswahl.def"));
}

TEST_F(CAuswahlDialogTest, ABlockIsShownAndKeptAtOnce)
{
    EXPECT_EQ(Oeffne([&](CDialogUser& user) {
                  CString block;
                  EXPECT_FALSE(lmGetHKBlock(block)) << "the first one shows but is no choice";
                  const QPoint inBild = user.Widget(16022).geometry().topLeft() + QPoint(3, 3);
                  QWidget& fenster = *CNativeAccess::Widget(user.Dialog());
                  QWidget& flaeche = *user.Widget(16022).parentWidget();
                  const auto farbe = [&] {
                      return FarbeBei(fenster, flaeche.mapTo(&fenster, inBild));
                  };
                  EXPECT_EQ(farbe(), QColor(128, 128, 128));
                  user.Choose(18080, L"ABCD");
                  EXPECT_EQ(farbe(), QColor(1, 2, 3));
                  user.Choose(18080, L"ZETA");
                  EXPECT_NE(farbe(), QColor(1, 2, 3));
                  user.Click(kIdCancel);
              }),
              -2);
    CString block;
    EXPECT_TRUE(lmGetHKBlock(block));
    EXPECT_EQ(block, L"ZETA");
}

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

TEST_F(CAuswahlDialogTest, OkWithoutARowIsToldAndTheWarningComesOnce)
{
    m_uebergabe.LaengeMin = m_uebergabe.LaengeMax = 1.0;
    EXPECT_EQ(Oeffne(
                  [&](CDialogUser& user) {
                      ASSERT_EQ(m_driver.Messages().size(), 1U);
                      EXPECT_EQ(m_driver.Messages()[0].caption, L"Scelta Corpi scaldanti");
                      user.Type(18003, L"400");
                      EXPECT_FALSE(GitterZeilen(user).empty());
                      user.Type(18003, L"2");
                      EXPECT_TRUE(GitterZeilen(user).empty());
                      EXPECT_EQ(user.Text(18011), L"");
                      EXPECT_EQ(m_driver.Messages().size(), 1U);
                      user.Click(kIdOk);
                  },
                  true),
              -1);
}

TEST_F(CAuswahlDialogTest, TheTreeReadsMakersWhenTheyOpen)
{
    Oeffne([&](CDialogUser& user) {
        auto& baum = dynamic_cast<QTreeWidget&>(user.Widget(18000));
        const QTreeWidgetItem& erster = *baum.topLevelItem(0);
        ASSERT_EQ(erster.childCount(), 1);
        EXPECT_EQ(erster.child(0)->text(0), "Dummy");
        const CString maker = erster.text(0).toStdWString();
        user.ChooseInTree(18000, {maker});
        EXPECT_TRUE(GitterZeilen(user).empty()) << "no product";
        EXPECT_EQ(m_uebergabe.Produkt, L"Tipo 22");
        EXPECT_EQ(user.Text(18002), L"400");
        user.ChooseInTree(18000, {maker, L"Radiatori tubolari in acciaio", L"3 colonne"});
        EXPECT_EQ(m_uebergabe.Hersteller + L"|" + m_uebergabe.Art + L"|" + m_uebergabe.Produkt,
                  maker + L"|Radiatori tubolari in acciaio|3 colonne");
        EXPECT_FALSE(GitterZeilen(user).empty());
        const Texte hoehen = user.Items(18004);
        EXPECT_TRUE(std::ranges::is_sorted(hoehen, {},
                                           [](const CString& text) { return std::stoi(text); }));
        EXPECT_EQ(hoehen, user.Items(18008));
        user.Click(kIdCancel);
    });
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

TEST_F(CAuswahlDialogTest, FieldsRaiseTheirEvents)
{
    Raum(3000.0, 4000.0);
    Oeffne([&](CDialogUser& user) {
        EXPECT_EQ(user.Text(18005), L"-1000");
        user.Click(18047);
        EXPECT_EQ(user.Text(18005), L"0");
        user.Click(18049);
        EXPECT_FALSE(user.IsChecked(18047));
        EXPECT_EQ(user.Text(18005), L"1500");
        EXPECT_TRUE(user.IsEnabled(18016));
        user.Type(18016, L"3.");
        EXPECT_EQ(user.Text(18005), L"90");
        EXPECT_EQ(user.Text(18016), L"3.") << "still typing";
        user.Type(18016, L"3.1");
        EXPECT_EQ(user.Text(18005), L"93");

        const double faktor = m_uebergabe.Umrechnungsfaktor;
        user.Type(18107, L"24,5");
        EXPECT_EQ(m_uebergabe.Umrechnungsfaktor, faktor) << "until the field is left";
        user.Focus(18002);
        EXPECT_LT(m_uebergabe.Umrechnungsfaktor, faktor);
        EXPECT_TRUE(Verbietet(user, {18005, 18011}));

        user.Click(18019);
        EXPECT_TRUE(Verbietet(user, {18002, 18003, 18004, 18008, 18009, 18010}));
        user.Click(18019);
        EXPECT_FALSE(user.IsEnabled(18005));
        EXPECT_TRUE(user.IsEnabled(18002));
        user.Click(kIdCancel);
    });
}

TEST_F(CAuswahlDialogTest, WallDistancesOpenAndReadNothingBack)
{
    m_driver.WhenOpens(18006, [](CDialogUser& user) { user.Click(kIdOk); });
    Oeffne([&](CDialogUser& user) {
        const auto rows = GitterZeilen(user);
        user.Click(7022);
        EXPECT_EQ(GitterZeilen(user), rows);
        user.Click(kIdCancel);
    });
}

TEST_F(CAuswahlDialogTest, OkAloneKeepsPlacementAndFiles)
{
    const CSettingOverride winpos(kSettingWinposFile, L"fenster.txt");
    m_folder.WriteBytes("fenster.txt", "");
    CRect ort;
    int alpha = 0;
    for (const int schluss : {kIdCancel, kIdOk}) {
        EXPECT_EQ(m_folder.ReadBytes("fenster.txt"), "");
        Oeffne([&](CDialogUser& user) {
            const CRect vorher = user.Dialog().GetWindowRect();
            user.Dialog().MoveWindow({20, 10, 20 + vorher.Width() + 90, 10 + vorher.Height() + 90});
            ort = user.Dialog().GetWindowRect();
            EXPECT_EQ(ort.Width(), vorher.Width()) << "grows in height alone";
            EXPECT_EQ(ort.Height(), vorher.Height() + 90);
            WaehleTransparenz(user, Qt::Key_Escape);
            EXPECT_EQ(user.Dialog().GetAlpha(), 255);
            WaehleTransparenz(user, Qt::Key_Return);
            alpha = user.Dialog().GetAlpha();
            EXPECT_LT(alpha, 255);
            user.Click(schluss);
        });
        EXPECT_EQ(m_folder.Exists("HEIZUNG/CmbData.txt"), schluss == kIdOk);
        EXPECT_EQ(m_folder.Exists("HkAuswahl.def"), schluss == kIdOk);
    }
    Oeffne([&](CDialogUser& user) {
        EXPECT_EQ(user.Dialog().GetWindowRect(), ort);
        EXPECT_EQ(user.Dialog().GetAlpha(), alpha);
        user.Click(kIdCancel);
    });
}

TEST_F(CAuswahlDialogTest, TheFirstRunMakesTheListOfSystems)
{
    Oeffne([&](CDialogUser& user) {
        EXPECT_EQ(user.Items(7006), Texte{L"Standard (75/65)"});
        user.Type(7008, L"70");
        user.Click(kIdOk);
    });
    EXPECT_EQ(m_uebergabe.Vorlauf, 75.4) << "no event has read the field";
    Oeffne([&](CDialogUser& user) {
        user.Type(7007, L"Pompa");
        user.Type(7008, L"45");
        user.Type(7009, L"35");
        user.Click(268);
        user.Click(kIdOk);
    });
    EXPECT_EQ(m_uebergabe.Vorlauf, 45.0);
    Oeffne([&](CDialogUser& user) {
        EXPECT_EQ(user.Items(7006), (Texte{L"Standard (75/65)", L"Pompa (45/35)"}));
        EXPECT_EQ(user.Text(7007), L"Pompa");
        user.Click(269);
        user.Click(269);
        user.Click(269);
        EXPECT_TRUE(user.Items(7006).empty());
        user.Click(kIdOk);
    });
    Oeffne([&](CDialogUser& user) {
        EXPECT_TRUE(user.Items(7006).empty()) << "deleted, not missing";
        user.Click(kIdCancel);
    });
}

TEST_F(CAuswahlDialogTest, StoresThatCannotBeReadOrWrittenAreNoObstacle)
{
    const CSettingOverride winpos(kSettingWinposFile, L"fenster.txt");
    using namespace std::string_literals;
    const std::string muell = "\xFF\xFE|[VDI\0\x01*|*|(/\n\xD8\x00"s;
    for (const bool ordner : {false, true}) {
        for (const char* name :
             {"HEIZUNG/CmbData.txt", "HkAuswahl.def", "Vdi6030Start.def", "fenster.txt"}) {
            std::filesystem::remove_all(m_folder.Root() / name);
            if (ordner) {
                std::filesystem::create_directories(m_folder.Root() / name / "voll");
            } else {
                m_folder.WriteBytes(name, muell);
            }
        }
        m_layer.clear();
        EXPECT_EQ(Oeffne([&](CDialogUser& user) {
                      EXPECT_EQ(user.Items(7006).size(), ordner ? 0U : 1U);
                      user.Click(kIdOk);
                  }),
                  0);
    }
    EXPECT_TRUE(m_driver.Messages().empty());
}

} // namespace
