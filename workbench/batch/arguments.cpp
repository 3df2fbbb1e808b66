#include "workbench/batch/arguments.h"

#include "platform/number_scan.h"

#include <algorithm>
#include <cstddef>

namespace workbench {

namespace {

bool IsDigits(const CString& text)
{
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; });
}

/// Unlike _wtof(), which takes whatever number stands at the start, this takes a whole text or none
/// of it.
std::optional<double> ParseDegrees(CString text)
{
    ReplaceAll(text, L',', L'.');
    const std::size_t point = text.find(L'.');
    const bool decimal = point != CString::npos;
    if (!IsDigits(text.substr(0, point)) || (decimal && !IsDigits(text.substr(point + 1)))) {
        return std::nullopt;
    }
    return _wtof(text);
}

} // namespace

std::optional<CHeatingSystem> ParseHeatingSystem(const CString& text)
{
    const std::size_t slash = text.find(L'/');
    if (slash == CString::npos) {
        return std::nullopt;
    }
    const std::optional<double> vorlauf = ParseDegrees(text.substr(0, slash));
    const std::optional<double> ruecklauf = ParseDegrees(text.substr(slash + 1));
    if (!vorlauf || !ruecklauf) {
        return std::nullopt;
    }
    const CHeatingSystem system{*vorlauf, *ruecklauf};
    return system.IsPlausible() ? std::optional(system) : std::nullopt;
}

} // namespace workbench
