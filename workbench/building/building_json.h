#pragma once

#include "workbench/building/building.h"

#include <string>

namespace workbench {

class CJsonFields;
class CJsonWriter;

/// Reads a building from a JSON file in the form of docs/building-format.md, of this or an earlier
/// version. Everything in the result is checked. Raises CContentException with file, room and
/// field, or with line and column where the file is no JSON.
CBuilding ReadBuilding(const CString& path);

/// The building as such a file, UTF-8, of the newest version. Reading it gives the same building.
/// The text depends on the building only, field by field in a fixed order, so that two files can be
/// compared line by line.
std::string FormatBuilding(const CBuilding& building);

/// Whether both come out as the same file. Quick for states of one building, which share their
/// rooms.
bool IsSameBuilding(const CBuilding& a, const CBuilding& b);

/// Writes the building to a file. Whatever happens meanwhile, the file holds the old building or
/// the new one, whole. Raises CFileException.
void WriteBuilding(const CString& path, const CBuilding& building);

/// The same for a building that is an object within another file.
CBuilding ReadBuilding(CJsonFields fields);
void WriteBuilding(CJsonWriter& writer, const char* name, const CBuilding& building);

} // namespace workbench
