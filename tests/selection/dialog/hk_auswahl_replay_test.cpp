// A designer's hour at the dialog, replayed in the window and on the criteria without one: after
// each step the hand-over, the fields and the rows are the same.

#include "platform/format.h"
#include "selection/dialog/auswahl_fixture.h"
#include "selection/test_dialog.h"

#include <algorithm>

namespace {

enum Art
{
    tippe,
    hake,
    waehle,
    klick,
    zeile,
    kopf,
    produkt,
};

struct Schritt
{
    Art art;
    int id;
    const wchar_t* text = L"";
};

constexpr Schritt kAufnahme[] = {
    {zeile, 3},
    {zeile, 0},
    {waehle, 18004, L"400"},
    {waehle, 18008, L"500"},
    {tippe, 18003, L"1200"},
    {tippe, 18002, L"600"},
    {zeile, 2},
    {hake, 18017},
    {tippe, 18005, L"1150"},
    {zeile, 1},
    {tippe, 18005, L"0"},
    {hake, 18017},
    {hake, 18017},
    {tippe, 18005, L"900.5 W"},
    {hake, 18047},
    {hake, 18049},
    {tippe, 18016, L"35"},
    {tippe, 18016, L"4"},
    {tippe, 18016, L"62.5"},
    {zeile, 0},
    {kopf, 5},
    {zeile, 1},
    {kopf, 5},
    {kopf, 0},
    {hake, 18019},
    {zeile, 20},
    {zeile, 4},
    {kopf, 7},
    {hake, 18019},
    {tippe, 18107, L"24"},
    {tippe, 18003, L"2000"},
    {tippe, 18107, L"18,5"},
    {hake, 18047},
    {hake, 18047},
    {waehle, 7006, L"Standard (75/65)"},
    {tippe, 7007, L"Pompa"},
    {tippe, 7008, L"55"},
    {tippe, 7009, L"45.5"},
    {klick, 268},
    {zeile, 3},
    {waehle, 7006, L"Standard (75/65)"},
    {waehle, 7006, L"Pompa (55/46)"},
    {tippe, 7008, L"x"},
    {klick, 268},
    {tippe, 7008, L"50"},
    {klick, 268},
    {klick, 269},
    {produkt, 0, L"Tipo 33"},
    {waehle, 18008, L"900"},
    {zeile, 5},
    {waehle, 18009, L"155"},
    {tippe, 18003, L""},
    {tippe, 18003, L"1600"},
    {hake, 18049},
    {hake, 18049},
    {tippe, 18016, L"50"},
    {produkt, 0, L"Tipo 10"},
    {waehle, 18004, L"300"},
    {zeile, 6},
    {tippe, 18107, L"20"},
    {zeile, 2},
    {zeile, 0},
    {tippe, 18005, L"430"},
    {hake, 18047},
    {produkt, 0, L"Tipo 22"},
    {zeile, 1},
    {klick, 269},
    {klick, 269},
    {tippe, 7007, L"Nuovo"},
    {tippe, 7008, L"70"},
    {tippe, 7009, L"55"},
    {klick, 268},
    {zeile, 0},
    {tippe, 18002, L"1400"},
};

constexpr int kTexte[] = {7007,  7008,  7009,  18002, 18003, 18005, 18011,
                          18012, 18015, 18016, 18018, 18048, 18107};
constexpr int kHaken[] = {18017, 18019, 18047, 18049};
constexpr int kListen[] = {7006, 18004, 18008, 18009, 18010};
constexpr int kSperrbar[] = {18002, 18003, 18004, 18005, 18008, 18009, 18010, 18011, 18016};

Zeile Felder(const HK_DATEN_VDI3805_UEBERGABE& u)
{
    Zeile felder{u.Hersteller, u.Art, u.Produkt, u.TypName, u.Raumname};
    for (const double wert : {u.LeistungMin,    u.LeistungMax,       u.Leistung,
                              u.Toleranz,       u.LaengeMin,         u.LaengeMax,
                              u.HoeheMin,       u.HoeheMax,          u.TiefeMin,
                              u.TiefeMax,       u.Vorlauf,           u.Ruecklauf,
                              u.Raumtemperatur, u.Umrechnungsfaktor, u.RaumBedarf,
                              u.RaumGedeckt,    double(u.NeuLesen),  u.Daten.Hoehe,
                              u.Daten.Tiefe,    u.Daten.Laenge,      u.Daten.LeistungEN442,
                              u.Daten.Leistung, u.Daten.Elemente,    u.Daten.Exponent,
                              u.Daten.Inhalt}) {
        felder.push_back(FormatExact(wert));
    }
    return felder;
}

/// Does each step with mouse and keys in the window and says the same to the criteria.
class CWiedergabe
{
public:
    CWiedergabe(const CDialogUser& user, CTestDialog& ohneFenster)
        : m_user(user), m_ohne(ohneFenster)
    {
    }

    void Mache(const Schritt& schritt)
    {
        if (schritt.art == tippe || schritt.art == hake || schritt.art == waehle) {
            ASSERT_TRUE(m_user.IsEnabled(schritt.id)) << "nobody can do that";
        }
        VerlasseRaumtemperatur(schritt);
        switch (schritt.art) {
        case tippe:
            m_user.Type(schritt.id, schritt.text);
            TippeZeichenweise(schritt.id, schritt.text);
            break;
        case hake:
            m_user.Click(schritt.id);
            m_ohne.Hake(schritt.id, m_ohne.haken[schritt.id] == 0);
            break;
        case waehle: {
            m_user.Choose(schritt.id, CString(schritt.text));
            m_ohne.Waehle(schritt.id, SucheGleichen(m_ohne.listen[schritt.id], schritt.text));
            break;
        }
        case klick:
            m_user.Click(schritt.id);
            schritt.id == 268 ? m_ohne.kriterien.SystemSpeichern()
                              : m_ohne.kriterien.SystemLoeschen();
            break;
        case zeile:
            WaehleZeile(schritt.id);
            break;
        case kopf:
            KlickeKopf(m_user, schritt.id);
            Sortiere(schritt.id);
            break;
        case produkt:
            m_user.ChooseInTree(18000,
                                {L"Valmorena", L"Radiatori a piastra compatti", schritt.text});
            m_ohne.vdi.GetDaten().Produkt = schritt.text;
            m_ohne.kriterien.NeuesProdukt();
            break;
        }
    }

    void Vergleiche() const
    {
        for (const int id : kTexte) {
            EXPECT_EQ(m_user.Text(id), m_ohne.texte[id]) << id;
        }
        for (const int id : kHaken) {
            EXPECT_EQ(m_user.IsChecked(id), m_ohne.haken[id] != 0) << id;
        }
        for (const int id : kListen) {
            EXPECT_EQ(m_user.Items(id), m_ohne.listen[id].texte) << id;
            EXPECT_EQ(m_user.Chosen(id), m_ohne.listen[id].gewaehlt) << id;
        }
        for (const int id : kSperrbar) {
            EXPECT_EQ(m_user.IsEnabled(id), !m_ohne.gesperrt.contains(id)) << id;
        }
        std::vector<Zeile> rows;
        for (const ErgebnisTexte& texte : m_ohne.gitter.zeilen) {
            rows.emplace_back(texte.begin(), texte.end());
        }
        EXPECT_EQ(GitterZeilen(m_user), rows);
        if (!rows.empty()) {
            EXPECT_EQ(Gitter(m_user).currentIndex().row(), m_ohne.gitter.aktuell);
        }
    }

private:
    /// The lists of the driver open without taking the focus.
    void VerlasseRaumtemperatur(const Schritt& schritt)
    {
        if (m_user.Dialog().GetFocusId() == 18107 && schritt.art != waehle && schritt.id != 18107) {
            m_ohne.kriterien.RaumtemperaturVerlassen();
        }
    }

    void TippeZeichenweise(int id, const CString& text)
    {
        if (text.empty()) {
            m_ohne.Tippe(id, text);
        }
        for (std::size_t i = 1; i <= text.size(); ++i) {
            m_ohne.Tippe(id, text.substr(0, i));
        }
    }

    /// Any number stands for a row. A click on the current row chooses nothing new.
    void WaehleZeile(int nummer)
    {
        if (m_ohne.gitter.zeilen.empty()) {
            return;
        }
        const int row = nummer % static_cast<int>(m_ohne.gitter.zeilen.size());
        const bool dieselbe = Gitter(m_user).currentIndex().row() == row;
        KlickeZeile(m_user, row);
        if (!dieselbe) {
            m_ohne.WaehleZeile(row);
        }
    }

    void Sortiere(int spalte)
    {
        m_ohne.zeilen.UeberschriftGeklickt(spalte);
        const bool auf = m_ohne.gitter.sortiert.back().second;
        const auto i = static_cast<std::size_t>(spalte);
        const ZellArt art = spalte == 0 ? ZellArt::text : ZellArt::zahl;
        std::ranges::stable_sort(m_ohne.gitter.zeilen, [&](const auto& a, const auto& b) {
            return VergleicheZellen({art, a[i]}, {art, b[i]}, !auf) < 0;
        });
    }

    const CDialogUser& m_user;
    CTestDialog& m_ohne;
};

class CWiedergabeTest : public CAuswahlDialogTest
{
};

TEST_F(CWiedergabeTest, TheWindowDoesWhatTheCriteriaDo)
{
    Raum(2400.0, 600.0);
    HK_DATEN_VDI3805_UEBERGABE kopie = m_uebergabe;
    const int result = Oeffne([&](CDialogUser& user) {
        CTestDialog ohneFenster(kopie);
        ohneFenster.Oeffnen();
        CWiedergabe wiedergabe(user, ohneFenster);
        int nummer = 0;
        std::size_t laengste = 0;
        for (const Schritt& schritt : kAufnahme) {
            SCOPED_TRACE("step " + std::to_string(++nummer) + " at " + std::to_string(schritt.id));
            wiedergabe.Mache(schritt);
            wiedergabe.Vergleiche();
            ASSERT_EQ(Felder(m_uebergabe), Felder(kopie));
            if (HasFailure()) {
                break;
            }
            laengste = std::max(laengste, ohneFenster.gitter.zeilen.size());
        }
        EXPECT_GT(laengste, 40U) << "a recording of empty grids says nothing";
        ohneFenster.kriterien.Uebernehmen();
        user.Click(kIdOk);
        if (!user.Dialog().HasEnded()) {
            user.Dialog().EndDialog(kIdCancel);
        }
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(Felder(m_uebergabe), Felder(kopie));
}

} // namespace
