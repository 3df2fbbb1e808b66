#pragma once

#include "workbench/building/building.h"

namespace workbench {

/// A product by the names that lead to it in the catalogues: maker, kind, product.
struct CRadiatorProduct
{
    CString strHersteller;
    CString strArt;
    CString strProdukt;

    bool operator==(const CRadiatorProduct&) const = default;
};

/// The product that the designer wishes for a room.
inline CRadiatorProduct ProductOf(const CRoom& room)
{
    return {room.strHersteller, room.strArt, room.strProdukt};
}

/// The product of a radiator in the plan.
inline CRadiatorProduct ProductOf(const CPlacedRadiator& radiator)
{
    return {radiator.strHersteller, radiator.strArt, radiator.strProdukt};
}

} // namespace workbench
