#include "frame/handover.h"
#include "frame/ventil_kv.h"
#include "fuzz/entries.h"
#include "platform/exception.h"

#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes Framed(const Bytes& payload)
{
    CMemoryStream stream;
    CArchive archive(stream, CArchive::Mode::store);
    archive.Write(payload.data(), payload.size());
    archive.Close();
    return stream.GetBytes();
}

template <class Record>
Bytes Stored(Record& record)
{
    CMemoryStream stream;
    CArchive archive(stream, CArchive::Mode::store);
    record.Serialize(archive);
    archive.Close();
    return stream.GetBytes();
}

/// A record that loads is one that can be stored, and stores the same once it has been.
template <class Record>
void LoadAndStore(const Bytes& bytes)
{
    Record record;
    CMemoryStream stream(bytes);
    CArchive archive(stream, CArchive::Mode::load);
    record.Serialize(archive);
    const Bytes stored = Stored(record);

    Record again;
    CMemoryStream storedStream(stored);
    CArchive storedArchive(storedStream, CArchive::Mode::load);
    again.Serialize(storedArchive);
    Require(storedArchive.GetRemaining() == 0, "a stored record is read to its end");
    Require(Stored(again) == stored, "a record survives the archive");
}

void LoadObject(const Bytes& bytes)
{
    CMemoryStream stream(bytes);
    CArchive archive(stream, CArchive::Mode::load);
    const auto object = archive.ReadObject(HK_VDI3805_TYP::GetThisClass());
    Require(!object || object->IsKindOf(HK_VDI3805_TYP::GetThisClass()), "class of the object");
}

} // namespace

void RunArchive(std::span<const std::uint8_t> bytes)
{
    if (bytes.empty()) {
        return;
    }
    const std::uint8_t choice = bytes[0];
    const Bytes rest(bytes.begin() + 1, bytes.end());
    const Bytes archive = choice % 2 == 0 ? Framed(rest) : rest;
    try {
        switch (choice / 2 % 3) {
        case 0:
            LoadAndStore<HK_DATEN_VDI3805_UEBERGABE>(archive);
            break;
        case 1:
            LoadAndStore<VDI3805_VENTIL_KV>(archive);
            break;
        default:
            LoadObject(archive);
        }
    } catch (const CArchiveException&) {
        // Damage that was found.
    }
}
