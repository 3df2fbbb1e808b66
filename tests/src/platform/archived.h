#pragma once

#include "platform/archive.h"

#include <cstdint>
#include <vector>

/// Records as the bytes of archives, for tests that compare or damage those.
using ArchiveBytes = std::vector<std::uint8_t>;

/// An archive around these bytes.
inline ArchiveBytes Framed(const ArchiveBytes& payload)
{
    CMemoryStream stream;
    CArchive archive(stream, CArchive::Mode::store);
    archive.Write(payload.data(), payload.size());
    archive.Close();
    return stream.GetBytes();
}

/// The archive that a record writes.
template <class RECORD>
ArchiveBytes Stored(RECORD record)
{
    CMemoryStream stream;
    CArchive archive(stream, CArchive::Mode::store);
    record.Serialize(archive);
    archive.Close();
    return stream.GetBytes();
}

/// What a record writes within the frame of its archive: all its fields.
template <class RECORD>
ArchiveBytes Payload(const RECORD& record)
{
    CMemoryStream stream(Stored(record));
    CArchive archive(stream, CArchive::Mode::load);
    ArchiveBytes payload(archive.GetRemaining());
    archive.Read(payload.data(), payload.size());
    return payload;
}

/// Loads a record and returns how many bytes of the archive it left.
template <class RECORD>
std::size_t Load(const ArchiveBytes& bytes, RECORD& record)
{
    CMemoryStream stream(bytes);
    CArchive archive(stream, CArchive::Mode::load);
    record.Serialize(archive);
    return archive.GetRemaining();
}
