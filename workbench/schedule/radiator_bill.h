#pragma once

#include "workbench/schedule/columns.h"
#include "workbench/schedule/schedule.h"

#include <vector>

namespace workbench {

/// A size of a product and how many of it the building takes.
struct CRadiatorItem
{
    CString strHersteller;
    CString strArt;
    CString strProdukt;
    CString strTyp;
    CMeasures masse;
    /// Sections; 0 for other kinds.
    double elemente = 0.0;
    /// Empty if the maker's catalogue has none for this size, or cannot be read.
    CString strBestellNr;
    int nAnzahl = 0;
};

/// What is to be ordered of the radiators of a building.
struct CRadiatorBill
{
    /// By maker, kind, product, type and size.
    std::vector<CRadiatorItem> items;
    int nRadiators = 0;
};

/// Order numbers are those of the catalogues of the host's settings.
CRadiatorBill MakeRadiatorBill(const CSchedule& schedule);

} // namespace workbench
