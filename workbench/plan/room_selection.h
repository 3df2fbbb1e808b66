#pragma once

#include "workbench/plan/radiator_choice.h"

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
    /// What was chosen does not fit its place.
    tooLarge,
    /// What was chosen covers the room and exceeds the need by more than the building allows.
    oversized,
};

struct CRoomOutcome
{
    RoomStatus status = RoomStatus::covered;
    /// The chosen radiator; for an unfitting room the nearest one of the product.
    std::optional<CRadiatorChoice> radiator;
    /// What the nearest radiator lacks, or why there is none; a text for the user.
    CString strNote;
};

/// Chooses the radiator of the wished product and within the wished limits whose output at design
/// temperatures is nearest to the wished one, through the module's silent selection. One weaker
/// than 90 per cent of it is not accepted. The catalogues are those of the host's settings.
CRoomOutcome SelectRadiator(const CRadiatorWish& wish);

/// The radiator of the wished product and within the wished limits that gives most, where none
/// gives what is wished; nothing if none fits or the catalogue cannot be read.
std::optional<CRadiatorChoice> SelectLargest(CRadiatorWish wish);

} // namespace workbench
