#include "frame/conn_values.h"

#include "host_defaults/prefs/record_transfer.h"

#include <cstdint>

using namespace host_defaults;

namespace {

constexpr std::uint32_t kConnValuesVersion = 1;

void TransferFields(CArchive& archive, ConnValues& record)
{
    TransferAll(archive, record.Name);
    TransferAll(archive, record.SeitAbstandAN, record.PosAN, record.OffsetAN, record.WinkelAN);
    TransferAll(archive, record.SeitAbstandRI, record.PosRI, record.OffsetRI, record.WinkelRI);
    TransferAll(archive, record.KreuzAbstand, record.KreuzTyp);
    TransferAll(archive, record.AnschlussAN, record.AnschlussRI);
    TransferAll(archive, record.WandAbstand, record.GrafikAN, record.GrafikRI);
}

} // namespace

ConnValues::ConnValues()
    : SeitAbstandAN(0.0), PosAN{}, OffsetAN{}, WinkelAN{},
      SeitAbstandRI(0.0), PosRI{}, OffsetRI{}, WinkelRI{}, KreuzAbstand(0.0), KreuzTyp(0),
      WandAbstand(0.0)
{
}

ConnValues::ConnValues(const ConnValues&) = default;
ConnValues& ConnValues::operator=(const ConnValues&) = default;
ConnValues::~ConnValues() = default;

const CRuntimeClass& ConnValues::GetThisClass()
{
    static const CRuntimeClass description{
        "ConnValues", 1, &CObject::GetThisClass(),
        []() -> std::unique_ptr<CObject> { return std::make_unique<ConnValues>(); }};
    return description;
}

const CRuntimeClass& ConnValues::GetRuntimeClass() const
{
    return GetThisClass();
}

void ConnValues::Serialize(CArchive& archive)
{
    TransferVersion(archive, kConnValuesVersion);
    if (archive.IsStoring()) {
        TransferFields(archive, *this);
        return;
    }
    // A loading that fails half-way leaves the host's record as it was.
    ConnValues loaded;
    TransferFields(archive, loaded);
    *this = loaded;
}
