#include "connection/presets.h"

#include "platform/exception.h"

#include <array>
#include <cstddef>

namespace {

// The first sixteen stand in the order of their buttons around the sketch. The two points behind
// them have no button; their rows are kept, since rows are known by number.
constexpr std::array<const wchar_t*, kAnzahlPresets> AnschlussPresets = {
    L"-0.5; 0.0;  0;0; 0.5; -0.03; 180;0",
    L"-0.5; 0.0;  0;0;-0.5;  0.03; 180;0",
    L"-0.5; 0.03; 0;0; 0.5;  0.00;   0;90",
    L"-0.5; 0.03; 0;0;-0.5;  0.00;   0;270",
    L"-0.5; 0.06; 0;0; 0.5;  0.00;   0;90",
    L"-0.5; 0.06; 0;0;-0.5;  0.00;   0;270",
    L" 0.0;-0.03; 0;0; 0.5;  0.00;   0;90",
    L" 0.0;-0.03; 0;0;-0.5;  0.00;   0;270",
    L" 0.0; 0.03; 0;0; 0.5;  0.00;   0;90",
    L" 0.0; 0.03; 0;0;-0.5;  0.00;   0;270",
    L" 0.5;-0.06; 0;0; 0.5;  0.00;   0;90",
    L" 0.5;-0.06; 0;0;-0.5;  0.00;   0;270",
    L" 0.5;-0.03; 0;0; 0.5;  0.00;   0;90",
    L" 0.5;-0.03; 0;0;-0.5;  0.00;   0;270",
    L" 0.5; 0.0;  0;0; 0.5; -0.03;   0;0",
    L" 0.5; 0.0;  0;0;-0.5;  0.03;   0;0",
    L"-0.5; 0.0;   0;0; 0.5;  0.00; 180;0",
    L"-0.5; 0.01;  0;0;-0.5;  0.00; 180;0",
    L""};

} // namespace

CString AnschlussPreset(int row)
{
    if (row < 0 || row >= kAnzahlPresets) {
        throw CInvalidArgException();
    }
    return AnschlussPresets[static_cast<std::size_t>(row)];
}
