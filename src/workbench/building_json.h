#pragma once

#include "workbench/building.h"

/// Reads a building from a JSON file in the form of docs/building-format.md. Everything in the
/// result is checked. Raises CContentException with file, room and field, or with line and column
/// where the file is no JSON.
CBuilding ReadBuilding(const CString& path);
