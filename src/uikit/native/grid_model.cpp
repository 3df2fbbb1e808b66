#include "uikit/native/grid_model.h"

#include "uikit/native/access.h"

#include <utility>

void CGridModel::Suspend(bool suspend)
{
    const bool resumed = m_suspended && !suspend;
    m_suspended = suspend;
    if (!resumed) {
        return;
    }
    if (std::exchange(m_headingsChanged, false)) {
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    }
    if (m_shownRows == m_rows.GetRowCount()) {
        // Views keep what they know of the rows' places, and their scroll bars as they are.
        TellAllChanged();
        return;
    }
    beginResetModel();
    m_shownRows = m_rows.GetRowCount();
    endResetModel();
}

void CGridModel::SetColumnCount(int count)
{
    beginResetModel();
    m_rows.SetColumnCount(count);
    endResetModel();
}

void CGridModel::AppendRow()
{
    if (m_suspended) {
        m_rows.Append();
        return;
    }
    beginInsertRows({}, m_shownRows, m_shownRows);
    m_rows.Append();
    ++m_shownRows;
    endInsertRows();
}

bool CGridModel::DeleteRow(int row)
{
    if (m_suspended) {
        return m_rows.Delete(row);
    }
    if (row < 0 || row >= m_shownRows) {
        return false;
    }
    beginRemoveRows({}, row, row);
    m_rows.Delete(row);
    --m_shownRows;
    endRemoveRows();
    return true;
}

bool CGridModel::SetCell(int column, int row, const CUGCell& cell)
{
    CUGCell* place = m_rows.Find(column, row);
    if (place == nullptr) {
        return false;
    }
    *place = cell;
    if (m_suspended) {
        m_headingsChanged = m_headingsChanged || row == -1;
        return true;
    }
    if (row == -1) {
        emit headerDataChanged(Qt::Horizontal, column, column);
    } else {
        emit dataChanged(index(row, column), index(row, column));
    }
    return true;
}

void CGridModel::Sort(int column, const CGridRows::Order& order)
{
    m_rows.Sort(column, order);
    if (!m_suspended) {
        TellAllChanged();
    }
}

void CGridModel::TellAllChanged()
{
    if (m_shownRows > 0 && columnCount() > 0) {
        emit dataChanged(index(0, 0), index(m_shownRows - 1, columnCount() - 1));
    }
}

int CGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_shownRows;
}

int CGridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows.GetColumnCount();
}

QVariant CGridModel::Text(int column, int row) const
{
    const CUGCell* cell = m_rows.Find(column, row);
    return cell != nullptr ? QVariant(ToNative(cell->GetText())) : QVariant();
}

QVariant CGridModel::data(const QModelIndex& index, int role) const
{
    return role == Qt::DisplayRole ? Text(index.column(), index.row()) : QVariant();
}

QVariant CGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::DisplayRole && orientation == Qt::Horizontal) {
        return Text(section, -1);
    }
    return QAbstractTableModel::headerData(section, orientation, role);
}
