#pragma once

#include "workbench/building/json_value.h"
#include "workbench/schedule/columns.h"

#include <utility>

namespace workbench {

/// A text or a number as JSON; anything else is null.
CJsonValue JsonOf(const CCell& cell);

/// Gives an object what the columns of a part say of a line, under their names. An empty cell has
/// no field.
template <class LINE, class SUM>
void InsertValues(CJsonObject& object, const std::vector<CColumn<LINE, SUM>>& columns,
                  JsonPart part, const LINE& line)
{
    for (const auto& column : columns) {
        if (column.GetJsonPart() != part) {
            continue;
        }
        const CCell cell = column.ValueOf(line);
        if (!std::holds_alternative<std::monostate>(cell)) {
            object.Insert(column.JsonName(), JsonOf(cell));
        }
    }
}

/// A list of items as objects of what their columns say.
template <class LINE, class SUM>
CJsonList MakeItemsJson(const std::vector<LINE>& items,
                        const std::vector<CColumn<LINE, SUM>>& columns)
{
    CJsonList list;
    for (const LINE& item : items) {
        CJsonObject object;
        InsertValues(object, columns, JsonPart::item, item);
        list.push_back(std::move(object));
    }
    return list;
}

} // namespace workbench
