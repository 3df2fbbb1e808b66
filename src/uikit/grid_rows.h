#pragma once

#include "uikit/grid_cell.h"

#include <deque>
#include <functional>
#include <utility>
#include <vector>

/// The cells of a grid: one row of headings, addressed as row -1, and any number of rows from 0.
class CGridRows
{
    using Row = std::vector<CUGCell>;

public:
    /// Cells that rows have beyond the new count are lost.
    void SetColumnCount(int count);
    int GetColumnCount() const { return static_cast<int>(m_heading.size()); }
    int GetRowCount() const { return static_cast<int>(m_rows.size()); }

    /// Adds a row of empty cells at the end.
    void Append();
    /// False if there is no such row.
    bool Delete(int row);

    /// Null outside the grid. The pointer holds until columns change or that row goes.
    const CUGCell* Find(int column, int row) const
    {
        if (column < 0 || column >= GetColumnCount() || row < -1 || row >= GetRowCount()) {
            return nullptr;
        }
        const Row& cells = row == -1 ? m_heading : m_rows[static_cast<std::size_t>(row)];
        return &cells[static_cast<std::size_t>(column)];
    }
    CUGCell* Find(int column, int row)
    {
        return const_cast<CUGCell*>(std::as_const(*this).Find(column, row));
    }

    /// Above 0 if the first cell belongs behind the second.
    using Order = std::function<int(const CUGCell&, const CUGCell&)>;

    /// Sorts the rows by a column; rows that compare equal keep their order. An exception of
    /// `order` leaves the rows as they were. Does nothing if there is no such column.
    void Sort(int column, const Order& order);

private:
    Row m_heading;
    /// Rebuilds delete the first row again and again, which a deque does in no time.
    std::deque<Row> m_rows;
    /// Rows that were deleted, for those that come next: a rebuild of thousands of rows would spend
    /// half of its time on their memory.
    std::vector<Row> m_spare;
};
