#include "frame/handover.h"

#include "host_defaults/prefs/record_transfer.h"

using namespace host_defaults;

namespace {

void TransferCharacter(CArchive& archive, wchar_t& character)
{
    auto code = static_cast<char32_t>(character);
    Transfer(archive, code);
    character = static_cast<wchar_t>(code);
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
