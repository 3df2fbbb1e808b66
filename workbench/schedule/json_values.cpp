#include "workbench/schedule/json_values.h"

#include "workbench/building/qt_text.h"

namespace workbench {

QJsonValue JsonOf(const CCell& cell)
{
    if (const auto* const number = std::get_if<double>(&cell)) {
        return *number;
    }
    const auto* const text = std::get_if<CString>(&cell);
    return text ? QJsonValue(ToQt(*text)) : QJsonValue();
}

} // namespace workbench
