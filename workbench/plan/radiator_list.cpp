#include "workbench/plan/radiator_list.h"

#include "frame/vdi6030_start.h"
#include "host/host_prefs.h"

namespace workbench {

namespace {

CConnectionTexts TextsOf(const ConnValues& anschluss)
{
    return {anschluss.AnschlussAN, anschluss.AnschlussRI};
}

/// Nobody wants half a connection for a start.
CConnectionTexts LastConnection()
{
    const VDI6030START* const last = ReadDefFile_VDI6030START(false);
    return last != nullptr && !last->Anschluss.AnschlussAN.empty() &&
                   !last->Anschluss.AnschlussRI.empty()
               ? TextsOf(last->Anschluss)
               : CConnectionTexts{kStandardVorlauf, kStandardRuecklauf};
}

CPlanRadiator PlanRadiator(const CRadiatorPose& pose, const CConnectionTexts& texts)
{
    CPlanRadiator radiator;
    radiator.dX = pose.dX;
    radiator.dY = pose.dY;
    radiator.dUeberBoden = pose.dUeberBoden;
    radiator.dWinkel = pose.dWinkel;
    radiator.dLaenge = pose.dLaenge;
    radiator.dTiefe = pose.dTiefe;
    radiator.dHoehe = pose.dHoehe;
    radiator.strVorlauf = texts.strVorlauf;
    radiator.strRuecklauf = texts.strRuecklauf;
    return radiator;
}

} // namespace

CConnectionTexts ConnectionOf(const CPlacedRadiator& radiator)
{
    const CConnectionTexts texts = TextsOf(radiator.anschluss);
    return texts.strVorlauf.empty() && texts.strRuecklauf.empty() ? LastConnection() : texts;
}

CRadiatorList::CRadiatorList(const CBuilding& building, const std::vector<CRadiatorRef>& refs)
{
    for (const CRadiatorRef& ref : refs) {
        const CPlacedRadiator& radiator = RadiatorOf(building, ref);
        const CRadiatorPose pose = PoseOf(RoomOf(building, ref.room), radiator);
        m_records.Add(PlanRadiator(pose, ConnectionOf(radiator)));
    }
}

} // namespace workbench
