// The valves and their graphics in the valve and connection dialog.

#include "tests/src/connection/dialog/vent_dlg_fixture.h"

#include <gtest/gtest.h>

using namespace reference_host;

namespace {

using Strings = std::vector<CString>;

const std::vector<int> kTexteAN = {363, 364, 370, 371};
const std::vector<int> kTexteRI = {365, 366, 369, 372};

class CVentVentileTest : public CVentDlgTest
{
protected:
    CVentVentileTest()
    {
        Schreibe("Alfa", Saetze("010;200410;Alfa;20240301;;|100;10;Termostatiche;|110;1;Serie A;|"
                                "700;1;2;20;0.88;10;120;600;;;;1;;|"
                                "710.01;1;2.0;;N;0;;;0.550;0.880;|"
                                "800;" +
                                TgaNr("00", "0001") + ";A-20;;;Valvola 20;"));
    }

    /// The next picker chooses the valve, or is left by the other button.
    void Waehlt(int button = kIdOk)
    {
        m_driver.WhenOpens(18003, [button](CDialogUser& user) {
            user.ChooseInTree(18019, {L"Termostatiche", L"Serie A", L"Valvola 20"});
            user.Click(button);
        });
    }
};

TEST_F(CVentVentileTest, FetchedValvesShow)
{
    m_an.Hersteller = L"Alfa";
    m_an.VentilNr = WideFromUtf8(TgaNr("00", "0001"));
    Oeffne(
        [](CDialogUser& user) {
            EXPECT_EQ(user.Texts(kTexteAN), (Strings{L"Serie A", L"A-20", L"regolabile", L"20"}));
            EXPECT_EQ(user.Texts(kTexteRI), (Strings{L"", L"", L"non regolabile", L"15"}));
            user.Click(18095);
            EXPECT_EQ(user.Texts(kTexteAN), (Strings{L"", L"", L"non regolabile", L"20"}))
                << "an emptied valve leaves its diameter standing";
        },
        kIdCancel);
    EXPECT_EQ(m_an.Bezeichnung, L"A-20") << "as the fetch left it";
    EXPECT_EQ(m_an.AnzahlKv, 1);

    Oeffne([](CDialogUser& user) { user.Click(18095); });
    EXPECT_EQ(m_an.Bezeichnung, L"");
    EXPECT_EQ(m_an.DN, 20.0);
}

TEST_F(CVentVentileTest, APickedValveFillsTheOtherSideOnceIfThatIsEmpty)
{
    const struct
    {
        int pick, clear;
        const std::vector<int>&own, &other;
    } sides[] = {{367, 18096, kTexteAN, kTexteRI}, {368, 18095, kTexteRI, kTexteAN}};
    const Strings picked = {L"Termostatiche", L"Valvola 20", L"regolabile", L"20"};
    for (const auto& side : sides) {
        m_an.Init();
        m_ri.Init();
        Oeffne([&](CDialogUser& user) {
            Waehlt(kIdCancel);
            user.Click(side.pick);
            EXPECT_EQ(user.Texts(side.own), (Strings{L"", L"", L"non regolabile", L"15"}));
            Waehlt();
            user.Click(side.pick);
            EXPECT_EQ(user.Texts(side.own), picked);
            EXPECT_EQ(user.Texts(side.other), picked) << "never the text that offers the copy";

            user.Click(side.clear);
            user.Click(side.other[2]);
            EXPECT_EQ(user.Text(side.other[1]), L"") << "no copy is pending any more";
        });
        EXPECT_EQ(m_an.DN, 20.0);
        EXPECT_EQ(m_ri.DN, 20.0);
        EXPECT_EQ(side.pick == 367 ? m_an.Bezeichnung : m_ri.Bezeichnung, L"Valvola 20");
    }
}

TEST_F(CVentVentileTest, APickedValveLeavesTheOtherSidesOwn)
{
    m_ri.Bezeichnung = L"Detentore";
    m_ri.DN = 10.0;
    Oeffne([&](CDialogUser& user) {
        Waehlt();
        user.Click(367);
        user.Click(369);
        EXPECT_EQ(user.Texts(kTexteRI), (Strings{L"", L"Detentore", L"non regolabile", L"10"}));
        user.Click(18077);
    });
    EXPECT_EQ(m_ri.Bezeichnung, L"Detentore");
    EXPECT_EQ(m_an.Bezeichnung, L"Valvola 20");
    EXPECT_FALSE(m_bVentile) << "the valves go back all the same";
}

TEST_F(CVentDlgTest, GraphicsAreTakenOnlyWhenTheUserChooses)
{
    CTestDrawer drawer;
    drawer.bloecke = {L"SQUADRA", L"ANGOLO", L"DIRITTO", L"ANGOLO"};
    m_pDrawer = &drawer;
    Oeffne([&](CDialogUser& user) {
        EXPECT_EQ(drawer.gefragt, L"valvole.dxf|0");
        EXPECT_EQ(user.Items(18097), (Strings{L"ANGOLO", L"ANGOLO", L"DIRITTO", L"SQUADRA"}));
        EXPECT_EQ(user.Items(18098), user.Items(18097));
        EXPECT_EQ(user.Chosen(18097), 0) << "the first, without a block of the host";
        EXPECT_EQ(user.Chosen(18098), 2) << "the place in the drawing's order";
    });
    EXPECT_EQ(m_anschluss.GrafikAN + m_anschluss.GrafikRI, L"");

    m_anschluss.GrafikAN = L"ANGOLO";
    const CSettingOverride block(kSettingHKBlock, L"dir");
    Oeffne([&](CDialogUser& user) {
        EXPECT_EQ(user.Chosen(18097), 2) << "the first that starts with the host's block";
        EXPECT_EQ(user.Chosen(18098), -1);
        user.Choose(18097, 3);
    });
    EXPECT_EQ(m_anschluss.GrafikAN, L"SQUADRA");
    EXPECT_EQ(m_anschluss.GrafikRI, L"") << "nothing was chosen there";

    const CSettingOverride unknown(kSettingHKBlock, L"ZZ");
    Oeffne([&](CDialogUser& user) {
        EXPECT_EQ(user.Chosen(18097), 0) << "SQUADRA comes first in the drawing";
        user.Choose(18098, 1);
    });
    EXPECT_EQ(m_anschluss.GrafikAN + m_anschluss.GrafikRI, L"ANGOLOANGOLO") << "either takes both";

    Oeffne([&](CDialogUser& user) {
        EXPECT_EQ(user.Chosen(18097), 3) << "the last of equal names";
        user.Choose(18097, 2);
        user.Click(18099);
        EXPECT_EQ(user.Chosen(18097), -1);
        EXPECT_EQ(user.Chosen(18098), -1);
    });
    EXPECT_EQ(m_anschluss.GrafikAN + m_anschluss.GrafikRI, L"");

    m_pDrawer = nullptr;
    Oeffne([&](CDialogUser& user) { EXPECT_TRUE(user.Items(18097).empty()); });
}

} // namespace
