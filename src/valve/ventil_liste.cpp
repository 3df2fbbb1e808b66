#include "valve/ventil_liste.h"

#include "platform/number_scan.h"
#include "valve/ventil_katalog.h"
#include "valve/ventil_nodes.h"

#include <cstddef>
#include <limits>
#include <type_traits>

namespace {

int Nummer(const CLineText& zeile, VentilSatzart art)
{
    const auto feld = CSatzFelder(zeile, art).Naechstes();
    return feld ? _wtoi(feld->Widen()) : 0;
}

void Fuelle(VENT_VDI3805_DATEN& daten, const CLineText& zeile, VentilSatzart art)
{
    daten.Nummer = Nummer(zeile, art);
    daten.Satzart = NameVon(art);
    daten.Zeile = CVentilText(zeile);
}

void Fuelle(VENT_VDI3805_ZUSATZ& zusatz, const CLineText& zeile, VentilSatzart /*art*/)
{
    zusatz.Zeile = CVentilText(zeile);
}

void Fuelle(VENT_VDI3805_TEXT& text, const CLineText& zeile, VentilSatzart art)
{
    text.Nummer = Nummer(zeile, art);
    text.Zeile = CVentilText(zeile);
}

void Fuelle(VENT_VDI3805_ARTIKEL& artikel, const CLineText& zeile, VentilSatzart art)
{
    CSatzFelder felder(zeile, art);
    if (const auto ident = felder.Naechstes()) {
        // Digits have no umlauts to repair.
        LeseIdent(ident->Widen(), artikel.Ident);
        artikel.TgaNr = CVentilText(*ident);
    }
    for (CVentilText* const text :
         {&artikel.BestellNr, &artikel.Datanorm, &artikel.Text4, &artikel.Bezeichnung}) {
        if (const auto feld = felder.Naechstes()) {
            *text = CVentilText(*feld);
        }
    }
}

/// Lets each data set of a group name the first additional record that followed it. For the last
/// one that may be a record of a later group.
void Verknuepfe(const VENT_VDI3805_GRUPPE& gruppe, VENT_VDI3805_DATEN* knoten)
{
    VENT_VDI3805_DATEN* letzter700 = nullptr;
    const auto gehBis = [&](int zeilenNr) {
        for (; knoten != nullptr && knoten->ZeilenNr < zeilenNr; knoten = knoten->Next) {
            letzter700 = knoten->Satzart == L"700" ? knoten : letzter700;
        }
    };
    const auto verknuepfe = [&](VENT_VDI3805_ZUSATZ* zusatz) {
        if (letzter700 != nullptr && letzter700->Zusatz == nullptr) {
            letzter700->Zusatz = zusatz;
        }
    };
    for (VENT_VDI3805_ZUSATZ* z = gruppe.Zusaetze; z != nullptr; z = z->Next) {
        gehBis(z->ZeilenNr);
        verknuepfe(z);
    }
    gehBis(std::numeric_limits<int>::max());
    if (gruppe.Bereich.zusatzDanach != nullptr) {
        verknuepfe(gruppe.Bereich.zusatzDanach->Zusaetze);
    }
}

template <class Node>
std::unique_ptr<Node[]> Lies(const VENT_VDI3805_GRUPPE& gruppe, VentilSatz satz, int anzahl)
{
    const auto ende = static_cast<std::size_t>(anzahl);
    auto knoten = std::make_unique<Node[]>(ende);
    const VentilBereich& bereich = gruppe.Bereich;
    int index = bereich.von;
    for (std::size_t i = 0; i < ende; ++i, ++index) {
        index = bereich.zeilen->Suche(satz, index);
        Node& neuer = knoten[i];
        neuer.ZeilenNr = index + 1;
        Fuelle(neuer, bereich.zeilen->Zeile(index), bereich.zeilen->Art(index));
        if (i > 0) {
            neuer.Prev = &knoten[i - 1];
            knoten[i - 1].Next = &neuer;
        }
    }
    if constexpr (std::is_same_v<Node, VENT_VDI3805_DATEN>) {
        Verknuepfe(gruppe, knoten.get());
    }
    return knoten;
}

} // namespace

template <class Node>
Node* CVentilListe<Node>::Erster() const
{
    if (m_knoten == nullptr && m_nAnzahl > 0) {
        m_knoten = Lies<Node>(m_gruppe, m_satz, m_nAnzahl);
    }
    return m_knoten.get();
}

template class CVentilListe<VENT_VDI3805_DATEN>;
template class CVentilListe<VENT_VDI3805_ZUSATZ>;
template class CVentilListe<VENT_VDI3805_TEXT>;
template class CVentilListe<VENT_VDI3805_ARTIKEL>;
