#include "workbench/report/valve_place.h"

#include "workbench/drawing/connection_marks.h"
#include "workbench/plan/placement.h"
#include "workbench/plan/radiator_list.h"

#include <cmath>
#include <numbers>

namespace workbench {

namespace {

/// A point is at the radiator's middle within this share of its length.
constexpr double kMiddle = 0.2;

double TurnOf(const CConnectionMark& mark, const CRadiatorPose& pose)
{
    constexpr double kRadian = std::numbers::pi / 180.0;
    if (!IsUpright(mark)) {
        return std::atan2(-mark.richtung.y(), -mark.richtung.x()) / kRadian;
    }
    const double along = (mark.punkt.x() - pose.dX) * std::cos(pose.dWinkel * kRadian) +
                         (mark.punkt.y() - pose.dY) * std::sin(pose.dWinkel * kRadian);
    if (std::fabs(along) < kMiddle * pose.dLaenge) {
        return pose.dWinkel + 90.0;
    }
    return along > 0.0 ? pose.dWinkel + 180.0 : pose.dWinkel;
}

} // namespace

std::vector<CValvePlace> ValvePlacesOf(const CBuilding& building, const CRadiatorRef& ref)
{
    const CPlacedRadiator& radiator = RadiatorOf(building, ref);
    const ConnValues& anschluss = radiator.anschluss;
    if (anschluss.GrafikAN.empty() && anschluss.GrafikRI.empty()) {
        return {};
    }
    const CRadiatorPose pose = PoseOf(RoomOf(building, ref.room), radiator);
    CRadiatorList list(building, {ref});
    std::vector<CValvePlace> places;
    for (const CConnectionMark& mark : ConnectionMarksOf(*list.GetList())) {
        const CString& block = mark.bRuecklauf ? anschluss.GrafikRI : anschluss.GrafikAN;
        if (!block.empty()) {
            places.push_back({block, mark.punkt.x(), mark.punkt.y(), TurnOf(mark, pose)});
        }
    }
    return places;
}

double TurnOfBlock(const QRectF& bounds)
{
    const QPointF middle = bounds.center();
    if (std::fabs(middle.y()) > std::fabs(middle.x())) {
        return middle.y() < 0.0 ? -90.0 : 90.0;
    }
    return middle.x() > 0.0 ? 180.0 : 0.0;
}

} // namespace workbench
