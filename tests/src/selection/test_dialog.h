#pragma once

#include "selection/auswahl_kriterien.h"
#include "selection/ergebnis_zeilen.h"
#include "tests/support/test_liste.h"

#include <map>
#include <set>
#include <vector>

/// A grid control without a window.
class CTestGitter : public CErgebnisGitter
{
public:
    void SetzeZeichnen(bool an) override { zeichnet = an; }
    void ZeichneAlles() override {}
    void FuegeZeileHinzu(const ErgebnisTexte& texte) override
    {
        // Painting row by row would make a rebuild slow.
        gestoert = gestoert || zeichnet;
        zeilen.push_back(texte);
    }
    bool LoescheZeile(int zeile) override;
    CString Text(int spalte, int zeile) const override;
    void GeheZuZeile(int zeile) override { aktuell = zeile; }
    void PasseBreiteAn(int erste, int anzahl, int count, int mindestens) override;
    void Sortiere(int spalte, bool aufsteigend) override
    {
        sortiert.emplace_back(spalte, aufsteigend);
    }

    std::vector<ErgebnisTexte> zeilen;
    int aktuell = 0;
    bool zeichnet = true;
    bool gestoert = false;
    /// The arguments of the last fit of the columns.
    std::vector<int> anpassung;
    std::vector<std::pair<int, bool>> sortiert;
};

/// The selection dialog without a window: controls, exchange and events as the real one has them,
/// and a user who types, clicks and selects.
class CTestDialog : public CAuswahlAnsicht
{
public:
    explicit CTestDialog(HK_DATEN_VDI3805_UEBERGABE& uebergabe);

    /// What the entry point and the dialog do, up to the timer that selects the best row. Without
    /// `mitProdukt` no product is found in the tree.
    void Oeffnen(bool mitProdukt = true);

    void Tippe(int id, const CString& text);
    void Hake(int id, bool an);
    void Waehle(int id, int index);
    void WaehleZeile(int zeile) { zeilen.ZeileGewechselt(zeile); }

    void UpdateData(bool lesen) override;
    void EnableControl(int id, bool enable) override;
    CAuswahlListe& Liste(int id) override { return listen[id]; }
    void ZeilenAufbauen(bool filtern) override;

    CHKVdi3805 vdi;
    CAuswahlKriterien kriterien;
    CTestGitter gitter;
    CErgebnisZeilen zeilen;
    CTestListe layer;

    std::map<int, CString> texte;
    std::map<int, int> haken;
    std::map<int, CTestListe> listen;
    std::set<int> gesperrt;
    /// The arguments of all rebuilds.
    std::vector<bool> aufbauten;
    /// NeuLesen as it stood at the beginning of each.
    std::vector<int> neuLesen;

private:
    void SchreibeFelder();
    void MeldeAenderung(int id);

    std::map<int, CString CAuswahlKriterien::*> m_textFelder;
    std::map<int, double CAuswahlKriterien::*> m_zahlFelder;
    std::map<int, int CAuswahlKriterien::*> m_hakenFelder;
    std::map<int, int CAuswahlKriterien::*> m_listenFelder;
};
