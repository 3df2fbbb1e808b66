#include "frame/handover.h"

#include "host_defaults/prefs/record_transfer.h"

#include <cstdint>

using namespace host_defaults;

namespace {

constexpr std::uint32_t kUebergabeVersion = 1;

void TransferFields(CArchive& archive, HK_DATEN_VDI3805_UEBERGABE& record)
{
    Transfer(archive, record.Hersteller);
    Transfer(archive, record.Art);
    Transfer(archive, record.Produkt);
    Transfer(archive, record.TypName);
    record.Typ.Serialize(archive);
    Transfer(archive, record.LeistungMin);
    Transfer(archive, record.LeistungMax);
    Transfer(archive, record.Leistung);
    Transfer(archive, record.Toleranz);
    Transfer(archive, record.LaengeMin);
    Transfer(archive, record.LaengeMax);
    Transfer(archive, record.HoeheMin);
    Transfer(archive, record.HoeheMax);
    Transfer(archive, record.TiefeMin);
    Transfer(archive, record.TiefeMax);
    Transfer(archive, record.Vorlauf);
    Transfer(archive, record.Ruecklauf);
    Transfer(archive, record.Raumtemperatur);
    Transfer(archive, record.Umrechnungsfaktor);
    Transfer(archive, record.Raumname);
    Transfer(archive, record.RaumBedarf);
    Transfer(archive, record.RaumGedeckt);
    Transfer(archive, record.NeuLesen);
    record.Daten.Serialize(archive);
}

} // namespace

HK_DATEN_VDI3805_UEBERGABE::HK_DATEN_VDI3805_UEBERGABE()
    : LeistungMin(-1.0), LeistungMax(-1.0), Leistung(0.0), Toleranz(0.1), LaengeMin(0.0),
      LaengeMax(0.0), HoeheMin(0.0), HoeheMax(0.0), TiefeMin(0.0), TiefeMax(0.0), Vorlauf(0.0),
      Ruecklauf(0.0), Raumtemperatur(0.0), Umrechnungsfaktor(1.0), RaumBedarf(0.0),
      RaumGedeckt(0.0), NeuLesen(0)
{
}

HK_DATEN_VDI3805_UEBERGABE::HK_DATEN_VDI3805_UEBERGABE(const HK_DATEN_VDI3805_UEBERGABE&) = default;
HK_DATEN_VDI3805_UEBERGABE&
HK_DATEN_VDI3805_UEBERGABE::operator=(const HK_DATEN_VDI3805_UEBERGABE&) = default;
HK_DATEN_VDI3805_UEBERGABE::~HK_DATEN_VDI3805_UEBERGABE() = default;

void HK_DATEN_VDI3805_UEBERGABE::Serialize(CArchive& archive)
{
    TransferVersion(archive, kUebergabeVersion);
    if (archive.IsStoring()) {
        TransferFields(archive, *this);
        return;
    }
    // A loading that fails half-way leaves the host's record as it was.
    HK_DATEN_VDI3805_UEBERGABE loaded;
    TransferFields(archive, loaded);
    *this = loaded;
}
