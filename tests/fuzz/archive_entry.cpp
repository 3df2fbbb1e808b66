#include "frame/handover.h"
#include "frame/ventil_kv.h"
#include "platform/exception.h"
#include "tests/fuzz/entries.h"
#include "tests/src/platform/archived.h"

namespace {

/// A record that loads is one that can be stored, and stores the same once it
/// has been.
template <class Record>
void LoadAndStore(const ArchiveBytes& bytes)
{
    Record record;
    Load(bytes, record);
    const ArchiveBytes stored = Stored(record);

    Record again;
    Require(Load(stored, again) == 0, "a stored record is read to its end");
    Require(Stored(again) == stored, "a record survives the archive");
}

void LoadObject(const ArchiveBytes& bytes)
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
    const ArchiveBytes rest(bytes.begin() + 1, bytes.end());
    const ArchiveBytes archive = choice % 2 == 0 ? Framed(rest) : rest;
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
