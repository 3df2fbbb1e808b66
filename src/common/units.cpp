#include "common/units.h"

#include "common/numbers.h"
#include "host/host_prefs.h"
#include "platform/format.h"

namespace {

constexpr int kMeter = 1;
constexpr int kCentimeter = 100;
constexpr int kMillimeter = 1000;

constexpr int kNotLoaded = -1;

struct Units
{
    /// The user's unit.
    int DimensionCode = kNotLoaded;
    /// Drawing units per metre.
    double MeterFaktor = 0.0;
    /// Millimetres per drawing unit.
    double MmFaktor = 0.0;
    /// User units per drawing unit.
    double UsrFaktor = 0.0;
};

Units g_units;

/// A host may keep a unit that the module does not show, decimetres say. Such a code counts as
/// metres throughout.
int KnownCode(int code)
{
    return code == kCentimeter || code == kMillimeter ? code : kMeter;
}

double MillimetersPerUnit(int code)
{
    return 1000.0 / code;
}

Units LoadUnits()
{
    int drawing = kMeter;
    lmGetDimension2(drawing);
    drawing = KnownCode(drawing);

    Units units;
    units.DimensionCode = KnownCode(lmGetDimensionUsr());
    units.MeterFaktor = drawing;
    units.MmFaktor = MillimetersPerUnit(drawing);
    units.UsrFaktor = units.MmFaktor / MillimetersPerUnit(units.DimensionCode);
    return units;
}

const Units& CurrentUnits()
{
    if (g_units.DimensionCode < 0) {
        g_units = LoadUnits();
    }
    return g_units;
}

int ShownDecimals(int code)
{
    switch (code) {
    case kCentimeter:
        return 2;
    case kMillimeter:
        return 1;
    default:
        return 3;
    }
}

const wchar_t* UnitName(int code)
{
    switch (code) {
    case kCentimeter:
        return L"cm";
    case kMillimeter:
        return L"mm";
    default:
        return L"m";
    }
}

} // namespace

void ResetUnits()
{
    g_units.DimensionCode = kNotLoaded;
}

CString GetUnitText(bool brackets)
{
    const CString name = UnitName(CurrentUnits().DimensionCode);
    return brackets ? L"[" + name + L"]" : name;
}

CString MeterToText(double meters)
{
    const Units& units = CurrentUnits();
    return FormatFixed(meters * units.MeterFaktor * units.UsrFaktor,
                       ShownDecimals(units.DimensionCode));
}

double TextToMeter(const CString& text)
{
    const Units& units = CurrentUnits();
    return ParseNumber(text) / units.UsrFaktor / units.MeterFaktor;
}
