#pragma once

#include "uikit/grid_cell.h"

#include <QAbstractTableModel>

#include <functional>
#include <span>
#include <utility>
#include <vector>

/// The cells of a grid, from which the toolkit's view reads them: one row of headings, addressed as
/// row -1, and any number of rows from 0.
class CGridModel : public QAbstractTableModel
{
public:
    /// While suspended, views are told of no change and go on with the number of rows that they
    /// know. The end of it tells them all at once.
    void Suspend(bool suspend);
    bool IsSuspended() const { return m_suspended; }

    /// Takes all rows away.
    void SetColumnCount(int count);
    int GetColumnCount() const { return static_cast<int>(m_heading.size()); }
    int GetRowCount() const { return m_count; }

    /// Adds a row at the end with copies of these cells from the left; further ones are empty, and
    /// what is too much is left out.
    void AppendRow(std::span<const CUGCell> cells = {});
    /// False if there is no such row.
    bool DeleteRow(int row);

    /// Null outside the grid. The pointer holds until rows or columns come or go; the other cells
    /// of the row stand beside it.
    const CUGCell* Find(int column, int row) const
    {
        if (column < 0 || column >= GetColumnCount() || row < -1 || row >= m_count) {
            return nullptr;
        }
        return (row == -1 ? m_heading.data() : &m_cells[At(row)]) + column;
    }
    /// False if there is no such cell.
    bool SetCell(int column, int row, const CUGCell& cell);

    /// Above 0 if the first cell belongs behind the second.
    using Order = std::function<int(const CUGCell&, const CUGCell&)>;

    /// Sorts the rows by a column; rows that compare equal keep their order. An exception of
    /// `order` leaves the rows as they were. Does nothing if there is no such column.
    void Sort(int column, const Order& order);
    /// Whether rows that are still there were sorted since this was asked last.
    bool TakeSorted() { return std::exchange(m_sorted, false); }

    /// Tells the tooltip of a cell, empty for none.
    using ToolTip = std::function<CString(int column, int row)>;
    void SetToolTip(ToolTip toolTip) { m_toolTip = std::move(toolTip); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

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
    void TellViews();
    QVariant Value(int column, int row, int role) const;

    std::vector<CUGCell> m_heading;
    /// The cells of all rows, row after row. Those of deleted rows stay before and behind them for
    /// rows that come next: a rebuild of thousands of rows would spend half of its time on memory.
    std::vector<CUGCell> m_cells;
    /// Deleted rows before the first one: rebuilds delete the first row again and again.
    int m_first = 0;
    int m_count = 0;
    /// The number of rows that views know.
    int m_shownRows = 0;
    bool m_suspended = false;
    bool m_sorted = false;
    ToolTip m_toolTip;
};
