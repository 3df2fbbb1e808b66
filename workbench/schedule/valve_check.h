#pragma once

#include "workbench/building/building.h"

#include <vector>

namespace workbench {

/// The maker's valve file as a system path. It need not exist.
CString ValveFileOf(const CString& hersteller);

/// What is damaged in the valve files of the makers whose valves rooms and radiators of the
/// building are to have: a text a file, with the line where it is known. A file that is not there
/// is none.
std::vector<CString> CheckValveFiles(const CBuilding& building);

} // namespace workbench
