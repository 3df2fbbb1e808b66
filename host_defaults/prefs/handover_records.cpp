#include "frame/handover.h"

#include "host_defaults/prefs/record_transfer.h"

#include <cstdint>

using namespace host_defaults;

namespace {

constexpr std::uint32_t kUebergabeVersion = 1;

void TransferCharacter(CArchive& archive, wchar_t& character)
{
    auto code = static_cast<char32_t>(character);
    Transfer(archive, code);
    character = static_cast<wchar_t>(code);
}

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

HK_DATEN_VDI3805::HK_DATEN_VDI3805()
    : Hoehe(0.0), Tiefe(0.0), Laenge(0.0), LeistungEN442(0.0), Leistung(0.0), Elemente(0.0),
      Bauart(L' '), Exponent(0.0), Inhalt(0.0)
{
}

HK_DATEN_VDI3805::HK_DATEN_VDI3805(const HK_DATEN_VDI3805&) = default;
HK_DATEN_VDI3805& HK_DATEN_VDI3805::operator=(const HK_DATEN_VDI3805&) = default;
HK_DATEN_VDI3805::~HK_DATEN_VDI3805() = default;

void HK_DATEN_VDI3805::Serialize(CArchive& archive)
{
    Transfer(archive, Hoehe);
    Transfer(archive, Tiefe);
    Transfer(archive, Laenge);
    Transfer(archive, LeistungEN442);
    Transfer(archive, Leistung);
    Transfer(archive, Elemente);
    TransferCharacter(archive, Bauart);
    Transfer(archive, Exponent);
    Transfer(archive, Inhalt);
}

HK_VDI3805_TYP::HK_VDI3805_TYP() : pNext(nullptr), pPrev(nullptr) {}

HK_VDI3805_TYP::HK_VDI3805_TYP(const HK_VDI3805_TYP& other)
    : CObject(other), Name(other.Name), Daten(other.Daten), pNext(nullptr), pPrev(nullptr)
{
}

HK_VDI3805_TYP& HK_VDI3805_TYP::operator=(const HK_VDI3805_TYP& other)
{
    if (this != &other) {
        Name = other.Name;
        Daten = other.Daten;
    }
    return *this;
}

HK_VDI3805_TYP::~HK_VDI3805_TYP() = default;

const CRuntimeClass& HK_VDI3805_TYP::GetThisClass()
{
    static const CRuntimeClass description{
        "HK_VDI3805_TYP", 1, &CObject::GetThisClass(),
        []() -> std::unique_ptr<CObject> { return std::make_unique<HK_VDI3805_TYP>(); }};
    return description;
}

const CRuntimeClass& HK_VDI3805_TYP::GetRuntimeClass() const
{
    return GetThisClass();
}

void HK_VDI3805_TYP::Serialize(CArchive& archive)
{
    Transfer(archive, Name);
    Daten.Serialize(archive);
}

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
