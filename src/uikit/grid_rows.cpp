#include "uikit/grid_rows.h"

#include <algorithm>
#include <utility>

namespace {

/// Lists that arrive nearly sorted are long; a single step for every row would make them slow.
constexpr std::size_t kJump = 100;

/// Place in front of the first entry that `isGreater` reports. A jump that lands behind that place
/// is taken back step by step.
template <class IsGreater>
std::size_t InsertionPlace(const std::vector<std::size_t>& sorted, IsGreater isGreater)
{
    std::size_t place = 0;
    while (place < sorted.size() && !isGreater(sorted[place])) {
        place = std::min(place + kJump, sorted.size());
    }
    while (place > 0 && isGreater(sorted[place - 1])) {
        --place;
    }
    return place;
}

} // namespace

void CGridRows::SetColumnCount(int count)
{
    const auto columns = static_cast<std::size_t>(std::max(count, 0));
    m_heading.resize(columns);
    m_spare.clear();
    for (Row& row : m_rows) {
        row.resize(columns);
    }
}

void CGridRows::Append()
{
    if (m_spare.empty()) {
        m_rows.emplace_back(m_heading.size());
        return;
    }
    m_rows.push_back(std::move(m_spare.back()));
    m_spare.pop_back();
    for (CUGCell& cell : m_rows.back()) {
        cell.Clear();
    }
}

bool CGridRows::Delete(int row)
{
    if (row < 0 || row >= GetRowCount()) {
        return false;
    }
    m_spare.push_back(std::move(m_rows[static_cast<std::size_t>(row)]));
    m_rows.erase(m_rows.begin() + row);
    return true;
}

void CGridRows::Sort(int column, const Order& order)
{
    if (column < 0 || column >= GetColumnCount()) {
        return;
    }
    const auto at = static_cast<std::size_t>(column);
    std::vector<std::size_t> sorted;
    sorted.reserve(m_rows.size());
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        const std::size_t place = InsertionPlace(sorted, [&](std::size_t other) {
            return order(m_rows[other][at], m_rows[row][at]) > 0;
        });
        sorted.insert(sorted.begin() + static_cast<std::ptrdiff_t>(place), row);
    }
    std::deque<Row> rows;
    for (const std::size_t row : sorted) {
        rows.push_back(std::move(m_rows[row]));
    }
    m_rows = std::move(rows);
}
