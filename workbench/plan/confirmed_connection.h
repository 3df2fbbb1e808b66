#pragma once

#include "workbench/building/building.h"

namespace workbench {

/// What the dialog of connections was opened with, and what it gave back.
struct CConfirmedConnection
{
    ConnValues eingang;
    ConnValues anschluss;
    CValveKeys ventile;
    /// The groups that the user left on. What he switched off stays on each radiator.
    bool bVentile = true;
    bool bTyp = true;
};

/// What was confirmed of the start values of a radiator, behind "Valvole..." and "Distanza..." of
/// the selection dialog.
struct CConfirmedStart
{
    /// Distances from wall and floor in metres.
    struct CDistances
    {
        double wand = 0.0;
        double boden = 0.0;
    };
    std::optional<CDistances> abstaende;
    std::optional<CConfirmedConnection> anschluss;
};

/// True if two distances, in metres, are shown as one.
bool IsSameDistance(double a, double b);

/// The entry of the lists of graphics and blocks that stands for none. The dialog gives empty names
/// for graphics that nobody touched, so that taking one away needs a name of its own.
inline constexpr wchar_t kNoGraphic[] = L"(nessuno)";

/// The name under which the lists show a graphic or a block, and the other way.
CString GraphicEntry(const CString& graphic);
CString GraphicOfEntry(const CString& entry);

/// Gives a radiator what was confirmed. Valve graphics stay as they are as long as the user chose
/// none; one goes together with its valve. So does the distance from the wall stay that was not
/// changed, which radiators need not have in common.
void TakeConnection(CPlacedRadiator& radiator, const CConfirmedConnection& chosen);

void TakeStart(CPlacedRadiator& radiator, const CConfirmedStart& confirmed);

} // namespace workbench
