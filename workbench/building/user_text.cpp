#include "workbench/building/user_text.h"

#include "platform/format.h"

namespace workbench {

namespace {

constexpr wchar_t kMinus = L'\u2212';

/// A number of the "C" locale as people here write it. What was rounded to 0 has no sign.
CString ForPeople(CString number)
{
    ReplaceAll(number, L'.', L',');
    if (number.starts_with(L'-')) {
        const bool isZero = number.find_first_not_of(L"-0,") == CString::npos;
        number.replace(0, 1, isZero ? CString() : CString(1, kMinus));
    }
    return number;
}

} // namespace

CString FormatDecimals(double value, int decimals)
{
    return ForPeople(FormatFixed(value, decimals));
}

CString FormatNumber(double value)
{
    return ForPeople(FormatExact(value));
}

CString FormatWatts(double watts)
{
    return FormatDecimals(watts, 0) + L" W";
}

CString FormatPercent(double percent)
{
    return FormatDecimals(percent, 1) + L" %";
}

CString FormatSystem(const CHeatingSystem& system)
{
    return FormatNumber(system.vorlauf) + L"/" + FormatNumber(system.ruecklauf);
}

CString Joined(const CString& a, const CString& b, const CString& separator)
{
    return a + (a.empty() || b.empty() ? CString() : separator) + b;
}

} // namespace workbench
