// How fields and records become each other, and the two valves, without a window.

#include "connection/anschluss_felder.h"

#include "common/units.h"
#include "connection/ventil_paar.h"
#include "tests/support/test_liste.h"

#include <gtest/gtest.h>

namespace {

class FelderTest : public ::testing::Test
{
protected:
    FelderTest() { ResetUnits(); }
    ~FelderTest() override { ResetUnits(); }

    CAnschlussZustand m_zustand;
};

TEST_F(FelderTest, APointIsWrittenToItsOwnFieldsAndReadBackFromItsText)
{
    EXPECT_FALSE(SchreibePunkt(m_zustand)) << "no point is active";
    EXPECT_FALSE(LesePunkt(m_zustand));
    m_zustand.m_Aktuell.SeitAbstandRI = 0.2;
    m_zustand.m_Punkt = Punkt::ruecklauf;
    m_zustand.m_Rel = {-0.5, 0.25, 0.5};
    m_zustand.m_Offset = {0.01, 0.02, 0.03};
    m_zustand.m_Winkel = {180, 90};
    ASSERT_TRUE(SchreibePunkt(m_zustand));
    const ConnValues& werte = m_zustand.m_Aktuell;
    EXPECT_EQ(werte.PosRI, m_zustand.m_Rel);
    EXPECT_EQ(werte.OffsetRI, m_zustand.m_Offset);
    EXPECT_EQ(werte.WinkelRI, (ConnVector{180, 90, 0}));
    EXPECT_EQ(werte.PosAN, ConnVector{});
    EXPECT_EQ(werte.AnschlussAN, L"");

    const CAnschlussZustand written = m_zustand;
    m_zustand.m_Rel = m_zustand.m_Offset = {};
    m_zustand.m_Winkel = {};
    ASSERT_TRUE(LesePunkt(m_zustand));
    EXPECT_EQ(m_zustand.m_Rel, written.m_Rel);
    EXPECT_EQ(m_zustand.m_Offset, written.m_Offset);
    EXPECT_EQ(m_zustand.m_Winkel, written.m_Winkel);
    EXPECT_EQ(werte.SeitAbstandRI, 0.2) << "the text has none, and the record keeps its own";
    m_zustand.m_Punkt = Punkt::vorlauf;
    EXPECT_FALSE(LesePunkt(m_zustand)) << "no text";
    EXPECT_EQ(m_zustand.m_Rel, written.m_Rel);
}

TEST_F(FelderTest, ATypeReplacesTheRecordButNotTheSideDistances)
{
    CTestListe typen({L"a", L"b", L"_2_"});
    EXPECT_FALSE(UebernehmeTyp(m_zustand, typen));
    for (const wchar_t* name : {L"a", L"b"}) {
        ConnValues eintrag;
        eintrag.Name = name;
        eintrag.SeitAbstandAN = 7;
        m_zustand.m_Anschlussliste.Add(eintrag);
    }
    m_zustand.m_TextSeitAN = L"0.2";
    m_zustand.m_bInverti = true;
    typen.Waehlen(1);
    ASSERT_TRUE(UebernehmeTyp(m_zustand, typen));
    EXPECT_EQ(m_zustand.m_TextName, L"b");
    EXPECT_EQ(m_zustand.m_Aktuell.SeitAbstandAN, 0.2);
    EXPECT_FALSE(m_zustand.m_bInverti);
    EXPECT_TRUE(IstNameVergeben(m_zustand));
    typen.Waehlen(2);
    ASSERT_TRUE(UebernehmeTyp(m_zustand, typen));
    EXPECT_EQ(m_zustand.m_TextName, L"a") << "a name without an entry stands for the first one";
    EXPECT_EQ(typen.gewaehlt, 0);
}

TEST_F(FelderTest, AtOkEachPointLosesItsOwnSideDistanceAndTheWallStaysOutOfTheTexts)
{
    m_zustand.m_TextSeitAN = L"0.2";
    m_zustand.m_TextSeitRI = L"0.1";
    m_zustand.m_Kreuz = 2;
    m_zustand.m_TextKreuz = L"0.3";
    m_zustand.m_TextWand = L"0.05";
    m_zustand.m_Aktuell.WinkelAN = {0, 90, 0};
    SchliesseAb(m_zustand);
    ConnValues& werte = m_zustand.m_Aktuell;
    EXPECT_EQ(werte.SeitAbstandAN, 0.0);
    EXPECT_EQ(werte.SeitAbstandRI, 0.1);
    EXPECT_EQ(werte.WandAbstand, 0.0) << "not ticked";
    m_zustand.m_bVonWand = true;
    SchliesseAb(m_zustand);
    EXPECT_EQ(werte.WandAbstand, 0.05);
    ConnValues gelesen = werte;
    gelesen.KreuzAbstand = gelesen.SeitAbstandRI = 7;
    ASSERT_GT(LesePunktText(gelesen, Punkt::ruecklauf), 8);
    EXPECT_EQ(gelesen.SeitAbstandRI, 0.1);
    EXPECT_EQ(gelesen.KreuzAbstand, 0.3);
    EXPECT_EQ(gelesen.KreuzTyp, 2);
    EXPECT_EQ(gelesen.WandAbstand, 0.0);
}

TEST_F(FelderTest, AWallDistanceIsOfferedWhereNoneIsGiven)
{
    m_zustand.m_TextSeitAN = L"0.2";
    ErgaenzeWandAbstand(m_zustand);
    EXPECT_EQ(m_zustand.m_TextWand, L"");
    m_zustand.m_bVonWand = true;
    ErgaenzeWandAbstand(m_zustand);
    EXPECT_EQ(m_zustand.m_TextWand, L"0.2");
    m_zustand.m_TextSeitAN = L"0.4";
    ErgaenzeWandAbstand(m_zustand);
    EXPECT_EQ(m_zustand.m_TextWand, L"0.2");
}

TEST(VentilPaar, AValveIsCopiedOnceAndNominalDiametersOutliveIt)
{
    CVentilPaar paar;
    paar.m_VentilRI.Bezeichnung = L"r";
    EXPECT_FALSE(Uebernehme(paar, Punkt::ruecklauf)) << "nothing pending";
    paar.m_bUebernehmeRI = true;
    ASSERT_TRUE(Uebernehme(paar, Punkt::ruecklauf));
    EXPECT_EQ(paar.m_VentilAN.Bezeichnung, L"r");
    EXPECT_EQ(paar.m_TextDnAN, L"0") << "also a diameter that is none";
    EXPECT_FALSE(Uebernehme(paar, Punkt::ruecklauf));

    paar.m_VentilAN.DN = 20;
    ZeigeNennweiten(paar);
    paar.m_VentilAN.Init();
    ZeigeNennweiten(paar);
    ErgaenzeNennweiten(paar);
    EXPECT_EQ(paar.m_VentilAN.DN, 20.0) << "of the valve taken away";
    EXPECT_EQ(paar.m_VentilRI.DN, 15.0) << "the usual one";
}

} // namespace
