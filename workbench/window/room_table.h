#pragma once

#include "workbench/plan/coverage.h"
#include "workbench/plan/plan_edit.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

#include <set>

namespace workbench {

/// A row for every room of a building.
class CRoomRows : public QAbstractTableModel
{
public:
    enum Column
    {
        floor,
        room,
        demand,
        covered,
        remainder,
        state,
        columns,
    };

    using QAbstractTableModel::QAbstractTableModel;

    void Show(const CBuilding& building);

    const CRoomRef& RefOf(int row) const { return m_rooms[static_cast<std::size_t>(row)].ref; }
    const QString& NameOf(int row) const { return m_rooms[static_cast<std::size_t>(row)].strRoom; }
    Coverage CoverageOf(int row) const { return m_rooms[static_cast<std::size_t>(row)].coverage; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct CRow
    {
        CRoomRef ref;
        QString strFloor;
        QString strRoom;
        double bedarf = 0.0;
        double gedeckt = 0.0;
        double rest = 0.0;
        Coverage coverage = Coverage::notNeeded;
        QString strState;
    };

    static QVariant SortValue(const CRow& row, int column);
    static QString Text(const CRow& row, int column);

    std::vector<CRow> m_rooms;
};

/// The rows in the user's order, all of them or the open ones. A room that was open when it was
/// shown stays listed until the filter is set anew, so that nobody loses sight of what he works on.
class CRoomTable : public QSortFilterProxyModel
{
public:
    explicit CRoomTable(QObject* parent);

    CRoomRows& Rows() { return m_rows; }
    const CRoomRows& Rows() const { return m_rows; }
    void Show(const CBuilding& building);
    void ShowOpenOnly(bool openOnly);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    CRoomRows m_rows;
    bool m_bOpenOnly = false;
    /// Names of the rooms that were listed since the filter was set.
    std::set<QString> m_listed;
};

} // namespace workbench
