#pragma once

#include "workbench/plan/repair.h"

class QWidget;

namespace workbench {

/// Sizes rooms (SizeRooms) behind a bar that shows how far it is and lets the user cancel.
CSizingResult SizeWithProgress(QWidget* parent, const CBuilding& building,
                               const std::vector<CRoomRef>& rooms, Picked picked);

/// The same for repairing them (RepairRooms).
CRepairResult RepairWithProgress(QWidget* parent, const CBuilding& building,
                                 const std::vector<CRoomRef>& rooms, Picked picked);

} // namespace workbench
