#include "frame/ventil_kv.h"

#include "host_defaults/prefs/record_transfer.h"

#include <cstdint>

using namespace host_defaults;

namespace {

constexpr std::uint32_t kVentilKvVersion = 1;

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
    TransferVersion(archive, kVentilKvVersion);
    TransferAll(archive, Gruppe, Hauptgruppe, Bezeichnung, Hersteller, VentilNr, Einstellbar, DN,
                VentilArt, VentilTyp, Kvs, Wert5, Wert6, DruckMax, Zusatz, AnzahlKv);
    if (AnzahlKv < 0 || AnzahlKv > kMaxKv) {
        throw CArchiveException(CArchiveException::Cause::damaged);
    }
    for (Table* table : {&Xp, &KvBypass, &KvHK, &AnteilHK, &Kv, &KvsTab, &Einstellung}) {
        Transfer(archive, *table);
    }
    TransferAll(archive, Reserve1, Reserve2);
}
