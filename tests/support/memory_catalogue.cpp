#include "tests/support/memory_catalogue.h"

#include "reference_host/prefs/host_settings.h"

using namespace reference_host;

namespace {

constexpr wchar_t kMaker[] = L"Prova";

} // namespace

CMemoryCatalogue::CMemoryCatalogue() : m_setting(kSettingHKDir, m_folder.Path())
{
    m_folder.WriteBytes("Prova/hk.tga", "");
    m_folder.WriteBytes("Prova seconda/hk.tga", "");
    m_art.Name = L"Genere";
    m_art.pProdukt = &m_produkt;
    m_produkt.Name = L"Prodotto";
    ReadHKDaten();
    m_pHersteller = FindHersteller(kMaker);
    m_pHersteller->pArt = &m_art;
}

CMemoryCatalogue::~CMemoryCatalogue()
{
    m_pHersteller->pArt = nullptr;
}

HK_VDI3805_TYP& CMemoryCatalogue::Add(wchar_t bauart, double hoehe, double tiefe, double laenge,
                                      double leistungEN442, double elemente, double inhalt,
                                      const CString& name)
{
    HK_VDI3805_TYP* const last = m_rows.empty() ? nullptr : &m_rows.back();
    HK_VDI3805_TYP& row = m_rows.emplace_back();
    row.Name = name;
    row.Daten.Bauart = bauart;
    row.Daten.Hoehe = hoehe;
    row.Daten.Tiefe = tiefe;
    row.Daten.Laenge = laenge;
    row.Daten.LeistungEN442 = leistungEN442;
    row.Daten.Elemente = elemente;
    row.Daten.Inhalt = inhalt;
    (last != nullptr ? last->pNext : m_produkt.pTyp) = &row;
    return row;
}

HK_VDI3805_TYP& CMemoryCatalogue::AddUnit(double leistung, const CString& name)
{
    return Add(L'E', 600.0, 100.0, 1000.0, leistung, 0.0, 0.0, name);
}

void CMemoryCatalogue::Clear()
{
    m_produkt.pTyp = nullptr;
    m_rows.clear();
}

HK_DATEN_VDI3805_UEBERGABE CMemoryCatalogue::Uebergabe(double leistung) const
{
    HK_DATEN_VDI3805_UEBERGABE uebergabe;
    uebergabe.Hersteller = kMaker;
    uebergabe.Art = m_art.Name;
    uebergabe.Produkt = m_produkt.Name;
    uebergabe.Leistung = leistung;
    uebergabe.HoeheMax = uebergabe.TiefeMax = uebergabe.LaengeMax = 100000.0;
    uebergabe.Vorlauf = 75.0;
    uebergabe.Ruecklauf = 65.0;
    uebergabe.Raumtemperatur = 20.0;
    return uebergabe;
}
