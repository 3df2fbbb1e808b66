#pragma once

#include "uikit/grid_cell.h"

#include <functional>
#include <utility>
#include <vector>

/// The cells of a grid: one row of headings, addressed as row -1, and any number of rows from 0.
class CGridRows
{
public:
    /// Cells that rows have beyond the new count are lost.
    void SetColumnCount(int count);
    int GetColumnCount() const { return static_cast<int>(m_heading.size()); }
    int GetRowCount() const { return m_count; }

    /// Adds a row of empty cells at the end.
    void Append();
    /// False if there is no such row.
    bool Delete(int row);

    /// Null outside the grid. The pointer holds until rows or columns come or go.
    const CUGCell* Find(int column, int row) const
    {
        if (column < 0 || column >= GetColumnCount() || row < -1 || row >= m_count) {
            return nullptr;
        }
        return (row == -1 ? m_heading.data() : &m_cells[At(row)]) + column;
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
    std::size_t At(int row) const
    {
        return static_cast<std::size_t>(m_first + row) * m_heading.size();
    }
    std::vector<CUGCell>::iterator Row(int row)
    {
        return m_cells.begin() + static_cast<std::ptrdiff_t>(At(row));
    }
    void MakeRoom();

    std::vector<CUGCell> m_heading;
    /// The cells of all rows, row after row. Those of deleted rows stay before and behind them for
    /// rows that come next: a rebuild of thousands of rows would spend half of its time on memory.
    std::vector<CUGCell> m_cells;
    /// Deleted rows before the first one: rebuilds delete the first row again and again.
    int m_first = 0;
    int m_count = 0;
};
