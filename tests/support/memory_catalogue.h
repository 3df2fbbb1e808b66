#pragma once

#include "frame/handover.h"
#include "host/host_catalog.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

#include <deque>

/// A product with rows of the test's own, hung below a maker of the reference catalogue. As the
/// maker then counts as read, filter passes take the rows from here and touch no file.
class CMemoryCatalogue
{
public:
    CMemoryCatalogue();
    ~CMemoryCatalogue();

    CMemoryCatalogue(const CMemoryCatalogue&) = delete;
    CMemoryCatalogue& operator=(const CMemoryCatalogue&) = delete;

    /// Appends a row; the reference holds for the life of the catalogue.
    HK_VDI3805_TYP& Add(wchar_t bauart, double hoehe, double tiefe, double laenge,
                        double leistungEN442, double elemente = 0.0, double inhalt = 0.0,
                        const CString& name = L"Tipo");

    /// Appends a row of a unit with this output, for tests that look at outputs only.
    HK_VDI3805_TYP& AddUnit(double leistung, const CString& name = L"Tipo");

    /// Removes all rows.
    void Clear();

    HK_VDI3805_PRODUKT& Produkt() { return m_produkt; }

    /// A hand-over at this product with every range wide open, at 75/65/20 °C.
    HK_DATEN_VDI3805_UEBERGABE Uebergabe(double leistung) const;

private:
    CTempFolder m_folder;
    CSettingOverride m_setting;
    HK_VDI3805_HERSTELLER* m_pHersteller;
    HK_VDI3805_ART m_art;
    HK_VDI3805_PRODUKT m_produkt;
    std::deque<HK_VDI3805_TYP> m_rows;
};
