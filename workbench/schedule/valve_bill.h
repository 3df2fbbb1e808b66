#pragma once

#include "workbench/schedule/schedule.h"

#include <vector>

namespace workbench {

/// A kind of valve and how many of it the building takes.
struct CValveItem
{
    CString strHersteller;
    CString strBestellNr;
    CString strVentilNr;
    double DN = 0.0;
    int nAnzahl = 0;
};

/// What is to be ordered for the chosen radiators of a schedule.
struct CValveBill
{
    /// By maker and order number.
    std::vector<CValveItem> items;
    int nValves = 0;
    /// Valves that are wanted and were not found.
    int nMissing = 0;
};

CValveBill MakeValveBill(const CSchedule& schedule);

} // namespace workbench
