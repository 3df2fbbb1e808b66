#pragma once

#include "workbench/plan/radiator_choice.h"

namespace workbench {

/// The hand-over in which the module is asked for what is wished. All of its exports take it, the
/// silent ones and those with a dialog.
///
/// The heights and depths are those of the product within the limits, because the dialog offers
/// only sizes of the product and falls back to all of them where it is given another one. Where the
/// product has none within, they are the limits. No row that is higher than the limit comes through
/// the module's tolerance for heights.
///
/// The catalogue is read for the wished output here, so the module has to be asked before the next
/// hand-over is filled. Umrechnungsfaktor is already the one for the temperatures.
HK_DATEN_VDI3805_UEBERGABE FillHandover(const CRadiatorWish& wish);

/// What the module left in the hand-over: product, row and outputs.
CRadiatorChoice ReadHandover(const HK_DATEN_VDI3805_UEBERGABE& handover);

} // namespace workbench
