// The valve and connection dialog: connection types, points, distances, and how it opens and ends.

#include "connection/vorschau.h"
#include "host/host_base.h"
#include "host/host_fittings.h"
#include "tests/src/connection/dialog/vent_dlg_fixture.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFrame>
#include <QImage>

#include <numeric>

using namespace reference_host;

namespace {

using Strings = std::vector<CString>;

const std::vector<int> kPunktFelder = {1017, 1018, 1013, 1015, 1016, 1014, 1020, 1023, 18075};
/// Relative x, y, z, offset x, y, z, angles.
const std::vector<int> kZahlen = {1013, 1015, 1016, 1014, 1020, 1023, 1017, 1018};

std::vector<int> Presets()
{
    std::vector<int> ids(16);
    std::iota(ids.begin(), ids.end(), 18079);
    return ids;
}

CString PunktText(const ConnVector& position, const ConnVector& offset, const ConnVector& winkel,
                  double seite = 0.0, double abstand = 0.0, int typ = 0)
{
    CString text;
    lmSet_K_APUNKT_X(text, position.data(), offset.data(), winkel.data(), seite, abstand, typ, 0.0);
    return text;
}

TEST_F(CVentDlgTest, OpensCollapsedOnWhatWasHandedIn)
{
    m_anschluss.KreuzTyp = 2;
    m_anschluss.KreuzAbstand = 0.3;
    m_anschluss.WandAbstand = 0.05;
    m_bFanCoil = true;
    const CSettingOverride unit(kSettingUserUnit, L"1000");
    Oeffne([](CDialogUser& user) {
        EXPECT_EQ(user.Dialog().GetWindowText(), L"Parametri valvole e attacco corpi scaldanti");
        EXPECT_EQ(user.Items(362), (Strings{L"Sinistra", L"Diagonale", L"Dal basso"}));
        EXPECT_EQ(user.Chosen(362), 1);
        EXPECT_EQ(user.Texts({18041, 18043, 18103, 18105, 18073, 371, 372}),
                  (Strings{L"200.0", L"100.0", L"300.0", L"50.0", L"Mio", L"15", L"15"}));
        EXPECT_EQ(user.Texts({18042, 18044, 18046, 18047}), (Strings(4, L"mm")));
        EXPECT_EQ(user.Texts({363, 364, 370, 365, 366, 369}),
                  (Strings{L"", L"", L"non regolabile", L"", L"", L"non regolabile"}));
        EXPECT_EQ(Chosen(user, {18104, 18100, 18101}), 18101);
        EXPECT_EQ(Chosen(user, Presets()), -1);
        EXPECT_EQ(Chosen(user, {1024, 1025}), -1);
        EXPECT_TRUE(user.IsChecked(18106) && user.IsChecked(18045) && user.IsChecked(18076) &&
                    user.IsChecked(18077));
        ExpectEnabled(user, {18103, 18105, 18076, 18077}, true);
        ExpectEnabled(user, kPunktFelder, false);
        ExpectEnabled(user, {1034, 1040, 1042, 1039, 1041, 1043}, true);
        EXPECT_FALSE(user.Widget(18074).isVisible());
        EXPECT_FALSE(user.Widget(18051).isVisible() || user.Widget(1013).isVisible());
    });
}

TEST_F(CVentDlgTest, OkStraightAwayChangesWhatTheDialogDecidesAndNothingElse)
{
    m_anschluss.KreuzTyp = 2;
    m_anschluss.KreuzAbstand = 0.3;
    m_anschluss.WandAbstand = 0.05;
    m_an.DN = 20.0;
    const ConnValues before = m_anschluss;
    Oeffne([](CDialogUser&) {});
    EXPECT_EQ(m_anschluss.Name, L"Mio");
    EXPECT_EQ(PunkteVon(m_anschluss), PunkteVon(before));
    EXPECT_EQ(m_anschluss.SeitAbstandAN, 0.2);
    EXPECT_EQ(m_anschluss.SeitAbstandRI, 0.1);
    EXPECT_EQ(m_anschluss.KreuzTyp, 2);
    EXPECT_EQ(m_anschluss.KreuzAbstand, 0.3);
    EXPECT_EQ(m_anschluss.WandAbstand, 0.05);
    EXPECT_EQ(m_anschluss.AnschlussAN,
              PunktText(before.PosAN, before.OffsetAN, before.WinkelAN, 0.2, 0.3, 2));
    EXPECT_EQ(m_anschluss.AnschlussRI,
              PunktText(before.PosRI, before.OffsetRI, before.WinkelRI, 0.1, 0.3, 2));
    EXPECT_EQ(m_anschluss.GrafikAN + m_anschluss.GrafikRI, L"");
    EXPECT_EQ(m_an.DN, 20.0);
    EXPECT_EQ(m_ri.DN, 15.0) << "a valve without diameter leaves with the usual one";
    EXPECT_EQ(m_ri.Bezeichnung, L"");
    EXPECT_TRUE(m_bVentile && m_bTyp);
    EXPECT_FALSE(m_bFanCoil);
    EXPECT_FALSE(m_platz.Exists("fenster.txt")) << "collapsed, no place is kept";
}

TEST_F(CVentDlgTest, OkJudgesEachPointAlone)
{
    m_anschluss.WinkelAN = {0, 90, 0};
    m_anschluss.KreuzTyp = 7;
    Oeffne([](CDialogUser& user) { EXPECT_EQ(Chosen(user, {18104, 18100, 18101}), -1); });
    EXPECT_EQ(m_anschluss.SeitAbstandAN, 0.0);
    EXPECT_EQ(m_anschluss.SeitAbstandRI, 0.1) << "out of its field, whatever the sketch made of it";
    EXPECT_EQ(m_anschluss.KreuzTyp, -1);
    EXPECT_EQ(m_anschluss.KreuzAbstand, 0.0);
}

TEST_F(CVentDlgTest, CancelChangesNothingOfTheCallers)
{
    CTestObjekte list(1);
    CTestDrawer drawer;
    m_pListe = list.Head();
    m_pDrawer = &drawer;
    const ConnValues before = m_anschluss;
    OeffneErweitert(
        [](CDialogUser& user) {
            user.Choose(362, 0);
            user.Click(18045);
        },
        kIdCancel);
    EXPECT_EQ(m_anschluss.AnschlussRI, before.AnschlussRI);
    EXPECT_EQ(m_anschluss.PosRI, before.PosRI);
    EXPECT_EQ(m_anschluss.GrafikAN, L"ANGOLO");
    EXPECT_FALSE(m_bVentile || m_bTyp || m_bFanCoil);
    EXPECT_EQ(m_an.DN, 0.0);
    EXPECT_EQ(drawer.aufrufe.back(), 'C');
    EXPECT_EQ(list.Attribute(0), L"H_LAENGE=1 H_VL_PUNKT=" + AnschlussPreset(0) + L" H_RL_PUNKT=" +
                                     AnschlussPreset(1) + L" ")
        << "what the preview wrote stays";
    EXPECT_FALSE(m_platz.Exists("fenster.txt"));
}

TEST_F(CVentDlgTest, GroupsSwitchTheirControls)
{
    Oeffne([](CDialogUser& user) {
        const std::vector<int> typ = {362, 18040, 18041, 18043, 16022};
        const std::vector<int> ventile = {371, 367, 1024, 363,  364,   372,
                                          365, 366, 368,  1025, 18095, 18096};
        for (const bool on : {false, true, false}) {
            user.Click(18076);
            ExpectEnabled(user, typ, on);
            user.Click(18077);
            ExpectEnabled(user, ventile, on);
            ExpectEnabled(user, {18079, 18106, 18097, 18099}, true);
        }
        user.Click(18045);
    });
    EXPECT_FALSE(m_bTyp || m_bVentile);
    EXPECT_TRUE(m_bFanCoil);

    m_bGruppen = false;
    Oeffne([](CDialogUser& user) { ExpectEnabled(user, {18076, 18077}, false); });
    EXPECT_TRUE(m_bTyp && m_bVentile);
}

TEST_F(CVentDlgTest, AChosenTypeReplacesAllButTheSideDistances)
{
    OeffneErweitert([](CDialogUser& user) {
        user.Click(18040);
        EXPECT_TRUE(user.IsChecked(18040));
        user.Choose(362, 0);
        EXPECT_FALSE(user.IsChecked(18040));
        EXPECT_EQ(user.Text(18073), L"Sinistra");
        EXPECT_EQ(user.Texts({18041, 18043}), (Strings{L"0.200", L"0.100"}));
        ExpectEnabled(user, kPunktFelder, false);
        user.Click(1025);
        ExpectEnabled(user, kPunktFelder, true);
        EXPECT_EQ(user.Texts(kZahlen),
                  (Strings{L"-0.5", L"0", L"-0.5", L"0", L"0", L"0.03", L"180", L"0"}));
        user.Choose(362, 2);
        ExpectEnabled(user, kPunktFelder, true);
        EXPECT_EQ(user.Texts(kZahlen),
                  (Strings{L"-0.5", L"0", L"-0.5", L"0.06", L"0", L"0", L"0", L"270"}));
        EXPECT_EQ(Chosen(user, Presets()), -1);
        user.Choose(362, 0);
    });
    EXPECT_EQ(m_anschluss.Name, L"Sinistra");
    EXPECT_EQ(m_anschluss.PosRI, (ConnVector{-0.5, 0, -0.5}));
    EXPECT_EQ(m_anschluss.SeitAbstandAN, 0.2);
    EXPECT_EQ(m_anschluss.SeitAbstandRI, 0.1);
}

TEST_F(CVentDlgTest, ARecordOfNoTypeGetsANameOfItsOwn)
{
    m_anschluss.PosRI = {0.5, 0, 0.25};
    OeffneErweitert([&](CDialogUser& user) {
        EXPECT_EQ(user.Items(362).back(), L"_3_");
        EXPECT_EQ(user.Chosen(362), 3);
        user.Click(18071);
        EXPECT_EQ(m_driver.Messages().size(), 1U) << "no entry belongs to that name";
        EXPECT_FALSE(user.Dialog().HasEnded());
        user.Choose(362, 3);
        EXPECT_EQ(user.Chosen(362), 0) << "stands for the first entry";
        EXPECT_EQ(user.Text(18073), L"Sinistra");
    });

    Kurzliste("[Solo]\r\n[Nomi]\r\n");
    m_anschluss.PosRI = {0.5, 0, 0.25};
    Oeffne([&](CDialogUser& user) {
        user.Choose(362, 2);
        EXPECT_EQ(m_driver.Messages().size(), 2U) << "no entry at all";
    });
    EXPECT_EQ(m_anschluss.PosRI, (ConnVector{0.5, 0, 0.25}));
}

TEST_F(CVentDlgTest, AnUnreadableShortListLeavesTheDialogUsable)
{
    for (const char* text : {"", "[Rotto]\r\nV1;2;3\r\n"}) {
        Kurzliste(text);
        const ConnVector before = m_anschluss.PosRI;
        m_anschluss.AnschlussAN.clear();
        Oeffne([&](CDialogUser& user) {
            user.Click(1024);
            ExpectEnabled(user, kPunktFelder, false);
            EXPECT_EQ(user.Texts({363, 364, 370, 365, 366, 369}), Strings(6, L"<...>"));
            EXPECT_EQ(user.Text(18041), L"0.200");
            user.Click(18095);
            EXPECT_EQ(user.Texts({363, 370, 369}),
                      (Strings{L"", L"non regolabile", L"non regolabile"}));
        });
        EXPECT_EQ(m_anschluss.PosRI, before);
    }
    EXPECT_EQ(m_driver.Messages().size(), 1U);
}

TEST_F(CVentDlgTest, CrossOverAndWallOpenTheirFields)
{
    Oeffne([](CDialogUser& user) {
        ExpectEnabled(user, {18103, 18105}, false);
        user.Click(18101);
        EXPECT_TRUE(user.IsEnabled(18103));
        user.Click(18104);
        EXPECT_FALSE(user.IsEnabled(18103));
        user.Click(18100);
        user.Type(18103, L"0,25");
        user.Click(18106);
        EXPECT_TRUE(user.IsEnabled(18105));
        EXPECT_EQ(user.Text(18105), L"0.200") << "starts with the flow's side distance";
        user.Click(18106);
        EXPECT_FALSE(user.IsEnabled(18105));
        user.Type(18041, L"0.3");
        user.Click(18106);
        EXPECT_EQ(user.Text(18105), L"0.200") << "a distance that is given stays";
        user.Type(18105, L"0");
        user.Click(18106);
        EXPECT_EQ(user.Text(18105), L"0");
        user.Click(18106);
        user.Type(18105, L"0.04");
    });
    EXPECT_EQ(m_anschluss.KreuzTyp, 1);
    EXPECT_EQ(m_anschluss.KreuzAbstand, 0.25);
    EXPECT_EQ(m_anschluss.WandAbstand, 0.04);

    Oeffne([](CDialogUser& user) {
        EXPECT_EQ(user.Text(18105), L"0.040");
        user.Click(18106);
    });
    EXPECT_EQ(m_anschluss.WandAbstand, 0.0);
}

TEST_F(CVentDlgTest, SideDistancesAreJudgedWhenTheyAreLeft)
{
    m_anschluss.SeitAbstandAN = m_anschluss.SeitAbstandRI = 0.0;
    Oeffne([](CDialogUser& user) {
        EXPECT_EQ(user.Texts({18041, 18043}), (Strings{L"0.100", L"0.050"})) << "mirror positions";
        user.Choose(362, 0);
        user.Type(18041, L"0.3");
        QCoreApplication::processEvents();
        EXPECT_EQ(user.Text(18041), L"0.3") << "nothing is judged while the user types";
        user.Focus(18043);
        EXPECT_EQ(user.Texts({18041, 18043}), (Strings{L"0.3", L"0.050"}));
        user.Type(18043, L"0,3");
        user.Focus(362);
        EXPECT_EQ(user.Texts({18041, 18043}), (Strings{L"0.100", L"0.050"})) << "equal";
    });
    EXPECT_EQ(m_anschluss.SeitAbstandAN, 0.1);
    EXPECT_EQ(m_anschluss.SeitAbstandRI, 0.05);
}

TEST_F(CVentDlgTest, InvertiExchangesThePointsAndNotTheFields)
{
    OeffneErweitert([](CDialogUser& user) {
        user.Click(1024);
        const Strings shown = user.Texts(kZahlen);
        user.Click(18040);
        EXPECT_EQ(user.Texts(kZahlen), shown);
        user.Click(1024);
        EXPECT_EQ(user.Text(1013), L"0.5");
        user.Click(18040);
        user.Click(18040);
    });
    EXPECT_EQ(m_anschluss.PosAN, (ConnVector{0.5, 0, -0.5}));
    EXPECT_EQ(m_anschluss.WinkelRI, (ConnVector{180, 0, 0}));
    EXPECT_EQ(m_anschluss.SeitAbstandAN, 0.2);
}

/// What the sketch shows at a point.
struct Bild
{
    explicit Bild(const CDialogUser& user)
    {
        auto& frame = dynamic_cast<QFrame&>(user.Widget(16022));
        image = frame.grab().toImage().copy(frame.contentsRect());
        rect = image.rect().adjusted(12, 12, -12, -12);
    }
    QPoint Ort(double u, double v) const
    {
        return {int(rect.width() * u) + (2 * rect.left() + rect.width()) / 2,
                (2 * rect.top() + rect.height()) / 2 - int(rect.height() * v)};
    }
    QRgb At(QPoint p) const { return image.pixel(p); }

    QImage image;
    QRect rect;
};

TEST_F(CVentDlgTest, EveryPresetShowsItsMarkerAndArrowOnBothPoints)
{
    // Fractions of length and height from the middle, offsets threefold, and the way into it.
    const struct
    {
        double u, v;
        QPoint into;
    } rows[16] = {
        {-0.5, 0.41, {1, 0}}, {-0.5, -0.41, {1, 0}},  {-0.41, 0.5, {0, 1}}, {-0.41, -0.5, {0, -1}},
        {-0.32, 0.5, {0, 1}}, {-0.32, -0.5, {0, -1}}, {-0.09, 0.5, {0, 1}}, {-0.09, -0.5, {0, -1}},
        {0.09, 0.5, {0, 1}},  {0.09, -0.5, {0, -1}},  {0.32, 0.5, {0, 1}},  {0.32, -0.5, {0, -1}},
        {0.41, 0.5, {0, 1}},  {0.41, -0.5, {0, -1}},  {0.5, 0.41, {-1, 0}}, {0.5, -0.41, {-1, 0}},
    };
    for (const bool back : {false, true}) {
        SetzePunkte({{{}, {}, {}, {0.01, 0, 0}}});
        Oeffne([&](CDialogUser& user) {
            user.Click(back ? 1025 : 1024);
            for (int row = 0; row < 16; ++row) {
                SCOPED_TRACE(std::to_string(row) + (back ? " return" : " flow"));
                user.Click(18079 + row);
                const Bild bild(user);
                const QPoint ort = bild.Ort(rows[row].u, rows[row].v);
                const QPoint way = back ? -rows[row].into : rows[row].into;
                const QPoint across(way.y(), way.x());
                const QRgb color = back ? qRgb(0, 0, 255) : qRgb(255, 0, 0);
                EXPECT_EQ(bild.At(ort + QPoint(-6, -6)), qRgb(10, 0, 0));
                EXPECT_EQ(bild.At(ort + QPoint(5, 5)), qRgb(10, 0, 0));
                EXPECT_EQ(bild.At(ort), color);
                EXPECT_EQ(bild.At(ort - 8 * way), color) << "shaft";
                EXPECT_EQ(bild.At(ort + 6 * way + 3 * across), color) << "head";
                EXPECT_EQ(bild.At(ort + 6 * way - 3 * across), color) << "head";
                EXPECT_NE(bild.At(ort - 6 * way + 3 * across), color) << "no head at the tail";
            }
            const Bild bild(user);
            EXPECT_EQ(bild.At(bild.rect.topLeft()), qRgb(0, 0, 0)) << "the radiator's outline";
            EXPECT_EQ(bild.At(bild.rect.bottomRight() - QPoint(0, 20)), qRgb(0, 0, 0));
        });
        EXPECT_EQ(back ? m_anschluss.OffsetRI : m_anschluss.OffsetAN, (ConnVector{0, 0, 0.03}));
    }
}

TEST_F(CVentDlgTest, APresetBeforeAnyPointPlacesTheFlow)
{
    Oeffne([](CDialogUser& user) {
        user.Click(18080);
        EXPECT_EQ(Chosen(user, {1024, 1025}), 1024);
        EXPECT_EQ(Chosen(user, Presets()), 18080);
        ExpectEnabled(user, kPunktFelder, false);
    });
    EXPECT_EQ(m_anschluss.PosAN, (ConnVector{-0.5, 0, -0.5}));
}

TEST_F(CVentDlgTest, ASuperuserExpandsTheDialog)
{
    const CSettingOverride super(kSettingSuperUser, L"1");
    Oeffne([](CDialogUser& user) {
        const CDialog& dialog = user.Dialog();
        const CRect small = dialog.GetWindowRect();
        EXPECT_EQ(user.Text(18074), L"Espandi >>");
        EXPECT_EQ(dialog.GetClientRect().Height(),
                  dialog.MapDialogRect({0, 0, 267, 377}).Height() - 120);
        EXPECT_GE(user.Widget(18073).y(), dialog.GetClientRect().Height()) << "below the edge";
        ExpectEnabled(user, {18071, 18072, 18073}, false);
        const int ok = user.Widget(kIdOk).y();
        const int name = user.Widget(18073).y();

        user.Click(18074);
        EXPECT_EQ(user.Text(18074), L"Riduci <<");
        CRect large = small;
        large.bottom += 120;
        EXPECT_EQ(dialog.GetWindowRect(), large);
        EXPECT_EQ(user.Widget(kIdOk).y(), ok + 120);
        EXPECT_EQ(user.Widget(18074).y(), ok + 120);
        EXPECT_EQ(user.Widget(18073).y(), name);
        ExpectEnabled(user, {18071, 18072, 18073}, true);
        for (const int id : {18051, 18052, 1013, 1034, 1018, 18075, 18108, 1043, 18045}) {
            EXPECT_TRUE(user.Widget(id).isVisible()) << id;
        }
        user.Click(18074);
        EXPECT_EQ(dialog.GetWindowRect(), small);
        EXPECT_FALSE(user.Widget(18045).isVisible());
    });
    // The first save of a working place makes the file, the second one keeps the line.
    OeffneErweitert([](CDialogUser&) {});
    OeffneErweitert([](CDialogUser& user) { user.Dialog().MoveWindow({40, 30, 500, 650}); });
    EXPECT_NE(m_platz.ReadBytes("fenster.txt").find('V'), std::string::npos);
    Oeffne([](CDialogUser& user) { EXPECT_EQ(user.Dialog().GetWindowRect().left, 40); });
}

TEST_F(CVentDlgTest, PointFieldsWriteTheActivePoint)
{
    CTestObjekte list(1);
    CTestDrawer drawer;
    m_pListe = list.Head();
    m_pDrawer = &drawer;
    OeffneErweitert([&](CDialogUser& user) {
        user.Step(1034, 1);
        EXPECT_EQ(user.Text(1013), L"0.05") << "a step before any point moves the field only";
        user.Click(1025);
        EXPECT_EQ(user.Text(1013), L"0.5");
        user.Type(1014, L"0.05");
        EXPECT_EQ(user.Text(1014), L"0.05") << "as typed, though each key shows the fields anew";
        const struct
        {
            int spin, field, delta;
            const wchar_t* text;
        } steps[] = {
            {1034, 1013, -1, L"0.45"}, {1040, 1015, 1, L"0.05"},   {1042, 1016, 1, L"-0.45"},
            {1039, 1014, 1, L"0.1"},   {1041, 1020, -1, L"-0.05"}, {1043, 1023, 1, L"0.08"},
        };
        for (const auto& step : steps) {
            user.Step(step.spin, step.delta);
            EXPECT_EQ(user.Text(step.field), step.text) << step.spin;
        }
        const Strings angles[] = {
            {L"0", L"270"}, {L"0", L"90"}, {L"180", L"0"}, {L"0", L"0"}, {L"0", L"270"}};
        for (const Strings& pair : angles) {
            user.Step(18075, -1);
            EXPECT_EQ(user.Texts({1017, 1018}), pair);
        }
        user.Step(18075, 1);
        EXPECT_EQ(user.Texts({1017, 1018}), (Strings{L"0", L"0"})) << "round to the first";
        EXPECT_EQ(list.Attribute(0).substr(list.Attribute(0).find(L"H_RL")),
                  L"H_RL_PUNKT=" + PunktText({0.45, 0.05, -0.45}, {0.1, -0.05, 0.08}, {0, 0, 0}) +
                      L" ");
    });
    EXPECT_EQ(PunkteVon(m_anschluss), (Punkte{{{-0.5, 0, 0.5},
                                               {0, 0, -0.03},
                                               {180, 0, 0},
                                               {0.45, 0.05, -0.45},
                                               {0.1, -0.05, 0.08},
                                               {0, 0, 0}}}));
}

TEST_F(CVentDlgTest, AFieldWithoutANumberIsToldAndTheEventGoesOn)
{
    OeffneErweitert([&](CDialogUser& user) {
        user.Click(1024);
        user.Type(1015, L"x");
        ASSERT_FALSE(m_driver.Messages().empty());
        EXPECT_EQ(m_driver.Messages().back().text, L"Inserire un numero.");
        EXPECT_EQ(user.Dialog().GetFocusId(), 1015);
        user.Click(18045);
        user.Type(1013, L"-0.25");
        user.Type(1015, L"0.1");
    });
    EXPECT_EQ(m_anschluss.PosAN, (ConnVector{-0.25, 0.1, 0.5}));
    EXPECT_TRUE(m_bFanCoil);
}

TEST_F(CVentDlgTest, ThePreviewDrawsTheConnectionsOfEveryRadiator)
{
    Kurzliste("[Sinistra]\r\nV" + P(0) + ";0.2\r\nR" + P(1) + ";0.1\r\n");
    for (const int count : {1, 60}) {
        CTestObjekte list(count);
        CTestDrawer drawer;
        m_pListe = list.Head();
        m_pDrawer = &drawer;
        Oeffne([&](CDialogUser& user) {
            drawer.aufrufe.clear();
            drawer.punkte.clear();
            user.Choose(362, 0);
            std::string expected = "CB";
            for (int i = 0; i < count; ++i) {
                expected += "vr";
            }
            EXPECT_EQ(drawer.aufrufe, expected + "E");
            const auto& last = drawer.punkte.back();
            EXPECT_EQ(last.punkt, (std::array{2.0 * (count - 1) - 0.5, 0.0, 0.03}));
            EXPECT_EQ(last.farbe, lmGetGewerkColor(kGewerkRuecklauf));
            EXPECT_EQ(drawer.punkte.front().farbe, lmGetGewerkColor(kGewerkVorlauf));
            EXPECT_EQ(std::pair(drawer.punkte.front().wert, last.wert), std::pair(0.2, 0.1));
            EXPECT_NEAR(last.richtung[0], -1.0, 1e-9);
            drawer.aufrufe.clear();
        });
        EXPECT_EQ(drawer.aufrufe, "C") << "OK takes the preview away";
        m_anschluss.AnschlussAN = AnschlussPreset(0);
        m_anschluss.AnschlussRI = AnschlussPreset(1);
    }
    CTestDrawer drawer;
    m_pListe = nullptr;
    m_pDrawer = &drawer;
    Oeffne([](CDialogUser& user) { user.Choose(362, 0); });
    EXPECT_EQ(drawer.aufrufe, "C") << "without radiators there is no preview";
    CTestObjekte list(1);
    m_pListe = list.Head();
    m_pDrawer = nullptr;
    Oeffne([](CDialogUser& user) { user.Choose(362, 0); });
    EXPECT_EQ(list.Attribute(0), L"H_LAENGE=1 ") << "nor without a drawing";
}

TEST(AnschlussVorschau, PassesOverARadiatorWithoutAPoint)
{
    CTestObjekte list(2);
    list.Head()->pNext->Attribute->pNext =
        new ALIST{L"H_RL_PUNKT", L"", new ALIST{L"H_RL_PUNKT", AnschlussPreset(0), nullptr}};
    CTestDrawer drawer;
    ZeichneAnschlussVorschau(list.Head(), drawer, ConnValues());
    EXPECT_EQ(drawer.aufrufe, "CBrE");
}

TEST_F(CVentDlgTest, StoredTypesHoldUntilTheDialogCloses)
{
    const std::string before = m_root.ReadBytes("HEIZUNG/Vent.txt");
    OeffneErweitert([](CDialogUser& user) {
        user.Choose(362, 2);
        user.Type(18073, L"Nuovo");
        user.Click(18072);
        EXPECT_EQ(user.Items(362).size(), 4U);
        EXPECT_EQ(user.Items(362).back(), L"Nuovo");
        EXPECT_EQ(user.Chosen(362), 3);

        user.Choose(362, 0);
        user.Type(18073, L"Diagonale");
        user.Click(18072);
        EXPECT_EQ(user.Items(362).size(), 4U) << "a name that exists overwrites the chosen entry";
        user.Choose(362, 0);
        EXPECT_EQ(user.Text(18073), L"Diagonale");

        user.Type(18073, L"Altro");
        user.Click(18071);
        user.Choose(362, 3);
        EXPECT_EQ(user.Text(18073), L"Nuovo");
        user.Choose(362, 0);
        EXPECT_EQ(user.Text(18073), L"Altro");
    });
    EXPECT_EQ(m_anschluss.Name, L"Altro");
    EXPECT_EQ(m_root.ReadBytes("HEIZUNG/Vent.txt"), before);
    EXPECT_FALSE(std::filesystem::is_empty(std::filesystem::current_path()))
        << "the list goes to a file named by its last line";
}

} // namespace
