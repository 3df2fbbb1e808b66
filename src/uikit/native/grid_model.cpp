#include "uikit/native/grid_model.h"

#include "uikit/native/access.h"

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

void CGridModel::Suspend(bool suspend)
{
    const bool resumed = m_suspended && !suspend;
    m_suspended = suspend;
    if (resumed) {
        TellViews();
    }
}

void CGridModel::TellViews()
{
    if (m_suspended) {
        return;
    }
    if (m_shownRows != m_count) {
        beginResetModel();
        m_shownRows = m_count;
        endResetModel();
    } else if (m_shownRows > 0) {
        // Views keep what they know of the rows' places, and their scroll bars as they are.
        emit dataChanged(index(0, 0), index(m_shownRows - 1, GetColumnCount() - 1));
    }
}

void CGridModel::SetColumnCount(int count)
{
    beginResetModel();
    m_heading.resize(static_cast<std::size_t>(std::max(count, 0)));
    m_cells.clear();
    m_first = m_count = m_shownRows = 0;
    endResetModel();
}

void CGridModel::AppendRow(std::span<const CUGCell> cells)
{
    if (m_cells.size() < At(m_count + 1)) {
        MakeRoom();
    }
    ++m_count;
    const auto given = cells.first(std::min(cells.size(), m_heading.size()));
    const auto rest = std::copy(given.begin(), given.end(), Row(m_count - 1));
    std::for_each(rest, Row(m_count), [](CUGCell& cell) { cell.Clear(); });
    TellViews();
}

/// For one more row at the end.
void CGridModel::MakeRoom()
{
    if (m_first > m_count) {
        std::rotate(m_cells.begin(), Row(0), m_cells.end());
        m_first = 0;
    } else {
        m_cells.resize(At(m_count + 1));
    }
}

bool CGridModel::DeleteRow(int row)
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
        m_sorted = false;
    }
    TellViews();
    return true;
}

bool CGridModel::SetCell(int column, int row, const CUGCell& cell)
{
    auto* place = const_cast<CUGCell*>(Find(column, row));
    if (place == nullptr) {
        return false;
    }
    *place = cell;
    if (row == -1) {
        emit headerDataChanged(Qt::Horizontal, column, column);
    } else {
        TellViews();
    }
    return true;
}

void CGridModel::Sort(int column, const Order& order)
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
    m_sorted = m_count > 0;
    TellViews();
}

int CGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_shownRows;
}

int CGridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : GetColumnCount();
}

QVariant CGridModel::Value(int column, int row, int role) const
{
    const CUGCell* cell = Find(column, row);
    if (cell != nullptr && role == Qt::DisplayRole) {
        return ToNative(cell->GetText());
    }
    if (cell != nullptr && role == Qt::ToolTipRole && m_toolTip) {
        return ToNative(m_toolTip(column, row));
    }
    return {};
}

QVariant CGridModel::data(const QModelIndex& index, int role) const
{
    return Value(index.column(), index.row(), role);
}

QVariant CGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return orientation == Qt::Horizontal ? Value(section, -1, role) : QVariant();
}
