#include "frame/vdi6030_start.h"

#include "host_defaults/prefs/record_transfer.h"

#include <cstdint>

using namespace host_defaults;

namespace {

constexpr std::uint32_t kVdi6030StartVersion = 1;

void TransferFields(CArchive& archive, VDI6030START& record)
{
    TransferAll(archive, record.Hersteller, record.Art, record.Produkt);
    TransferAll(archive, record.AbstandWand, record.AbstandBoden);
    TransferAll(archive, record.SystemName, record.SystemVorlauf, record.SystemRuecklauf);
    record.Anschluss.Serialize(archive);
    record.VentilVorlauf.Serialize(archive);
    record.VentilRuecklauf.Serialize(archive);
}

} // namespace

VDI6030START::VDI6030START()
    : AbstandWand(0.0), AbstandBoden(0.0), SystemVorlauf(0), SystemRuecklauf(0)
{
}
VDI6030START::VDI6030START(const VDI6030START&) = default;
VDI6030START& VDI6030START::operator=(const VDI6030START&) = default;
VDI6030START::~VDI6030START() = default;

void VDI6030START::Serialize(CArchive& archive)
{
    TransferVersion(archive, kVdi6030StartVersion);
    if (archive.IsStoring()) {
        TransferFields(archive, *this);
        return;
    }
    VDI6030START loaded;
    TransferFields(archive, loaded);
    *this = loaded;
}
