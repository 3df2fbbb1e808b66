#pragma once

#include "workbench/building/building.h"

namespace workbench {

struct CArguments;

/// The building of the arguments, with their heating system and, where they name a room, with that
/// room and its floor only. Raises CArgumentException if it has no such room, which the message
/// calls a fault of `roomOption`, or if the system cannot heat one of the rooms; CContentException
/// if the building cannot be read.
CBuilding ReadAskedBuilding(const CArguments& arguments, const CString& roomOption);

} // namespace workbench
