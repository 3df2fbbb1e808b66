#include "selection/auswahl_kriterien.h"

#include "common/layer_text.h"
#include "common/numbers.h"
#include "host/host_catalog.h"
#include "host/host_prefs.h"
#include "platform/format.h"
#include "platform/number_scan.h"
#include "platform/rounding.h"
#include "selection/auswahl_speicher.h"
#include "selection/heizsysteme.h"

#include <algorithm>

namespace {

/// Percentage of its demand that a room starts with when nothing of it is covered yet.
constexpr double kStartProzent = 50.0;

/// Watts below which a new percentage does not read the catalogue again.
constexpr double kKleinsteLeistung = 100.0;

CString GanzeZahl(double value)
{
    return FormatFixed(value, 0);
}

} // namespace

CAuswahlKriterien::CAuswahlKriterien(CAuswahlAnsicht& ansicht, CHKVdi3805& katalog, bool treffer,
                                     bool warnen)
    : m_pVdi(&katalog), m_bTreffer(treffer), m_bWarnen(warnen), m_ansicht(ansicht)
{
    lmGetHKLayer(m_strLayerEingabe);
    m_strLayer = m_strLayerEingabe;
    bool automatisch = false;
    lmGetAutoLayerManagement(automatisch, false);
    m_bLayerAktiv = automatisch ? 1 : 0;
}

void CAuswahlKriterien::Neuberechnen()
{
    HK_DATEN_VDI3805_UEBERGABE& uebergabe = Uebergabe();
    m_ansicht.UpdateData(true);
    LiesMass(idHoeheVon, m_nHoeheVon, uebergabe.HoeheMin);
    LiesMass(idHoeheBis, m_nHoeheBis, uebergabe.HoeheMax);
    LiesMass(idTiefeVon, m_nTiefeVon, uebergabe.TiefeMin);
    LiesMass(idTiefeBis, m_nTiefeBis, uebergabe.TiefeMax);
    uebergabe.LaengeMin = _wtof(m_strLaengeVon);
    uebergabe.LaengeMax = _wtof(m_strLaengeBis);
    uebergabe.Leistung = _wtof(m_strLeistungSoll);
    // The pass before the dialog was made with the tolerance and the bounds that the host wanted.
    // If it found a best row, its result stands until the user changes something.
    m_ansicht.ZeilenAufbauen(!m_pVdi->IsErsterLauf() || !m_bTreffer);
    m_pVdi->SetErsterLauf(false);
}

void CAuswahlKriterien::NeuberechnenWennBereit()
{
    if (m_bInitialisiert) {
        Neuberechnen();
    }
}

void CAuswahlKriterien::KatalogNeuLesen()
{
    FelderAnzeigen();
    Uebergabe().NeuLesen = 1;
    Neuberechnen();
}

void CAuswahlKriterien::FelderAnzeigen()
{
    m_strLaengeVon = GanzeZahl(Uebergabe().LaengeMin);
    m_strLaengeBis = GanzeZahl(Uebergabe().LaengeMax);
    m_strLeistungSoll = GanzeZahl(Uebergabe().Leistung);
    m_ansicht.EnableControl(idProzent, m_bProzent != 0);
    m_ansicht.UpdateData(false);
}

void CAuswahlKriterien::LeistungIstAnzeigen(const CString& leistung)
{
    m_strLeistungIst = leistung;
    m_ansicht.UpdateData(false);
    AbweichungAnzeigen();
}

void CAuswahlKriterien::AbweichungAnzeigen()
{
    m_ansicht.UpdateData(true);
    const double soll = _wtof(m_strLeistungSoll);
    const double ist = _wtof(m_strLeistungIst);
    m_strAbweichung = FormatFixed(soll == 0.0 ? 0.0 : 100.0 / soll * (ist - soll), 1);
    m_strExponent = FormatFixed(Uebergabe().Daten.Exponent, 3);
    m_ansicht.UpdateData(false);
}

void CAuswahlKriterien::LeistungFilterAus()
{
    m_bLeistungAngabe = 0;
    m_pVdi->SetLeistungFilter(0);
}

void CAuswahlKriterien::UebergabeLesen()
{
    Uebergabe().NeuLesen = 0;
    RaumdatenLesen();
    m_strRaumtemperatur = FormatNumber(Uebergabe().Raumtemperatur, 0);
    HeizsystemeLesen();
}

void CAuswahlKriterien::RaumdatenLesen()
{
    HK_DATEN_VDI3805_UEBERGABE& uebergabe = Uebergabe();
    if (uebergabe.Raumname.empty()) {
        return;
    }
    m_Prozent = kStartProzent;
    m_strRaum = uebergabe.Raumname;
    m_RaumBedarf = uebergabe.RaumBedarf;
    // A start value only: the checks of remainder and percentage stay unticked, so that the user
    // decides which of the two is to hold. An over-covered room shows by how much.
    uebergabe.Leistung = uebergabe.RaumGedeckt == 0.0
                             ? uebergabe.RaumBedarf * m_Prozent / 100.0
                             : uebergabe.RaumBedarf - uebergabe.RaumGedeckt;
    m_strLayer = LayerAusVorlage(m_strLayer, CRoomTools::GetFloorName(m_strRaum));
    m_strLayerEingabe = m_strLayer;
}

void CAuswahlKriterien::HeizsystemeLesen()
{
    CAuswahlListe& liste = m_ansicht.Liste(idHeizsysteme);
    ListeLesen(kListeHeizsysteme, liste, kGewerkHeizung);
    m_Vorlauf = Uebergabe().Vorlauf;
    m_Ruecklauf = Uebergabe().Ruecklauf;
    // The caller's temperatures win over the system that was selected last.
    m_nHeizsystem = std::max(SystemSuchen(m_strSystemName, m_Vorlauf, m_Ruecklauf), 0);
    liste.Waehlen(m_nHeizsystem);
}

void CAuswahlKriterien::LayerLesen(CAuswahlListe& layerListe)
{
    if (LayerVorgabe(Uebergabe().Raumname, m_strLayer, m_nLayerFarbe)) {
        m_strLayerEingabe = m_strLayer;
    }
    if (layerListe.Anzahl() == 0) {
        return;
    }
    if (m_strLayer.empty()) {
        m_strLayer = m_strLayerEingabe;
    }
    m_strLayerEingabe = m_strLayer;
    const int index = SucheAnfang(layerListe, m_strLayer);
    layerListe.Waehlen(index >= 0 ? index : layerListe.Hinzufuegen(m_strLayer));
}

void CAuswahlKriterien::LiesMass(int listId, int index, double& mass)
{
    if (index != -1) {
        mass = _wtof(m_ansicht.Liste(listId).Text(index));
    }
}

void CAuswahlKriterien::NeuesProdukt()
{
    for (const int id : {idHoeheVon, idTiefeVon, idHoeheBis, idTiefeBis}) {
        ListeLeeren(m_ansicht.Liste(id));
    }
    m_pVdi->Filtern();
    const HK_DATEN_VDI3805_UEBERGABE& uebergabe = Uebergabe();
    FuelleMassListen(m_pVdi->GetHoehen(), idHoeheVon, idHoeheBis);
    SucheBereich(idHoeheVon, uebergabe.HoeheMin, uebergabe.HoeheMax, m_nHoeheVon, m_nHoeheBis);
    FuelleMassListen(m_pVdi->GetTiefen(), idTiefeVon, idTiefeBis);
    SucheBereich(idTiefeVon, uebergabe.TiefeMin, uebergabe.TiefeMax, m_nTiefeVon, m_nTiefeBis);
    FelderAnzeigen();
    Neuberechnen();
}

void CAuswahlKriterien::FuelleMassListen(const CArray<double, double>& masse, int vonId, int bisId)
{
    for (const int id : {vonId, bisId}) {
        CAuswahlListe& liste = m_ansicht.Liste(id);
        for (const double mass : masse) {
            liste.Hinzufuegen(GanzeZahl(mass));
        }
        SortComboNumeric(liste, true);
    }
}

void CAuswahlKriterien::SucheBereich(int listId, double min, double max, int& von, int& bis)
{
    const CAuswahlListe& liste = m_ansicht.Liste(listId);
    von = SucheAnfang(liste, GanzeZahl(min));
    bis = SucheAnfang(liste, GanzeZahl(max));
    if (von < 0 || bis < 0) {
        von = 0;
        bis = liste.Anzahl() - 1;
    }
}

void CAuswahlKriterien::LeistungAngabeGeklickt()
{
    m_ansicht.UpdateData(true);
    LeistungAngabeAnwenden();
}

void CAuswahlKriterien::LeistungAngabeAnwenden()
{
    m_pVdi->SetLeistungFilter(m_bLeistungAngabe);
    m_ansicht.EnableControl(idLeistungSoll, m_bLeistungAngabe != 0);
    m_ansicht.EnableControl(idLeistungIst, m_bLeistungAngabe != 0);
    KatalogNeuLesen();
}

void CAuswahlKriterien::AlleAnzeigenGeklickt()
{
    m_ansicht.UpdateData(true);
    m_pVdi->SetAlleAnzeigen(m_bAlleAnzeigen);
    m_ansicht.ZeilenAufbauen(true);
    for (const int id : {idHoeheBis, idHoeheVon, idTiefeBis, idTiefeVon}) {
        m_ansicht.EnableControl(id, m_bAlleAnzeigen == 0);
    }
    m_ansicht.EnableControl(idLaengeVon, m_bAlleAnzeigen == 0);
    m_ansicht.EnableControl(idLaengeBis, m_bAlleAnzeigen == 0);
}

void CAuswahlKriterien::RestGeklickt()
{
    m_ansicht.UpdateData(true);
    if (m_bRest == 0) {
        return;
    }
    HK_DATEN_VDI3805_UEBERGABE& uebergabe = Uebergabe();
    uebergabe.Leistung = std::max(uebergabe.RaumBedarf - uebergabe.RaumGedeckt, 0.0);
    m_bProzent = 0;
    KatalogNeuLesen();
}

void CAuswahlKriterien::ProzentGeaendert()
{
    const double prozent = m_Prozent;
    const int angehakt = m_bProzent;
    m_ansicht.UpdateData(true);
    // The field of the deviation raises this event too, whenever the dialog itself shows a new
    // deviation. The user has changed nothing then.
    if (m_Prozent == prozent && m_bProzent == angehakt) {
        return;
    }
    HK_DATEN_VDI3805_UEBERGABE& uebergabe = Uebergabe();
    if (m_bProzent == 0 || !(m_Prozent > 0.0) || !(uebergabe.RaumBedarf > 0.0)) {
        return;
    }
    uebergabe.Leistung = std::max(RoundTo(uebergabe.RaumBedarf * m_Prozent * 0.01, 1.0), 0.0);
    m_bRest = 0;
    if (uebergabe.Leistung >= kKleinsteLeistung) {
        KatalogNeuLesen();
    } else {
        FelderAnzeigen();
    }
}

void CAuswahlKriterien::LiesRaumtemperatur()
{
    const CString vorher = m_strRaumtemperatur;
    m_ansicht.UpdateData(true);
    // The field shows whole degrees; only what the user types may replace the host's temperature.
    if (m_strRaumtemperatur != vorher) {
        Uebergabe().Raumtemperatur = ParseNumber(m_strRaumtemperatur);
    }
}

void CAuswahlKriterien::RaumtemperaturGeaendert()
{
    LiesRaumtemperatur();
}

void CAuswahlKriterien::RaumtemperaturVerlassen()
{
    LiesRaumtemperatur();
    LeistungAngabeAnwenden();
}

void CAuswahlKriterien::SystemGewaehlt()
{
    m_ansicht.UpdateData(true);
    if (m_nHeizsystem < 0) {
        return;
    }
    SystemZerlegen(m_ansicht.Liste(idHeizsysteme).Text(m_nHeizsystem), m_strSystemName, m_Vorlauf,
                   m_Ruecklauf);
    SystemAnwenden();
}

void CAuswahlKriterien::SystemAnwenden()
{
    m_ansicht.UpdateData(false);
    Uebergabe().Vorlauf = m_Vorlauf;
    Uebergabe().Ruecklauf = m_Ruecklauf;
    NeuberechnenWennBereit();
    m_ansicht.UpdateData(false);
}

void CAuswahlKriterien::SystemSpeichern()
{
    m_ansicht.UpdateData(true);
    const CString eintrag = SystemText(m_strSystemName, m_Vorlauf, m_Ruecklauf);
    if (eintrag.empty()) {
        return;
    }
    CAuswahlListe& liste = m_ansicht.Liste(idHeizsysteme);
    m_nHeizsystem = EintragSuchen(liste, eintrag);
    liste.Waehlen(m_nHeizsystem);
    SystemAnwenden();
}

void CAuswahlKriterien::SystemLoeschen()
{
    m_ansicht.UpdateData(true);
    CAuswahlListe& liste = m_ansicht.Liste(idHeizsysteme);
    EintragLoeschen(liste, liste.Text(liste.Gewaehlt()));
    m_nHeizsystem = 0;
    SystemGewaehlt();
    m_ansicht.UpdateData(false);
}

void CAuswahlKriterien::Uebernehmen()
{
    HK_DATEN_VDI3805_UEBERGABE& uebergabe = Uebergabe();
    uebergabe.Vorlauf = m_Vorlauf;
    uebergabe.Ruecklauf = m_Ruecklauf;
    uebergabe.Leistung = _wtof(m_strLeistungIst);
    LayerMerken(m_strLayer, m_nLayerFarbe);
    ListeSchreiben(kListeHeizsysteme, m_ansicht.Liste(idHeizsysteme), kGewerkHeizung);
    AuswahlMerken(uebergabe, m_strSystemName, m_Vorlauf, m_Ruecklauf);
}
