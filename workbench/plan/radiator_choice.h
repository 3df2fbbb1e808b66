#pragma once

#include "workbench/plan/confirmed_connection.h"
#include "workbench/plan/radiator_wish.h"

#include <optional>

namespace workbench {

/// What was chosen for a place, by the silent search or by the user in the module's dialog.
struct CRadiatorChoice
{
    CRadiatorProduct produkt;
    /// The row: its type text, and its sizes and outputs as those of the whole radiator. Leistung
    /// is the output at the temperatures of the wish, or at those that the user set in the dialog.
    CString strTyp;
    HK_DATEN_VDI3805 daten;
    /// The layer that the dialog gave back; nothing after a silent search.
    std::optional<CRadiatorLayer> layer;
    /// The block that the dialog showed at the end; nothing after a silent search.
    std::optional<CString> block;
    /// The temperatures that the user set in the dialog; nothing if he left those of the wish.
    std::optional<CHeatingSystem> system = std::nullopt;
    /// The room temperature that he set there, in degrees Celsius; nothing if he left that of the
    /// room.
    std::optional<double> raumtemperatur = std::nullopt;
    /// What the user confirmed in the dialogs behind it.
    CConfirmedStart start = {};
};

/// A row in a few words: "C 22, 600 x 100 x 800 mm, 912 W".
CString DescribeRow(const CString& typ, const HK_DATEN_VDI3805& daten);

/// The choice that a radiator of the plan stands for.
inline CRadiatorChoice ChoiceOf(const CPlacedRadiator& radiator)
{
    return {ProductOf(radiator), radiator.strTyp, radiator.daten,
            CRadiatorLayer{radiator.strLayer, radiator.nFarbe}, radiator.strBlock};
}

/// True if what was chosen is what stands there.
inline bool IsSameRow(const CPlacedRadiator& radiator, const CRadiatorChoice& chosen)
{
    return ProductOf(radiator) == chosen.produkt && radiator.strTyp == chosen.strTyp &&
           radiator.daten.Hoehe == chosen.daten.Hoehe &&
           radiator.daten.Tiefe == chosen.daten.Tiefe &&
           radiator.daten.Laenge == chosen.daten.Laenge;
}

} // namespace workbench
