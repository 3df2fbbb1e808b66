#pragma once

#include "c_interface/radsel_c.h"
#include "c_interface/records/call_fault.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <type_traits>

namespace c_interface {

/// Records that begin with their size may be shorter than this library's, when they come from a
/// program that was compiled with an earlier header, or longer. A shorter one is completed by
/// defaults on the way in; on the way out no byte behind its size is touched.

/// A larger size is no record's but whatever stood in memory that nobody has filled.
inline constexpr std::size_t kLargestRecord = 1 << 20;

/// The record's size, checked. `record` must not be null.
template <class Record>
std::size_t SizeOf(const Record* record)
{
    std::size_t size = 0;
    std::memcpy(&size, record, sizeof size);
    if (size <= sizeof size || size > kLargestRecord) {
        throw CCallFault(RADSEL_BAD_ARGUMENT, "A record says that it has " + std::to_string(size) +
                                                  " bytes; its init function sets that right.");
    }
    return size;
}

/// Copies as many bytes as both have, the size itself left alone.
template <class Record>
void CopyFields(void* target, const void* source, std::size_t size)
{
    static_assert(std::is_trivially_copyable_v<Record> && offsetof(Record, size) == 0);
    const std::size_t first = sizeof(std::size_t);
    const std::size_t shared = std::min(size, sizeof(Record));
    std::memcpy(static_cast<char*>(target) + first, static_cast<const char*>(source) + first,
                shared - first);
}

/// The caller's record, whole. Null raises CCallFault.
template <class Record>
Record Load(const Record* record, const Record& defaults)
{
    if (record == nullptr) {
        throw CCallFault(RADSEL_BAD_ARGUMENT, "A record that must be there is null.");
    }
    Record whole = defaults;
    CopyFields<Record>(&whole, record, SizeOf(record));
    return whole;
}

/// Gives the caller what his record has places for.
template <class Record>
void Store(Record* record, const Record& whole)
{
    CopyFields<Record>(record, &whole, SizeOf(record));
}

/// Makes the defaults of a record of `size` bytes, the size included.
template <class Record>
void Init(Record* record, std::size_t size, const Record& defaults)
{
    if (record == nullptr || size <= sizeof size) {
        return;
    }
    std::memset(static_cast<void*>(record), 0, size);
    std::memcpy(static_cast<void*>(record), &size, sizeof size);
    CopyFields<Record>(record, &defaults, size);
}

} // namespace c_interface
