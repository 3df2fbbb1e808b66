#pragma once

#include "platform/archive.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace host_defaults {

/// Archive forms of the host's records. One list of fields serves both directions, so that they
/// cannot drift apart.

template <class T>
void Transfer(CArchive& archive, T& value)
{
    if (archive.IsStoring()) {
        archive << value;
    } else {
        archive >> value;
    }
}

template <class T, std::size_t N>
void Transfer(CArchive& archive, std::array<T, N>& values)
{
    for (T& value : values) {
        Transfer(archive, value);
    }
}

/// Writes or reads the values one after the other.
template <class... T>
void TransferAll(CArchive& archive, T&... values)
{
    (Transfer(archive, values), ...);
}

/// Version of a record's form, in front of its fields. Reading any but the known one raises
/// CArchiveException.
inline void TransferVersion(CArchive& archive, std::uint32_t known)
{
    std::uint32_t version = known;
    Transfer(archive, version);
    if (version != known) {
        throw CArchiveException(CArchiveException::Cause::badSchema);
    }
}

} // namespace host_defaults
