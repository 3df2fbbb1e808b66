// How the radiator is to be drawn: layer, colour and block in the selection dialog.

#include "host/host_base.h"
#include "host/host_prefs.h"
#include "tests/host_defaults/host_dialog_driver.h"
#include "tests/src/selection/dialog/auswahl_fixture.h"

#include <QLineEdit>
#include <QPixmap>

using namespace reference_host;

namespace {

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

TEST_F(CAuswahlDialogTest, LayerAndColourGoBackEvenOnCancel)
{
    ExpectResult(-2, [&](CDialogUser& user) {
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
    });
    EXPECT_EQ(m_layer, L"NUOVO");
    EXPECT_EQ(m_farbe, 9);
    EXPECT_FALSE(m_folder.Exists("HkAuswahl.def"));
}

TEST_F(CAuswahlDialogTest, TheSwatchShowsItsColourWhoeverManagesTheLayers)
{
    for (const bool automatisch : {false, true}) {
        const CSettingOverride layer(kSettingAutoLayer, automatisch ? L"1" : L"0");
        Zeige([&](CDialogUser& user) {
            bool aktiv = automatisch;
            for (int klick = 0; klick < 3; ++klick) {
                EXPECT_EQ(user.IsChecked(3144), aktiv);
                EXPECT_EQ(user.IsEnabled(250), aktiv);
                EXPECT_EQ(user.IsEnabled(3187), aktiv);
                EXPECT_EQ(FarbeBei(user.Widget(250), {5, 5}), Farbe(5));
                user.Click(3144);
                aktiv = !aktiv;
            }
        });
    }
}

TEST_F(CAuswahlDialogTest, TheListOpensOnTheBlockUsedLast)
{
    const struct
    {
        Texte bloecke;
        CString letzter, gewaehlt;
    } cases[] = {
        {{L"ZETA", L"ABCD"}, L"", L"ABCD"},
        {{L"ZETA", L"ABCD"}, L"ze", L"ZETA"},
        {{L"ZETA", L"ABCD"}, L"BCD", L""},
        {{L"ABCD", L"ABC", L"AB"}, L"ABC", L"ABC"},
        {{}, L"", L""},
    };
    for (const auto& c : cases) {
        const CSettingOverride letzter(kSettingHKBlock, c.letzter);
        m_drawer.bloecke = c.bloecke;
        Zeige([&](CDialogUser& user) {
            EXPECT_EQ(user.Text(18080), c.gewaehlt) << Utf8FromWide(c.letzter);
        });
    }
}

TEST_F(CAuswahlDialogTest, ABlockIsShownAndKeptAtOnce)
{
    ExpectResult(-2, [&](CDialogUser& user) {
        CString block;
        EXPECT_FALSE(lmGetHKBlock(block)) << "the first one shows but is no choice";
        QWidget& flaeche = *user.Widget(16022).parentWidget();
        const auto bild = [&] { return flaeche.grab(user.Widget(16022).geometry()).toImage(); };
        const QImage grau = bild();
        EXPECT_EQ(grau.pixelColor(3, 3), QColor(128, 128, 128));
        for (const int ohneBild : {user.Chosen(18080) + 1, -1}) {
            user.Choose(18080, L"ABCD");
            EXPECT_EQ(bild().pixelColor(3, 3), QColor(1, 2, 3));
            user.Choose(18080, ohneBild);
            EXPECT_EQ(bild(), grau);
        }
        user.Choose(18080, L"ZETA");
        user.Click(kIdCancel);
    });
    CString block;
    EXPECT_TRUE(lmGetHKBlock(block));
    EXPECT_EQ(block, L"ZETA");
}

} // namespace
