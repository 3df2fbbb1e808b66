#include "tests/src/selection/test_dialog.h"

#include "platform/format.h"
#include "platform/number_scan.h"

#include <gtest/gtest.h>

bool CTestGitter::LoescheZeile(int zeile)
{
    if (zeile < 0 || zeile >= static_cast<int>(zeilen.size())) {
        return false;
    }
    zeilen.erase(zeilen.begin() + zeile);
    return true;
}

CString CTestGitter::Text(int spalte, int zeile) const
{
    if (zeile == kErgebnisKopf) {
        return SpaltenTitel(spalte);
    }
    const bool exists = zeile >= 0 && zeile < static_cast<int>(zeilen.size());
    return exists ? zeilen[static_cast<std::size_t>(zeile)][static_cast<std::size_t>(spalte)]
                  : CString();
}

void CTestGitter::PasseBreiteAn(int erste, int anzahl, int count, int mindestens)
{
    anpassung = {erste, anzahl, count, mindestens};
}

CTestDialog::CTestDialog(HK_DATEN_VDI3805_UEBERGABE& uebergabe)
    : vdi(&uebergabe), kriterien(*this, vdi, false, false), zeilen(gitter, kriterien)
{
    using K = CAuswahlKriterien;
    m_textFelder = {{7007, &K::m_strSystemName},     {18002, &K::m_strLaengeVon},
                    {18003, &K::m_strLaengeBis},     {18005, &K::m_strLeistungSoll},
                    {18011, &K::m_strLeistungIst},   {18015, &K::m_strAbweichung},
                    {18018, &K::m_strExponent},      {18048, &K::m_strRaum},
                    {18107, &K::m_strRaumtemperatur}};
    m_zahlFelder = {{7008, &K::m_Vorlauf},
                    {7009, &K::m_Ruecklauf},
                    {18012, &K::m_RaumBedarf},
                    {18016, &K::m_Prozent}};
    m_hakenFelder = {{18017, &K::m_bLeistungAngabe},
                     {18019, &K::m_bAlleAnzeigen},
                     {18047, &K::m_bRest},
                     {18049, &K::m_bProzent}};
    m_listenFelder = {{7006, &K::m_nHeizsystem},
                      {18004, &K::m_nHoeheVon},
                      {18008, &K::m_nHoeheBis},
                      {18009, &K::m_nTiefeVon},
                      {18010, &K::m_nTiefeBis}};
}

void CTestDialog::Oeffnen(bool mitProdukt)
{
    vdi.Filtern();
    kriterien.m_bTreffer = vdi.BesteAuswahl() != -1;
    kriterien.LeistungFilterAus();
    zeilen.ZeileWaehlen(0);
    kriterien.UebergabeLesen();
    if (mitProdukt) {
        kriterien.NeuesProdukt();
    }
    kriterien.LayerLesen(layer);
    kriterien.FelderAnzeigen();
    UpdateData(false);
    kriterien.m_bInitialisiert = true;
    zeilen.BesteZeileWaehlen();
}

void CTestDialog::Tippe(int id, const CString& text)
{
    if (std::exchange(texte[id], text) != text) {
        MeldeAenderung(id);
    }
}

void CTestDialog::Hake(int id, bool an)
{
    haken[id] = an ? 1 : 0;
    switch (id) {
    case 18017:
        return kriterien.LeistungAngabeGeklickt();
    case 18019:
        return kriterien.AlleAnzeigenGeklickt();
    case 18047:
        return kriterien.RestGeklickt();
    default:
        return kriterien.ProzentGeaendert();
    }
}

void CTestDialog::Waehle(int id, int index)
{
    listen[id].Waehlen(index);
    if (id == idHeizsysteme) {
        kriterien.SystemGewaehlt();
    } else {
        kriterien.NeuberechnenWennBereit();
    }
}

void CTestDialog::UpdateData(bool lesen)
{
    if (!lesen) {
        SchreibeFelder();
        return;
    }
    for (const auto& [id, member] : m_textFelder) {
        kriterien.*member = texte[id];
    }
    for (const auto& [id, member] : m_zahlFelder) {
        kriterien.*member = _wtof(texte[id]);
    }
    for (const auto& [id, member] : m_hakenFelder) {
        kriterien.*member = haken[id];
    }
    for (const auto& [id, member] : m_listenFelder) {
        kriterien.*member = listen[id].gewaehlt;
    }
}

void CTestDialog::SchreibeFelder()
{
    for (const auto& [id, member] : m_hakenFelder) {
        haken[id] = kriterien.*member;
    }
    for (const auto& [id, member] : m_listenFelder) {
        listen[id].Waehlen(kriterien.*member);
    }
    std::map<int, CString> shown;
    for (const auto& [id, member] : m_textFelder) {
        shown[id] = kriterien.*member;
    }
    for (const auto& [id, member] : m_zahlFelder) {
        shown[id] = FormatPlain(kriterien.*member);
    }
    std::vector<int> changed;
    for (const auto& [id, text] : shown) {
        if (std::exchange(texte[id], text) != text) {
            changed.push_back(id);
        }
    }
    for (const int id : changed) {
        MeldeAenderung(id);
    }
}

void CTestDialog::MeldeAenderung(int id)
{
    switch (id) {
    case 18002:
    case 18003:
    case 18005:
        return kriterien.NeuberechnenWennBereit();
    case 18015:
    case 18016:
        return kriterien.ProzentGeaendert();
    case 18107:
        return kriterien.RaumtemperaturGeaendert();
    default:
        return;
    }
}

void CTestDialog::EnableControl(int id, bool enable)
{
    if (enable) {
        gesperrt.erase(id);
    } else {
        gesperrt.insert(id);
    }
}

void CTestDialog::ZeilenAufbauen(bool filtern)
{
    aufbauten.push_back(filtern);
    neuLesen.push_back(vdi.GetDaten().NeuLesen);
    ASSERT_LT(aufbauten.size(), 10000U) << "events without an end";
    zeilen.ZeilenAufbauen(filtern);
}
