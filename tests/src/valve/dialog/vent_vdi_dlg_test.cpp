// The valve dialog as its callers open it, in the hands of a user.

#include "frame/entry_points.h"
#include "frame/ventil_kv.h"
#include "tests/dialog_support/dialog_driver.h"
#include "tests/src/valve/ventil_fixture.h"

#include <QAbstractButton>
#include <QTreeWidget>

#include <optional>

using namespace reference_host;

namespace {

constexpr int kValveDialog = 18003;
constexpr int kBaum = 18019;
constexpr int kHersteller = 18039;
constexpr int kKvListe = 18029;
constexpr int kEinstellbar = 18037;
constexpr int kTga = 18026;
constexpr int kDN = 371;

using Pfad = std::vector<CString>;
using Texte = std::vector<CString>;

const std::string kNrA = TgaNr("00", "0001", "01", "02", "03");
const std::string kNrB = TgaNr("00", "0007", "00", "01", "00");
const std::string kNrMono = TgaNr("01", "0002", "09", "00", "00");
const std::string kNrOhne = TgaNr("00", "0099");
const std::string kNrDoppelt = TgaNr("02", "0007");

/// Two main groups; the group "Serie B" repeats a name of the first group and a number.
const std::string kAlfa = "010;200410;Alfa Valvole S.p.A.;20240301;;|"
                          "100;10;Termostatiche;|"
                          "110;1;Serie A;|"
                          "160;1;Testa;|200;2;Squadra;|400;3;Ottone;|"
                          "700;1;2;15;0.8804;10;120;600.4;;;;1;;|"
                          "710.01;1;2.0;;N;0;;;0.550;0.880;|"
                          "710.01;2;2.0;;;2;;;0.434;0.648;|"
                          "710.01;3;1.0;;;1;;;0.100;0.200;|"
                          "800;" +
                          kNrA + ";A-15;DN-A15;;Valvola 15;|800;" + kNrOhne +
                          ";A-99;;;Senza dati;|800;" + kNrDoppelt +
                          ";A-D;;;Doppia uno;|"
                          "110;2;Serie B;|"
                          "700;7;11;20;1.5;0;0;1000;;;;0;;|"
                          "800;" +
                          kNrB + ";B-20;;;Valvola 15;|800;" + kNrDoppelt + ";B-D;;;Doppia due;|" +
                          "100;20;Monotubo;|"
                          "110;1;Serie M;|"
                          "700;2;3;10;0.5;0;0;100;;;;1;;|"
                          "710.01;1;1.0;;;2;;0.850;0.850;|"
                          "710.01;2;1.5;;;1;;0.917;0.750;|"
                          "800;" +
                          kNrMono + ";M-10;;;Mono 10;";

const std::string kBeta = "010;201001;Beta N.V.;20200101;;|100;1;Uno;|110;1;Due;|"
                          "700;1;5;32;2.5;0;0;50;;;;0;;|800;" +
                          TgaNr("00", "0001", "04") + ";BE-32;;;Beta 32;";

const Pfad kPfadA = {L"Termostatiche", L"Serie A", L"Valvola 15"};
const Pfad kPfadMono = {L"Monotubo", L"Serie M", L"Mono 10"};

CString Weit(const std::string& text)
{
    return WideFromUtf8(text);
}

QTreeWidget& Baum(const CDialogUser& user)
{
    return dynamic_cast<QTreeWidget&>(user.Widget(kBaum));
}

const std::vector<int> kKopfFelder = {18022, 18023, 18024};
const std::vector<int> kVentilFelder = {18025, kTga, 18027, 18028, 18030, 18031,
                                        18032, kDN,  18035, 18036, 18043};

void ExpectIdentitaet(const VDI3805_VENTIL_KV& ventil, const Texte& texts)
{
    EXPECT_EQ((Texte{ventil.Gruppe, ventil.Hauptgruppe, ventil.Bezeichnung, ventil.Hersteller,
                     ventil.VentilNr}),
              texts);
}

void ExpectLeer(const VDI3805_VENTIL_KV& ventil)
{
    ExpectIdentitaet(ventil, Texte(5));
    EXPECT_EQ(ventil.DN, 0.0);
    EXPECT_EQ(ventil.Einstellbar, 0);
    EXPECT_EQ(ventil.AnzahlKv, 0);
}

class CVentVdiDlgTest : public CVentilTest
{
protected:
    /// Writes a maker's file of records with "|" between them.
    void Schreibe(const std::string& hersteller, const std::string& records)
    {
        CVentilTest::Schreibe(hersteller, Saetze(records));
    }

    /// Opens the dialog on a record that holds something, and returns what has become of it;
    /// nothing if it was cancelled.
    std::optional<VDI3805_VENTIL_KV> Oeffne(const CDialogDriver::Script& script,
                                            const CString& nummer = {},
                                            const CString& hersteller = {})
    {
        m_driver.WhenOpens(kValveDialog, script);
        VDI3805_VENTIL_KV ventil;
        ventil.Bezeichnung = L"prima";
        ventil.AnzahlKv = 3;
        if (ShowVentVDI3805Dlg(nummer, hersteller, ventil)) {
            return ventil;
        }
        EXPECT_EQ(ventil.Bezeichnung, L"prima");
        EXPECT_EQ(ventil.AnzahlKv, 3);
        return std::nullopt;
    }

    /// The same for a dialog that ends with OK.
    VDI3805_VENTIL_KV Waehle(const std::function<void(CDialogUser&)>& steps,
                             const CString& nummer = {}, const CString& hersteller = {})
    {
        const auto ventil = Oeffne(
            [&](CDialogUser& user) {
                steps(user);
                user.Click(kIdOk);
            },
            nummer, hersteller);
        EXPECT_TRUE(ventil) << "OK did not end the dialog";
        return ventil.value_or(VDI3805_VENTIL_KV());
    }

    CTempFolder m_platz;
    CSettingOverride m_local{kSettingLocalPath, m_platz.Path()};
    CSettingOverride m_fenster{kSettingWinposFile, L"fenster.txt"};
    CDialogDriver m_driver;
};

TEST_F(CVentVdiDlgTest, OpensOnTheFirstMakerWithNothingSelected)
{
    Schreibe("beta", kBeta);
    Schreibe("Alfa", kAlfa);
    Schreibe("Firma.alt", "");
    Schreibe("Firma", kBeta);
    m_folder.WriteBytes("note.txt", "");
    ExpectLeer(Waehle([](CDialogUser& user) {
        EXPECT_EQ(user.Dialog().GetWindowText(), L"Scelta valvola secondo VDI 3805");
        EXPECT_EQ(user.Items(kHersteller), (Texte{L"Alfa", L"beta", L"Firma", L"Firma"}))
            << "folders only, without their extension";
        EXPECT_EQ(user.Chosen(kHersteller), 0);
        EXPECT_EQ(user.TreeLines(kBaum),
                  (Texte{L"Termostatiche", L" Serie A", L"  Valvola 15", L"  Senza dati",
                         L"  Doppia uno", L" Serie B", L"  Valvola 15", L"  Doppia due",
                         L"Monotubo", L" Serie M", L"  Mono 10"}));
        EXPECT_EQ(user.ChosenInTree(kBaum), Pfad());
        EXPECT_EQ(user.Texts(kKopfFelder), (Texte{L"Alfa Valvole S.p.A.", L"200410", L"20240301"}));
        EXPECT_EQ(user.Texts(kVentilFelder), (Texte{L"<...>", L"<...>", L"<...>", L"<...>", L"",
                                                    L"", L"", L"", L"", L"", L"0"}));
        EXPECT_EQ(user.Text(18066), L"xp");
        EXPECT_EQ(user.Items(kKvListe), Texte());
        EXPECT_TRUE(user.IsEnabled(kIdOk)) << "nothing was selected yet";
        user.Choose(kHersteller, 3);
        EXPECT_EQ(user.Text(18022), L"Beta N.V.") << "the file of Firma, not of Firma.alt";
    }));
    EXPECT_TRUE(m_driver.Messages().empty());
}

TEST_F(CVentVdiDlgTest, AValveIsShownWithAllThatIsKnownOfIt)
{
    Schreibe("Alfa", kAlfa);
    const auto ventil = Waehle([](CDialogUser& user) {
        user.ChooseInTree(kBaum, kPfadMono);
        EXPECT_EQ(
            user.Texts(kVentilFelder),
            (Texte{L"M-10", Weit(kNrMono), L"", L"Attacco monotubo per valvole C.S. a piastra",
                   L"...", L"...", L"...", L"10", L"100", L"0.500", L"23"}));
        EXPECT_EQ(user.Text(18066), L"xp       Regolazione  kv-Bypass[m³/h]   kv-HK[m³/h]   %");
        EXPECT_EQ(user.Items(kKvListe), (Texte{L" 1.0    2.0:   0.850    0.850  50%",
                                               L" 1.5    1.0:   0.917    0.750  45%"}));

        user.ChooseInTree(kBaum, kPfadA);
        EXPECT_EQ(
            user.Texts(kVentilFelder),
            (Texte{L"A-15", Weit(kNrA), L"DN-A15", L"preregolati e non preregolati (p.e. ritorno)",
                   L"Testa;", L"Squadra;", L"Ottone;", L"15", L"600", L"0.880", L"11"}));
        EXPECT_TRUE(user.IsChecked(kEinstellbar));
        EXPECT_EQ(user.Text(18066), L"xp       Regolazione           kv[m³/h]           kvs[m³/h");
        EXPECT_EQ(user.Items(kKvListe),
                  (Texte{L" 2.0    3.0:    0.550     0.880 ", L" 2.0    2.0:    0.434     0.648 ",
                         L" 1.0    1.0:    0.100     0.200 "}));
        EXPECT_EQ(user.Chosen(kKvListe), 0);
        user.Choose(kKvListe, 2);
    });
    ExpectIdentitaet(ventil, {L"Termostatiche", L"Serie A", L"Valvola 15", L"Alfa", Weit(kNrA)});
    EXPECT_EQ(ventil.DN, 15.0);
    EXPECT_EQ(ventil.Einstellbar, 1);
    EXPECT_EQ(ventil.AnzahlKv, 0) << "the table is fetched by the key";
    EXPECT_EQ(ventil.Kvs, 0.0F);
}

TEST_F(CVentVdiDlgTest, OnlyAValveCanBeConfirmed)
{
    Schreibe("Alfa", kAlfa);
    const auto ventil = Waehle([](CDialogUser& user) {
        user.ChooseInTree(kBaum, kPfadA);
        const Texte shown = user.Texts(kVentilFelder);
        for (const Pfad& path : {Pfad{L"Monotubo"}, Pfad{L"Monotubo", L"Serie M"}}) {
            user.ChooseInTree(kBaum, path);
            EXPECT_FALSE(user.IsEnabled(kIdOk));
            user.Press(Qt::Key_Return);
            EXPECT_FALSE(user.Dialog().HasEnded());
            EXPECT_EQ(user.Texts(kVentilFelder), shown);
        }
        user.ChooseInTree(kBaum, kPfadMono);
        EXPECT_TRUE(user.IsEnabled(kIdOk));
    });
    EXPECT_EQ(ventil.Bezeichnung, L"Mono 10");
}

TEST_F(CVentVdiDlgTest, OfEqualNamesTheFirstIsShownAndTheClickedGroupKept)
{
    Schreibe("Alfa", kAlfa);
    const auto ventil = Waehle([](CDialogUser& user) {
        user.ChooseInTree(kBaum, {L"Termostatiche", L"Serie B", L"Valvola 15"});
        EXPECT_EQ(user.Text(18025), L"A-15");
    });
    ExpectIdentitaet(ventil, {L"Termostatiche", L"Serie B", L"Valvola 15", L"Alfa", Weit(kNrA)});
}

TEST_F(CVentVdiDlgTest, AnArticleWithoutDataSetLeavesTheRestAsItStood)
{
    Schreibe("Alfa", kAlfa);
    const auto ventil = Waehle([](CDialogUser& user) {
        user.ChooseInTree(kBaum, kPfadA);
        const std::vector<int> rest = {18028, 18030, 18031, 18032, kDN, 18035, 18036};
        const Texte before = user.Texts(rest);
        user.ChooseInTree(kBaum, {L"Termostatiche", L"Serie A", L"Senza dati"});
        EXPECT_EQ(user.Texts({18025, kTga, 18027, 18043}),
                  (Texte{L"A-99", Weit(kNrOhne), L"", L"12"}));
        EXPECT_EQ(user.Texts(rest), before);
        EXPECT_EQ(user.Items(kKvListe).size(), 3U);
        EXPECT_TRUE(user.IsEnabled(kIdOk));
    });
    ExpectIdentitaet(ventil, {L"Termostatiche", L"Serie A", L"Senza dati", L"Alfa", Weit(kNrA)});
}

TEST_F(CVentVdiDlgTest, TheCheckBoxHasNoSay)
{
    Schreibe("Alfa", kAlfa);
    for (const auto& [path, einstellbar] :
         {std::pair{kPfadA, 1}, {Pfad{L"Termostatiche", L"Serie B", L"Doppia due"}, 0}}) {
        const auto ventil = Waehle([&, chosen = path](CDialogUser& user) {
            user.ChooseInTree(kBaum, chosen);
            const bool before = user.IsChecked(kEinstellbar);
            dynamic_cast<QAbstractButton&>(user.Widget(kEinstellbar)).click();
            EXPECT_NE(user.IsChecked(kEinstellbar), before);
        });
        EXPECT_EQ(ventil.Einstellbar, einstellbar);
    }
}

TEST_F(CVentVdiDlgTest, AnotherMakerKeepsTheValveUntilOneIsSelected)
{
    Schreibe("Alfa", kAlfa);
    Schreibe("Beta", kBeta);
    const auto ventil = Waehle([](CDialogUser& user) {
        user.ChooseInTree(kBaum, kPfadA);
        const Texte shown = user.Texts(kVentilFelder);
        user.Choose(kHersteller, L"Beta");
        EXPECT_EQ(user.TreeLines(kBaum), (Texte{L"Uno", L" Due", L"  Beta 32"}));
        EXPECT_EQ(user.Texts(kKopfFelder), (Texte{L"Beta N.V.", L"201001", L"20200101"}));
        EXPECT_EQ(user.Texts(kVentilFelder), shown);
        EXPECT_EQ(user.Items(kKvListe).size(), 3U);
        EXPECT_TRUE(user.IsEnabled(kIdOk));
    });
    ExpectIdentitaet(ventil, {L"Termostatiche", L"Serie A", L"Valvola 15", L"Alfa", Weit(kNrA)});

    const auto wieder = Waehle(
        [](CDialogUser& user) {
            user.Choose(kHersteller, L"Beta");
            user.ChooseInTree(kBaum, {L"Uno", L"Due", L"Beta 32"});
            user.ChooseInTree(kBaum, {L"Uno"});
            user.Choose(kHersteller, L"Alfa");
            EXPECT_FALSE(user.IsEnabled(kIdOk)) << "no valve of this number here";
            user.Choose(kHersteller, L"Beta");
            EXPECT_EQ(user.ChosenInTree(kBaum), (Pfad{L"Uno", L"Due", L"Beta 32"}))
                << "the preset again";
        },
        Weit(TgaNr("00", "0001", "04")), L"Alfa");
    EXPECT_EQ(wieder.Hersteller, L"Beta");
    EXPECT_EQ(wieder.DN, 32.0);
}

TEST_F(CVentVdiDlgTest, OpensOnThePresetValve)
{
    Schreibe("Alfa", kAlfa);
    Schreibe("Beta", kBeta);
    const struct
    {
        CString nummer;
        CString hersteller;
        int maker;
        Pfad selected;
        CString makerOfResult;
    } cases[] = {
        {Weit(kNrMono), L"Alfa", 0, kPfadMono, L"Alfa"},
        {Weit(TgaNr("00", "0001", "04")), L"Beta", 1, {L"Uno", L"Due", L"Beta 32"}, L"Beta"},
        // Of equal numbers the last one.
        {Weit(kNrDoppelt), L"Alfa", 0, {L"Termostatiche", L"Serie B", L"Doppia due"}, L"Alfa"},
        // A maker that is gone, or is written otherwise: the first one's file, and no maker.
        {Weit(kNrMono), L"Gamma", -1, kPfadMono, L""},
        {Weit(kNrMono), L"alfa", -1, kPfadMono, L""},
        {Weit(TgaNr("00", "0001", "04")), L"Gamma", -1, {}, L""},
        // No valve of that number: nothing selected, and the record is empty.
        {L"123", L"Beta", 1, {}, L""},
        // One of the two alone counts for nothing.
        {Weit(kNrMono), L"", 0, {}, L""},
        {L"", L"Beta", 0, {}, L""},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(testing::PrintToString(std::pair(test.nummer, test.hersteller)));
        const auto ventil = Waehle(
            [&](CDialogUser& user) {
                EXPECT_EQ(user.Chosen(kHersteller), test.maker);
                EXPECT_EQ(user.ChosenInTree(kBaum), test.selected);
                EXPECT_TRUE(user.IsEnabled(kIdOk));
                EXPECT_EQ(user.Text(kTga), test.selected.empty() ? L"<...>" : test.nummer);
            },
            test.nummer, test.hersteller);
        EXPECT_EQ(ventil.Hersteller, test.makerOfResult);
        EXPECT_EQ(ventil.VentilNr, test.selected.empty() ? L"" : test.nummer);
        EXPECT_EQ(ventil.Bezeichnung, test.selected.empty() ? L"" : test.selected.back());
    }
}

TEST_F(CVentVdiDlgTest, WithoutMakersTheDialogIsEmpty)
{
    m_folder.WriteBytes("ha.tga", Saetze(kAlfa));
    const auto leer = [](CDialogUser& user) {
        EXPECT_EQ(user.Items(kHersteller), Texte());
        EXPECT_EQ(Baum(user).topLevelItemCount(), 0);
        EXPECT_EQ(user.Text(18022), L"<...>");
    };
    ExpectLeer(Waehle(leer));
    ExpectLeer(Waehle(leer, Weit(kNrA), L"Alfa"));
    const CSettingOverride missing(kSettingVEDir, m_folder.Path("non-esiste"));
    ExpectLeer(Waehle(leer));
    EXPECT_TRUE(m_driver.Messages().empty());
}

TEST_F(CVentVdiDlgTest, AFileThatCannotBeLoadedEmptiesTheTree)
{
    Schreibe("A", kBeta);
    Schreibe("Guasto", "100;1;Uno;|110;1;|");
    Schreibe("Nuovo", "000;2;|" + kBeta);
    m_folder.WriteBytes("Senza/note.txt", "");
    Waehle([&](CDialogUser& user) {
        for (const auto& [maker, messages] :
             {std::pair{L"Senza", 0U}, {L"Nuovo", 0U}, {L"Guasto", 1U}}) {
            SCOPED_TRACE(testing::PrintToString(CString(maker)));
            user.Choose(kHersteller, L"A");
            EXPECT_EQ(Baum(user).topLevelItemCount(), 1);
            user.Choose(kHersteller, maker);
            EXPECT_EQ(Baum(user).topLevelItemCount(), 0);
            EXPECT_EQ(user.Text(18022), L"Beta N.V.") << "the head stays";
            EXPECT_EQ(m_driver.Messages().size(), messages);
        }
    });
}

TEST_F(CVentVdiDlgTest, ADamagedFirstFileStillOpensTheWholeDialog)
{
    Schreibe("A guasto", "100;1;Uno;|110;1;|");
    Schreibe("Beta", kBeta);
    m_platz.WriteBytes("fenster.txt", "VDI3805_VENTVDI|30|930|20|720|200|\r\n");
    const auto ventil = Waehle([&](CDialogUser& user) {
        EXPECT_EQ(m_driver.Messages().size(), 1U);
        EXPECT_EQ(user.Dialog().GetAlpha(), 200);
        EXPECT_EQ(user.Dialog().GetWindowRect(), (CRect{30, 20, 930, 720}));
        user.Choose(kHersteller, L"Beta");
        user.ChooseInTree(kBaum, {L"Uno", L"Due", L"Beta 32"});
    });
    EXPECT_EQ(ventil.DN, 32.0);
}

TEST_F(CVentVdiDlgTest, ABadDataSetIsReportedAndCannotBeConfirmed)
{
    Schreibe("A", "100;1;Uno;|110;1;Due;|700;1;2;15;0.8;|800;" + TgaNr("00", "0001") +
                      ";N;;;Guasta;|700;2;2;15;0.8;0;0;1;;;;1;;|800;" + TgaNr("00", "0002") +
                      ";N;;;Sana;");
    const auto ventil = Waehle([&](CDialogUser& user) {
        user.ChooseInTree(kBaum, {L"Uno", L"Due", L"Guasta"});
        EXPECT_EQ(m_driver.Messages().size(), 1U);
        EXPECT_FALSE(user.IsEnabled(kIdOk));
        user.ChooseInTree(kBaum, {L"Uno", L"Due", L"Sana"});
        EXPECT_TRUE(user.IsEnabled(kIdOk));
    });
    EXPECT_EQ(ventil.Bezeichnung, L"Sana");
}

/// A lone surrogate in a wide file.
TEST_F(CVentVdiDlgTest, ANameThatNoScreenCanShowIsNotShown)
{
    std::u16string text(1, char16_t(0xFEFF));
    for (const char c : Saetze("100;1;Uno;|110;1;Due;|700;1;2;15;0.8;0;0;1;;;;1;;|800;" +
                               TgaNr("00", "0001") + ";N;;;X#;")) {
        text += c == '#' ? char16_t(0xD800) : static_cast<char16_t>(c);
    }
    m_folder.WriteBytes("A/ha.tga", {reinterpret_cast<const char*>(text.data()), text.size() * 2});
    EXPECT_FALSE(Oeffne([](CDialogUser& user) {
        QTreeWidget& tree = Baum(user);
        ASSERT_EQ(tree.topLevelItemCount(), 1);
        tree.setCurrentItem(tree.topLevelItem(0)->child(0)->child(0));
        EXPECT_FALSE(user.IsEnabled(kIdOk));
        user.Click(kIdCancel);
    }));
}

TEST_F(CVentVdiDlgTest, PlaceAndOpacityAreKeptByOkAlone)
{
    Schreibe("Alfa", kAlfa);
    m_platz.WriteBytes("fenster.txt", "");
    const CRect place{40, 30, 1040, 780};
    const auto change = [&](CDialogUser& user) {
        EXPECT_EQ(user.Dialog().GetAlpha(), 255);
        user.Dialog().MoveWindow(place);
        user.ChooseOpacity(kDN, {Qt::Key_Right, Qt::Key_Escape});
        EXPECT_EQ(user.Dialog().GetAlpha(), 255);
        user.ChooseOpacity(kDN, {Qt::Key_PageUp, Qt::Key_Return});
        EXPECT_LT(user.Dialog().GetAlpha(), 255);
    };
    EXPECT_FALSE(Oeffne([&](CDialogUser& user) {
        change(user);
        user.ChooseInTree(kBaum, kPfadA);
        user.Focus(kBaum);
        user.Press(Qt::Key_Escape);
    }));
    EXPECT_EQ(m_platz.ReadBytes("fenster.txt"), "");

    int alpha = 0;
    Waehle([&](CDialogUser& user) {
        change(user);
        alpha = user.Dialog().GetAlpha();
    });
    EXPECT_FALSE(Oeffne([&](CDialogUser& user) {
        EXPECT_EQ(user.Dialog().GetAlpha(), alpha);
        EXPECT_EQ(user.Dialog().GetWindowRect(), place);
        user.Click(kIdCancel);
    }));
}

} // namespace
