// The criteria of the radiator selection in the hands of a user: what they do to the hand-over, to
// each other and to the rows.

#include "frame/hkauswahl_uebergabe.h"
#include "frame/vdi6030_start.h"
#include "host/host_prefs.h"
#include "platform/number_scan.h"
#include "radiator/hk_vdi3805.h"
#include "selection/ergebnis_texte.h"
#include "tests/src/selection/dialog/auswahl_fixture.h"

#include <QComboBox>

#include <cmath>
#include <functional>
#include <random>
#include <set>
#include <string>

using namespace reference_host;

namespace {

using Ids = std::set<int>;

/// Of the fields that the criteria take in and out of use, those that are out.
Ids Gesperrt(const CDialogUser& user)
{
    Ids ids;
    for (const int id : {18002, 18003, 18004, 18005, 18008, 18009, 18010, 18011, 18016}) {
        if (!user.IsEnabled(id)) {
            ids.insert(id);
        }
    }
    return ids;
}

HK_VDI3805_ART& LetzteArt()
{
    HK_VDI3805_ART* art = FindHersteller(L"Valmorena")->pArt;
    while (art->pNext != nullptr) {
        art = art->pNext;
    }
    return *art;
}

/// Whether what is done reads the manufacturer's file again.
bool LiestNeu(const std::function<void()>& schritt)
{
    const CString kMarke = L"gelesen";
    LetzteArt().Name = kMarke;
    schritt();
    return LetzteArt().Name != kMarke;
}

TEST_F(CAuswahlDialogTest, TheRemainderOfARoomBecomesTheWantedOutput)
{
    const struct
    {
        double bedarf, gedeckt;
        const wchar_t *start, *rest;
    } cases[] = {
        {3000, 0, L"1500", L"3000"},
        {3000, 1000, L"2000", L"2000"},
        {1000, 1500, L"-500", L"0"},
    };
    for (const auto& c : cases) {
        Raum(c.bedarf, c.gedeckt);
        Zeige([&](CDialogUser& user) {
            EXPECT_EQ(user.Text(18005), c.start);
            EXPECT_FALSE(user.IsChecked(18047) || user.IsChecked(18049));
            EXPECT_TRUE(LiestNeu([&] { user.Click(18047); }));
            EXPECT_EQ(user.Text(18005), c.rest);
            EXPECT_EQ(m_uebergabe.NeuLesen, 0);
            EXPECT_FALSE(LiestNeu([&] { user.Click(18047); }));
            EXPECT_EQ(user.Text(18005), c.rest);
        });
    }
}

TEST_F(CAuswahlDialogTest, APercentageOfTheDemandBecomesTheWantedOutput)
{
    Raum(3001.0, 0.0);
    Zeige([&](CDialogUser& user) {
        user.Click(18047);
        user.Click(18049);
        EXPECT_EQ(user.Text(18005), L"1501") << "halves go upward";
        EXPECT_FALSE(user.IsChecked(18047)) << "one of the two";
        EXPECT_TRUE(user.IsEnabled(18016));
        EXPECT_TRUE(LiestNeu([&] { user.Type(18016, L"10"); }));
        EXPECT_EQ(user.Text(18005), L"300");
        EXPECT_TRUE(LiestNeu([&] { user.Type(18016, L"3.33"); }));
        EXPECT_EQ(m_uebergabe.Leistung, 100.0);
        EXPECT_FALSE(LiestNeu([&] { user.Type(18016, L"2."); })) << "below 100 W";
        EXPECT_EQ(user.Text(18016), L"2.") << "still typing";
        EXPECT_EQ(user.Text(18005), L"60");
        EXPECT_EQ(m_uebergabe.Leistung, 60.0) << "recomputed by the field's event alone";
        user.Type(18016, L"0");
        EXPECT_EQ(user.Text(18005), L"60");

        user.Type(18016, L"50");
        EXPECT_FALSE(LiestNeu([&] { user.Click(18049); }));
        EXPECT_TRUE(user.IsEnabled(18016)) << "until the fields are shown again";
        EXPECT_EQ(user.Text(18005), L"1501");
        user.Click(18049);
        user.Click(18047);
        EXPECT_FALSE(user.IsChecked(18049));
        EXPECT_FALSE(user.IsEnabled(18016));
    });
}

TEST_F(CAuswahlDialogTest, WithoutADemandThereIsNothingToTakeAPercentageOf)
{
    for (const CString output : {L"1000", L"-500"}) {
        Zeige([&](CDialogUser& user) {
            user.Click(18049);
            EXPECT_FALSE(user.IsEnabled(18016));
            EXPECT_EQ(user.Text(18005), output);
        });
        Raum(0.0, 500.0);
    }
}

TEST_F(CAuswahlDialogTest, OutputModeAndShowAllSwitchTheFilterAndTheFields)
{
    Zeige([&](CDialogUser& user) {
        const auto within = GitterZeilen(user).size();
        user.Click(18017);
        EXPECT_LT(GitterZeilen(user).size(), within);
        for (const Zeile& zeile : GitterZeilen(user)) {
            EXPECT_NEAR(_wtof(zeile[5]), 1000.0, 100.0);
        }
        EXPECT_EQ(Gesperrt(user), Ids{18016});
        user.Type(18005, L"");
        EXPECT_EQ(m_uebergabe.Leistung, 0.0);
        EXPECT_EQ(user.Text(18015), L"0.0");
        user.Click(18017);
        EXPECT_EQ(m_uebergabe.Leistung, 1000.0);
        EXPECT_EQ(Gesperrt(user), (Ids{18005, 18011, 18016}));
        EXPECT_EQ(GitterZeilen(user).size(), within);

        user.Click(18019);
        EXPECT_GT(GitterZeilen(user).size(), within);
        EXPECT_EQ(Gesperrt(user),
                  (Ids{18002, 18003, 18004, 18005, 18008, 18009, 18010, 18011, 18016}));
        user.Click(18019);
        EXPECT_EQ(Gesperrt(user), (Ids{18005, 18011, 18016}));
        EXPECT_EQ(GitterZeilen(user).size(), within);
    });
}

TEST_F(CAuswahlDialogTest, LengthsAndOutputRecomputeWithEveryKeystrokeAndReadNoFile)
{
    Zeige([&](CDialogUser& user) {
        EXPECT_FALSE(LiestNeu([&] {
            user.Type(18003, L"1000 mm");
            EXPECT_EQ(m_uebergabe.LaengeMax, 1000.0);
            user.Type(18003, L"");
            user.Type(18002, L"");
            EXPECT_EQ(m_uebergabe.LaengeMin + m_uebergabe.LaengeMax, 0.0);
            EXPECT_EQ(user.Text(18015), L"-100.0") << "nothing selected";
            user.Type(18005, L"800");
        }));
    });
}

TEST_F(CAuswahlDialogTest, TheRoomTemperatureTakesACommaAndCountsOnLeaving)
{
    Zeige([&](CDialogUser& user) {
        user.Focus(18107);
        user.Focus(18002);
        EXPECT_EQ(m_uebergabe.Raumtemperatur, 20.5) << "nothing was typed";
        const double faktor = m_uebergabe.Umrechnungsfaktor;
        EXPECT_FALSE(LiestNeu([&] { user.Type(18107, L"24,5"); }));
        EXPECT_EQ(m_uebergabe.Raumtemperatur, 24.5);
        EXPECT_EQ(m_uebergabe.Umrechnungsfaktor, faktor) << "until the field is left";
        EXPECT_TRUE(LiestNeu([&] { user.Focus(18002); }));
        EXPECT_LT(m_uebergabe.Umrechnungsfaktor, faktor);
        EXPECT_EQ(user.Text(18107), L"24,5");
        EXPECT_EQ(Gesperrt(user), (Ids{18005, 18011, 18016})) << "as the output mode says";
        user.Type(18107, L"");
        EXPECT_EQ(m_uebergabe.Raumtemperatur, 0.0);
    });
}

TEST_F(CAuswahlDialogTest, HeatingSystemsAreChosenStoredAndDeleted)
{
    const auto record = [&] { return std::pair(m_uebergabe.Vorlauf, m_uebergabe.Ruecklauf); };
    const Texte systeme = {L"Standard (75/65)", L"Bassa (45/35)"};
    Oeffne([&](CDialogUser& user) {
        EXPECT_EQ(user.Items(7006), Texte{systeme[0]}) << "the first run makes the list";
        user.Choose(7006, 0);
        EXPECT_EQ(record(), std::pair(75.0, 65.0));
        EXPECT_EQ(user.Text(7007), L"Standard");

        user.Type(7007, L"Bassa");
        user.Type(7008, L"0");
        user.Click(268);
        EXPECT_EQ(user.Items(7006).size(), 1U) << "a temperature is missing";
        user.Type(7008, L"45");
        user.Type(7009, L"35");
        EXPECT_EQ(record(), std::pair(75.0, 65.0));
        const double faktor = m_uebergabe.Umrechnungsfaktor;
        user.Click(268);
        EXPECT_EQ(record(), std::pair(45.0, 35.0));
        EXPECT_LT(m_uebergabe.Umrechnungsfaktor, faktor);
        EXPECT_EQ(user.Items(7006), systeme);
        EXPECT_EQ(user.Chosen(7006), 1);
        user.Click(kIdOk);
    });
    Oeffne([&](CDialogUser& user) {
        EXPECT_EQ(user.Items(7006), systeme);
        EXPECT_EQ(user.Text(7007), L"Bassa");
        user.Click(269);
        EXPECT_EQ(record(), std::pair(75.0, 65.0)) << "the first one left comes into force";
        dynamic_cast<QComboBox&>(user.Widget(7006)).setCurrentIndex(-1);
        user.Click(269);
        EXPECT_EQ(user.Items(7006).size(), 1U) << "nothing selected, nothing deleted";
        user.Choose(7006, 0);
        user.Click(269);
        user.Click(269);
        EXPECT_TRUE(user.Items(7006).empty());
        EXPECT_EQ(record(), std::pair(75.0, 65.0));
        EXPECT_EQ(user.Text(7007), L"Standard");
        user.Click(kIdOk);
    });
    Zeige([&](CDialogUser& user) {
        EXPECT_TRUE(user.Items(7006).empty()) << "deleted, not missing";
    });
}

TEST_F(CAuswahlDialogTest, OkStoresWhatAnyEventHasRead)
{
    VDI6030START before;
    before.AbstandWand = 0.05;
    ASSERT_TRUE(WriteDefFile_VDI6030START(&before, false));
    Oeffne([&](CDialogUser& user) {
        user.Type(7007, L"Invernale");
        user.Type(7008, L"70.6");
        user.Type(18003, L"2500"); // an event that reads the fields
        EXPECT_EQ(m_uebergabe.Vorlauf, 75.4) << "it is in no force yet";
        user.Type(7009, L"55");
        user.Click(kIdOk);
    });
    EXPECT_EQ(m_uebergabe.Vorlauf, 70.6);
    EXPECT_EQ(m_uebergabe.Ruecklauf, 65.2) << "typed last, read by no event";
    const VDI6030START* const start = ReadDefFile_VDI6030START(false);
    ASSERT_NE(start, nullptr);
    EXPECT_EQ(start->SystemVorlauf, 70);
    EXPECT_EQ(start->SystemRuecklauf, 65);
    EXPECT_EQ(start->SystemName, L"Invernale");
    EXPECT_EQ(start->Hersteller, L"Valmorena");
    EXPECT_EQ(start->Art, L"Radiatori a piastra compatti");
    EXPECT_EQ(start->Produkt, L"Tipo 22");
    EXPECT_EQ(start->AbstandWand, 0.05);
}

TEST_F(CAuswahlDialogTest, ALayerOfTheCallerWinsOverTheKeptOneAndThatOverTheTemplate)
{
    m_layer.clear();
    Zeige([](CDialogUser& user) { EXPECT_EQ(user.Text(3187), L"HEIZ_$d"); });
    EXPECT_EQ(m_layer, L"HEIZ_$d") << "nothing given, nothing kept";
    Raum(1000.0, 0.0);
    const struct
    {
        CString kept, given, opened;
        int chosen, farbe;
    } cases[] = {{L"", L"", L"HEIZ_PT", 1, 1},
                 {L"MURI", L"", L"MURI", 2, 7},
                 {L"MURI", L"CALDO", L"CALDO", 1, 5}};
    for (const auto& c : cases) {
        HKAUSWAHL_UEBERGABE letzte;
        letzte.Layer = c.kept;
        letzte.LayerFarbe = 7;
        ASSERT_TRUE(WriteDefFile(&letzte, &HKAUSWAHL_UEBERGABE::GetThisClass(), L"HkAuswahl.def"));
        m_layer = c.given;
        m_farbe = 5;
        Oeffne([&](CDialogUser& user) {
            EXPECT_EQ(user.Text(3187), c.opened);
            EXPECT_EQ(user.Chosen(3187), c.chosen);
            user.Click(kIdOk);
        });
        EXPECT_EQ(m_layer, c.opened);
        EXPECT_EQ(m_farbe, c.farbe);
    }
    m_layer.clear();
    Zeige([](CDialogUser&) {});
    EXPECT_EQ(m_layer, L"CALDO") << "OK has kept it";
}

TEST_F(CAuswahlDialogTest, OpeningSelectsTheSystemOfTheCallersTemperatures)
{
    m_folder.WriteBytes("HEIZUNG/CmbData.txt",
                        "[VDI6030_HS]\r\nAlta (80/60)|Media (60/50)*|Bassa (45/35)|\r\n");
    const struct
    {
        double ruecklauf;
        int system;
        CString name;
    } cases[] = {{35.0, 2, L"Bassa"}, {34.0, 0, L""}};
    for (const auto& c : cases) {
        m_uebergabe.Vorlauf = 45.3;
        m_uebergabe.Ruecklauf = c.ruecklauf;
        Zeige([&](CDialogUser& user) {
            EXPECT_EQ(user.Chosen(7006), c.system) << "never the one that was selected last";
            EXPECT_EQ(user.Text(7007), c.name);
        });
    }
}

/// A user who does this and that, and what must hold after each of it.
class CIrgendwer
{
public:
    CIrgendwer(const CDialogUser& user, HK_DATEN_VDI3805_UEBERGABE& uebergabe)
        : m_user(user), m_uebergabe(uebergabe)
    {
    }

    void TueIrgendwas()
    {
        const int masse[] = {18004, 18008, 18009, 18010};
        const int haken[] = {18017, 18019, 18047, 18049};
        const wchar_t* const produkte[] = {L"Tipo 10", L"Tipo 22", L"Tipo 33"};
        switch (Unter(10)) {
        case 0:
            return Waehle(masse[Unter(4)]);
        case 1:
            return Tippe(18002 + Unter(2), Unter(3000));
        case 2:
            return Tippe(18005, Unter(4000));
        case 3:
            return Tippe(18016, Unter(120));
        case 4:
            return m_user.Click(haken[Unter(4)]);
        case 5:
            Tippe(18107, 15 + Unter(10));
            return m_user.Focus(18000);
        case 6:
            Tippe(7008, 40 + Unter(40));
            return m_user.Click(Unter(3) > 0 ? 268 : 269);
        case 7:
            return Waehle(7006);
        case 8:
            return m_user.ChooseInTree(
                kBaum, {L"Valmorena", L"Radiatori a piastra compatti", produkte[Unter(3)]});
        default:
            const auto rows = static_cast<int>(GitterZeilen(m_user).size());
            return rows > 0 ? KlickeZeile(m_user, Unter(rows)) : void();
        }
    }

    /// The grid shows what a pass of its own over the record gives, the fields what is in it.
    void Pruefe() const
    {
        HK_DATEN_VDI3805_UEBERGABE record = m_uebergabe;
        CHKVdi3805 fresh(&record);
        fresh.SetLeistungFilter(m_user.IsChecked(18017));
        fresh.SetAlleAnzeigen(m_user.IsChecked(18019));
        fresh.Filtern();
        std::vector<Zeile> expected;
        for (const auto* row = fresh.GetErgebnis(); row != nullptr; row = row->pNext) {
            Zeile& zeile = expected.emplace_back(kErgebnisSpalten);
            for (int spalte = 0; spalte < kErgebnisSpalten; ++spalte) {
                ZellText(*row, spalte, zeile[static_cast<std::size_t>(spalte)]);
            }
        }
        ASSERT_EQ(GitterZeilen(m_user), expected);
        const int row = Gitter(m_user).currentIndex().row();
        ASSERT_EQ(m_user.Text(18011),
                  row < 0 ? CString() : expected.at(static_cast<std::size_t>(row))[5]);
        ASSERT_EQ(_wtof(m_user.Text(18005)), m_uebergabe.Leistung);
        ASSERT_EQ(_wtof(m_user.Text(18002)), m_uebergabe.LaengeMin);
        ASSERT_EQ(_wtof(m_user.Text(18003)), m_uebergabe.LaengeMax);
        ASSERT_EQ(_wtof(m_user.Text(18004)), m_uebergabe.HoeheMin);
        ASSERT_EQ(_wtof(m_user.Text(18008)), m_uebergabe.HoeheMax);
        ASSERT_EQ(_wtof(m_user.Text(18009)), m_uebergabe.TiefeMin);
        ASSERT_EQ(_wtof(m_user.Text(18010)), m_uebergabe.TiefeMax);
        ASSERT_EQ(_wtof(m_user.Text(18107)), std::floor(m_uebergabe.Raumtemperatur));
        ASSERT_FALSE(m_user.IsChecked(18047) && m_user.IsChecked(18049));
        ASSERT_NE(m_user.IsEnabled(18004), m_user.IsChecked(18019));
    }

private:
    int Unter(int end) { return static_cast<int>(m_zufall() % static_cast<unsigned>(end)); }

    void Tippe(int id, int zahl) const
    {
        if (m_user.IsEnabled(id)) {
            m_user.Type(id, std::to_wstring(zahl));
        }
    }

    void Waehle(int id)
    {
        const auto items = static_cast<int>(m_user.Items(id).size());
        if (m_user.IsEnabled(id) && items > 0) {
            m_user.Choose(id, Unter(items));
        }
    }

    const CDialogUser& m_user;
    HK_DATEN_VDI3805_UEBERGABE& m_uebergabe;
    std::mt19937 m_zufall{20261121};
};

TEST_F(CAuswahlDialogTest, WhateverTheUserDoesTheGridAgreesWithTheRecord)
{
    Raum(2400.0, 600.0);
    Zeige([&](CDialogUser& user) {
        CIrgendwer irgendwer(user, m_uebergabe);
        std::size_t longest = 0;
        for (int step = 0; step < 200 && !HasFailure(); ++step) {
            SCOPED_TRACE(step);
            irgendwer.TueIrgendwas();
            irgendwer.Pruefe();
            longest = std::max(longest, GitterZeilen(user).size());
        }
        EXPECT_GT(longest, 40U) << "empty grids say nothing";
    });
}

} // namespace
