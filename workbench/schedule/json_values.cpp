#include "workbench/schedule/json_values.h"

namespace workbench {

CJsonValue JsonOf(const CCell& cell)
{
    if (const auto* const number = std::get_if<double>(&cell)) {
        return *number;
    }
    const auto* const text = std::get_if<CString>(&cell);
    return text ? CJsonValue(*text) : CJsonValue();
}

} // namespace workbench
