#pragma once

#include "platform/text.h"

#include <cstddef>
#include <string_view>

/// Why a record is refused that has only its first `count` fields, the record type included, of the
/// `needed` that are asked of it: a part of a sentence for the user. Fields are told by their
/// number from 0, as the formats count them.
CString DescribeMissingFields(std::wstring_view record, std::size_t count, std::size_t needed);
