#include "uikit/grid_rows.h"

#include <algorithm>
#include <iterator>

namespace {

/// Lists that arrive nearly sorted are long; a single step for every row would make them slow.
constexpr std::size_t kJump = 100;

/// Place in front of the first entry that `isGreater` reports. A jump that lands behind that place
/// is taken back step by step.
template <class IsGreater>
std::size_t InsertionPlace(const std::vector<int>& sorted, IsGreater isGreater)
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
    const std::size_t kept = std::min(columns, m_heading.size());
    std::vector<CUGCell> cells(static_cast<std::size_t>(m_count) * columns);
    for (int row = 0; row < m_count; ++row) {
        std::move(Row(row), Row(row) + static_cast<std::ptrdiff_t>(kept),
                  cells.begin() + row * static_cast<std::ptrdiff_t>(columns));
    }
    m_cells = std::move(cells);
    m_first = 0;
    m_heading.resize(columns);
}

void CGridRows::Append()
{
    if (m_cells.size() < At(m_count + 1)) {
        MakeRoom();
    }
    ++m_count;
    std::for_each(Row(m_count - 1), Row(m_count), [](CUGCell& cell) { cell.Clear(); });
}

/// For one more row at the end.
void CGridRows::MakeRoom()
{
    if (m_first > m_count) {
        std::rotate(m_cells.begin(), Row(0), m_cells.end());
        m_first = 0;
    } else {
        m_cells.resize(At(m_count + 1));
    }
}

bool CGridRows::Delete(int row)
{
    if (row < 0 || row >= m_count) {
        return false;
    }
    if (row == 0) {
        ++m_first;
    } else {
        std::rotate(Row(row), Row(row + 1), Row(m_count));
    }
    --m_count;
    if (m_count == 0) {
        m_first = 0;
    }
    return true;
}

void CGridRows::Sort(int column, const Order& order)
{
    if (column < 0 || column >= GetColumnCount()) {
        return;
    }
    std::vector<int> sorted;
    sorted.reserve(static_cast<std::size_t>(m_count));
    for (int row = 0; row < m_count; ++row) {
        const auto place = InsertionPlace(
            sorted, [&](int other) { return order(*Find(column, other), *Find(column, row)) > 0; });
        sorted.insert(sorted.begin() + static_cast<std::ptrdiff_t>(place), row);
    }
    std::vector<CUGCell> cells;
    cells.reserve(At(m_count) - At(0));
    for (const int row : sorted) {
        std::move(Row(row), Row(row + 1), std::back_inserter(cells));
    }
    m_cells = std::move(cells);
    m_first = 0;
}
