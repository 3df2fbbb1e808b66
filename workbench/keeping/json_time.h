#pragma once

#include "platform/text.h"

#include <cstdint>

namespace workbench {

class CJsonFields;
class CJsonWriter;

/// A moment, in seconds since the beginning of 1970, UTC, as a text of a JSON file
/// ("2026-03-01T14:05:00Z").
std::int64_t ReadTime(CJsonFields& fields, const char* name);
void WriteTime(CJsonWriter& writer, const char* name, std::int64_t time);

/// The same for people, at the place where the program runs: "01/03/2026 15:05:00".
CString DescribeTime(std::int64_t time);

} // namespace workbench
