#pragma once

#include "frame/handover.h"
#include "workbench/building/building.h"

#include <optional>

namespace workbench {

/// How the search for a room's radiator ended.
enum class RoomStatus
{
    /// A radiator of the product covers the room.
    chosen,
    /// The room is covered already and needs none.
    covered,
    /// The product has no radiator that fits the room and is strong enough.
    unfitting,
    /// The catalogues do not know the product, or it has no sizes.
    unknownProduct,
    /// The maker's catalogue cannot be read.
    badCatalogue,
    /// Nothing was chosen yet.
    missing,
    /// What was chosen does not cover the room.
    lacking,
};

/// A row of a product: outputs are those of the whole radiator.
struct CRadiator
{
    CString strTyp;
    HK_DATEN_VDI3805 daten;
};

struct CRoomOutcome
{
    RoomStatus status = RoomStatus::covered;
    /// The chosen radiator; for an unfitting room the nearest one of the product.
    std::optional<CRadiator> radiator;
    /// What the nearest radiator lacks, or why there is none; a text for the user.
    CString strNote;
};

/// Chooses the radiator of the room's product whose output at design temperatures is nearest to
/// what the room needs, through the module's silent selection. One weaker than 90 per cent of the
/// need is not accepted. The catalogues are those of the host's settings.
CRoomOutcome SelectRadiator(const CRoom& room, const CHeatingSystem& system);

} // namespace workbench
