#pragma once

#include "uikit/grid_rows.h"

#include <QAbstractTableModel>

/// The rows of a grid as the toolkit's views read them.
class CGridModel : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;

    const CGridRows& Rows() const { return m_rows; }

    /// While suspended, views go on with the number of rows that they know.
    void Suspend(bool suspend);
    bool IsSuspended() const { return m_suspended; }

    void SetColumnCount(int count);
    void AppendRow();
    bool DeleteRow(int row);
    bool SetCell(int column, int row, const CUGCell& cell);
    void Sort(int column, const CGridRows::Order& order);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant Text(int column, int row) const;
    void TellAllChanged();

    CGridRows m_rows;
    int m_shownRows = 0;
    bool m_suspended = false;
    bool m_headingsChanged = false;
};
