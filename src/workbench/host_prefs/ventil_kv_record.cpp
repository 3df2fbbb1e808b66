#include "frame/ventil_kv.h"

#include <cstdint>

namespace {

constexpr std::uint32_t kVersion = 1;

void SerializeTable(CArchive& archive, VDI3805_VENTIL_KV::Table& table)
{
    const std::size_t bytes = table.size() * sizeof(float);
    if (archive.IsStoring()) {
        archive.Write(table.data(), bytes);
    } else {
        archive.Read(table.data(), bytes);
    }
}

/// Writes or reads the values one after the other, so that both directions share one list.
template <class... Values>
void SerializeAll(CArchive& archive, Values&... values)
{
    if (archive.IsStoring()) {
        (archive << ... << values);
    } else {
        (archive >> ... >> values);
    }
}

} // namespace

VDI3805_VENTIL_KV::VDI3805_VENTIL_KV()
{
    Init();
}
VDI3805_VENTIL_KV::VDI3805_VENTIL_KV(const VDI3805_VENTIL_KV&) = default;
VDI3805_VENTIL_KV& VDI3805_VENTIL_KV::operator=(const VDI3805_VENTIL_KV&) = default;
VDI3805_VENTIL_KV::~VDI3805_VENTIL_KV() = default;

void VDI3805_VENTIL_KV::Init()
{
    for (CString* text : {&Gruppe, &Hauptgruppe, &Bezeichnung, &Hersteller, &VentilNr, &Zusatz}) {
        text->clear();
    }
    for (int* number : {&Einstellbar, &VentilArt, &VentilTyp, &AnzahlKv, &Reserve2}) {
        *number = 0;
    }
    for (float* number : {&Kvs, &Wert5, &Wert6, &DruckMax, &Reserve1}) {
        *number = 0.0F;
    }
    DN = 0.0;
    for (Table* table : {&Xp, &KvBypass, &KvHK, &AnteilHK, &Kv, &KvsTab, &Einstellung}) {
        table->fill(0.0F);
    }
}

void VDI3805_VENTIL_KV::Serialize(CArchive& archive)
{
    std::uint32_t version = kVersion;
    SerializeAll(archive, version);
    if (version > kVersion) {
        throw CArchiveException(CArchiveException::Cause::badSchema);
    }
    SerializeAll(archive, Gruppe, Hauptgruppe, Bezeichnung, Hersteller, VentilNr, Einstellbar, DN,
                 VentilArt, VentilTyp, Kvs, Wert5, Wert6, DruckMax, Zusatz, AnzahlKv);
    if (AnzahlKv < 0 || AnzahlKv > kMaxKv) {
        throw CArchiveException(CArchiveException::Cause::damaged);
    }
    for (Table* table : {&Xp, &KvBypass, &KvHK, &AnteilHK, &Kv, &KvsTab, &Einstellung}) {
        SerializeTable(archive, *table);
    }
    SerializeAll(archive, Reserve1, Reserve2);
}
