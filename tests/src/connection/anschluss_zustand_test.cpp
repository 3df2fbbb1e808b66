#include "connection/anschluss_zustand.h"

#include "common/units.h"
#include "connection/kurzliste.h"
#include "connection/presets.h"
#include "platform/exception.h"
#include "tests/src/connection/test_ansicht.h"
#include "tests/support/setting_override.h"

#include <gtest/gtest.h>

#include <array>
#include <tuple>

namespace {

class AnschlussTest : public ::testing::Test
{
protected:
    AnschlussTest() { ResetUnits(); }
    ~AnschlussTest() override { ResetUnits(); }

    CAnschlussZustand m_zustand;
    CTestAnsicht m_ansicht;
};

ConnValues Eintrag(int presetAN, int presetRI, const CString& name = L"Tipo")
{
    Anschlussliste liste;
    NeuerEintrag(liste, name, AnschlussPreset(presetAN), AnschlussPreset(presetRI));
    return liste[0];
}

TEST_F(AnschlussTest, PresetsArePointsWithTheirDirections)
{
    struct Expected
    {
        double x, dx, z, dz, winkel1, winkel2;
    };
    const Expected expected[] = {
        {-0.5, 0, 0.5, -0.03, 180, 0}, {-0.5, 0, -0.5, 0.03, 180, 0}, {-0.5, 0.03, 0.5, 0, 0, 90},
        {-0.5, 0.03, -0.5, 0, 0, 270}, {-0.5, 0.06, 0.5, 0, 0, 90},   {-0.5, 0.06, -0.5, 0, 0, 270},
        {0, -0.03, 0.5, 0, 0, 90},     {0, -0.03, -0.5, 0, 0, 270},   {0, 0.03, 0.5, 0, 0, 90},
        {0, 0.03, -0.5, 0, 0, 270},    {0.5, -0.06, 0.5, 0, 0, 90},   {0.5, -0.06, -0.5, 0, 0, 270},
        {0.5, -0.03, 0.5, 0, 0, 90},   {0.5, -0.03, -0.5, 0, 0, 270}, {0.5, 0, 0.5, -0.03, 0, 0},
        {0.5, 0, -0.5, 0.03, 0, 0},    {-0.5, 0, 0.5, 0, 180, 0},     {-0.5, 0.01, -0.5, 0, 180, 0},
    };
    int row = 0;
    for (const Expected& e : expected) {
        m_zustand.m_Punkt = Punkt::ruecklauf;
        SetzePreset(row, m_zustand, m_ansicht);
        const ConnValues& werte = m_zustand.m_Aktuell;
        EXPECT_EQ(werte.PosRI, (ConnVector{e.x, 0, e.z})) << row;
        EXPECT_EQ(werte.OffsetRI, (ConnVector{e.dx, 0, e.dz})) << row;
        EXPECT_EQ(werte.WinkelRI, (ConnVector{e.winkel1, e.winkel2, 0})) << row;
        EXPECT_EQ(werte.AnschlussRI, AnschlussPreset(row));
        ++row;
    }
    EXPECT_THROW(AnschlussPreset(-1), CInvalidArgException);
    EXPECT_THROW(AnschlussPreset(19), CInvalidArgException);
}

TEST_F(AnschlussTest, APresetChoosesTheFlowPointIfNoneIsChosenAndKeepsTheSideDistances)
{
    m_zustand.m_Eingang.SeitAbstandAN = 0.2;
    m_zustand.m_Eingang.SeitAbstandRI = 0.3;
    m_zustand.m_Aktuell.SeitAbstandAN = 7;
    m_zustand.m_Aktuell.KreuzAbstand = 7;
    m_zustand.m_Aktuell.KreuzTyp = 2;
    m_zustand.m_Aktuell.WandAbstand = 7;
    double drawn = 0.0;
    m_ansicht.beimZeichnen = [&] { drawn = m_zustand.m_Aktuell.SeitAbstandAN; };
    SetzePreset(1, m_zustand, m_ansicht);
    EXPECT_EQ(drawn, 0.2) << "restored before it is drawn";
    EXPECT_EQ(m_zustand.m_Punkt, Punkt::vorlauf);
    EXPECT_EQ(m_ansicht.gezeigt, Punkt::vorlauf);
    EXPECT_EQ(m_zustand.m_Aktuell.PosAN, (ConnVector{-0.5, 0, -0.5}));
    EXPECT_EQ(m_zustand.m_Aktuell.SeitAbstandAN, 0.2);
    EXPECT_EQ(m_zustand.m_Aktuell.SeitAbstandRI, 0.3);
    EXPECT_EQ(m_zustand.m_Aktuell.KreuzAbstand, 0.0) << "the text has only eight numbers";
    EXPECT_EQ(m_zustand.m_Aktuell.KreuzTyp, 0);
    EXPECT_EQ(m_zustand.m_Aktuell.WandAbstand, 0.0);
    EXPECT_EQ(m_ansicht.aufrufe, "Sketch Preview ");

    m_ansicht.aufrufe.clear();
    SetzePreset(18, m_zustand, m_ansicht);
    EXPECT_EQ(m_zustand.m_Aktuell.AnschlussAN, L"") << "assigned before it is read";
    EXPECT_EQ(m_zustand.m_Aktuell.PosAN, (ConnVector{-0.5, 0, -0.5}));
    EXPECT_EQ(m_ansicht.aufrufe, "");
}

TEST_F(AnschlussTest, SideDistancesFollowThePlacesOfThePoints)
{
    struct Case
    {
        const char* what;
        int presetAN, presetRI;
        double an, ri;
        bool defaults, zero;
    };
    const Case cases[] = {
        {"one end, two distances", 0, 1, 0.2, 0.1, false, false},
        {"one end, equal distances", 0, 1, 0.2, 0.2, true, false},
        {"one end, one distance", 0, 1, 0.0, 0.1, true, false},
        {"one end, no distance", 0, 1, 0.0, 0.0, true, false},
        {"mirror ends, none", 0, 15, 0.0, 0.0, true, false},
        {"mirror ends, one", 0, 15, 0.0, 0.1, false, false},
        {"mirror ends, equal", 0, 15, 0.1, 0.1, false, false},
        {"end and inner point", 0, 17, 0.0, 0.0, false, false},
        {"flow upward", 2, 1, 0.2, 0.1, false, true},
        {"return downward", 1, 3, 0.2, 0.1, false, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        m_zustand.m_Aktuell = Eintrag(c.presetAN, c.presetRI);
        m_zustand.m_Aktuell.SeitAbstandAN = c.an;
        m_zustand.m_Aktuell.SeitAbstandRI = c.ri;
        m_zustand.m_TextSeitAN = m_zustand.m_TextSeitRI = L"prima";
        m_ansicht.aufrufe.clear();
        PruefeSeitAbstand(m_zustand, m_ansicht);
        EXPECT_EQ(m_zustand.m_TextSeitAN, c.defaults ? L"0.100" : L"prima");
        EXPECT_EQ(m_zustand.m_TextSeitRI, c.defaults ? L"0.050" : L"prima");
        EXPECT_EQ(m_ansicht.aufrufe, c.defaults ? "Fields " : "");
        EXPECT_EQ(m_zustand.m_Aktuell.SeitAbstandAN, c.zero ? 0.0 : c.an)
            << "only the texts change";
        EXPECT_EQ(m_zustand.m_Aktuell.SeitAbstandRI, c.zero ? 0.0 : c.ri);
    }
}

TEST_F(AnschlussTest, ExchangingTwiceRestoresTheRecordAndOnceLeavesTheSidesAlone)
{
    const auto punkte = [](const ConnValues& a) {
        return std::array{a.PosAN, a.OffsetAN, a.WinkelAN, a.PosRI, a.OffsetRI, a.WinkelRI};
    };
    const std::array<ConnVector, 3> an = {{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}};
    const std::array<ConnVector, 3> ri = {{{-1, -2, -3}, {-4, -5, -6}, {-7, -8, -9}}};
    ConnValues& werte = m_zustand.m_Aktuell;
    std::tie(werte.PosAN, werte.OffsetAN, werte.WinkelAN) = std::tuple_cat(an);
    std::tie(werte.PosRI, werte.OffsetRI, werte.WinkelRI) = std::tuple_cat(ri);
    werte.SeitAbstandAN = 0.2;
    werte.GrafikAN = L"an";
    werte.AnschlussAN = L"andata";
    werte.AnschlussRI = L"ritorno";

    TauscheAnRi(m_zustand, m_ansicht);
    EXPECT_EQ(punkte(werte), (std::array{ri[0], ri[1], ri[2], an[0], an[1], an[2]}));
    EXPECT_EQ(werte.AnschlussAN + werte.AnschlussRI, L"ritornoandata");
    EXPECT_EQ(werte.SeitAbstandAN, 0.2);
    EXPECT_EQ(werte.GrafikAN, L"an");
    EXPECT_EQ(m_ansicht.aufrufe, "Sketch Preview ");

    TauscheAnRi(m_zustand, m_ansicht);
    EXPECT_EQ(punkte(werte), (std::array{an[0], an[1], an[2], ri[0], ri[1], ri[2]}));
    EXPECT_EQ(werte.AnschlussAN + werte.AnschlussRI, L"andataritorno");
    m_zustand.m_Aktuell.AnschlussAN = CString(600, L'x');
    TauscheAnRi(m_zustand, m_ansicht);
    EXPECT_EQ(m_zustand.m_Aktuell.AnschlussRI.size(), 511U) << "what the exchange can carry";
}

TEST_F(AnschlussTest, ARecordIsFoundByItsPointsWhateverTheAnglesOfItsFlow)
{
    m_ansicht.typen.texte = {L"altro", L"primo", L"secondo"};
    m_zustand.m_Anschlussliste.Add(Eintrag(2, 3, L"altro"));
    m_zustand.m_Anschlussliste.Add(Eintrag(0, 1, L"primo"));
    m_zustand.m_Anschlussliste.Add(Eintrag(0, 1, L"secondo"));
    m_zustand.m_Eingang = Eintrag(0, 1);
    m_zustand.m_Eingang.WinkelAN = {1, 2, 3};
    FindeAnschlussTyp(m_zustand, m_ansicht);
    EXPECT_EQ(m_ansicht.typen.gewaehlt, 1) << "the first match";
    EXPECT_EQ(m_ansicht.aufrufe, "Apply ");

    // Any other difference, in whichever of the five vectors and axes, is another type.
    for (ConnVector ConnValues::*feld :
         {&ConnValues::PosAN, &ConnValues::OffsetAN, &ConnValues::PosRI, &ConnValues::OffsetRI,
          &ConnValues::WinkelRI}) {
        for (std::size_t achse = 0; achse < 3; ++achse) {
            m_zustand.m_Eingang = Eintrag(0, 1);
            (m_zustand.m_Eingang.*feld)[achse] += 0.001;
            m_ansicht = {};
            FindeAnschlussTyp(m_zustand, m_ansicht);
            EXPECT_EQ(m_ansicht.aufrufe, "Preview ");
        }
    }
}

TEST_F(AnschlussTest, ARecordWithoutAMatchGetsANameOfItsOwnIfItsReturnIsAPoint)
{
    // A return text of ten characters holds no point worth a name.
    m_zustand.m_Eingang = Eintrag(0, 1, L"mio");
    m_zustand.m_Eingang.AnschlussRI = L"0;0;0;0;0;";
    FindeAnschlussTyp(m_zustand, m_ansicht);
    EXPECT_EQ(m_ansicht.aufrufe, "");
    EXPECT_EQ(m_ansicht.typen.gewaehlt, -1);
    EXPECT_EQ(m_zustand.m_Aktuell.AnschlussRI, L"0;0;0;0;0;")
        << "the record is taken over all the same";

    m_zustand.m_Eingang.AnschlussRI = L"0;0;0;0;0;0";
    FindeAnschlussTyp(m_zustand, m_ansicht);
    EXPECT_EQ(m_ansicht.typen.texte, std::vector<CString>{L"_0_"}) << "eleven characters do";
}

TEST_F(AnschlussTest, UnsetNumbersAreReadFromTheTextsInPlace)
{
    // Distances behind the eighth number: 0.2 and 0.3 arrive crossed.
    m_ansicht.typen.texte = {L"tipo"};
    m_zustand.m_Anschlussliste.Add(Eintrag(0, 1));
    m_zustand.m_Eingang.AnschlussAN = AnschlussPreset(0) + L"; 0.2; 0.3; 1; 0.4";
    m_zustand.m_Eingang.AnschlussRI = AnschlussPreset(1) + L"; 0.5; 0.6; 2; 0.7";
    FindeAnschlussTyp(m_zustand, m_ansicht);
    EXPECT_EQ(m_ansicht.typen.gewaehlt, 0);
    const ConnValues& eingang = m_zustand.m_Eingang;
    EXPECT_EQ(eingang.PosRI, (ConnVector{-0.5, 0, -0.5}));
    EXPECT_EQ(eingang.SeitAbstandAN, 0.3);
    EXPECT_EQ(eingang.SeitAbstandRI, 0.6);
    EXPECT_EQ(eingang.KreuzAbstand, 0.5);
    EXPECT_EQ(eingang.KreuzTyp, 2);
    EXPECT_EQ(eingang.WandAbstand, 0.7);
}

TEST_F(AnschlussTest, OneMissingTextIsEnoughToReplaceTheFlowText)
{
    m_zustand.m_Eingang = Eintrag(0, 1);
    m_zustand.m_Eingang.AnschlussRI.clear();
    FindeAnschlussTyp(m_zustand, m_ansicht);
    EXPECT_EQ(m_zustand.m_Eingang.AnschlussAN, AnschlussPreset(15));

    m_ansicht.typen.texte = {L"tipo"};
    m_zustand.m_Anschlussliste.Add(Eintrag(15, 1));
    m_zustand.m_Eingang = {};
    m_zustand.m_Eingang.AnschlussRI = AnschlussPreset(1);
    FindeAnschlussTyp(m_zustand, m_ansicht);
    EXPECT_EQ(m_zustand.m_Eingang.AnschlussAN, AnschlussPreset(15));
    EXPECT_EQ(m_ansicht.typen.gewaehlt, 0) << "the search goes on with it";
}

TEST_F(AnschlussTest, ARecordWithoutTextsGetsOneForItsFlowAndSelectsNothing)
{
    m_zustand.m_Anschlussliste.Add(Eintrag(0, 15));
    FindeAnschlussTyp(m_zustand, m_ansicht);
    EXPECT_EQ(m_zustand.m_Eingang.AnschlussAN, AnschlussPreset(15));
    EXPECT_EQ(m_zustand.m_Eingang.AnschlussRI, L"");
    EXPECT_EQ(m_zustand.m_Eingang.PosAN, (ConnVector{0.5, 0, -0.5}))
        << "read before the return failed";
    EXPECT_EQ(m_ansicht.typen.gewaehlt, -1);
    EXPECT_EQ(m_ansicht.aufrufe, "");
}

} // namespace
