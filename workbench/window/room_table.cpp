#include "workbench/window/room_table.h"

#include "workbench/toolkit/qt_text.h"
#include "workbench/window/coverage_look.h"
#include "workbench/window/plan_texts.h"

#include <QColor>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPalette>
#include <QSize>

namespace workbench {

namespace {

constexpr const char* kHeadings[] = {"Piano", "Locale", "Fabb.", "Coperto", "Resto", "Stato"};

/// Short, since the column is one of six.
QString StateText(Coverage coverage)
{
    switch (coverage) {
    case Coverage::notNeeded:
        return "non serve";
    case Coverage::covered:
        return "coperto";
    case Coverage::lacking:
        return "scarso";
    case Coverage::empty:
        return "manca";
    case Coverage::tooLarge:
    case Coverage::oversized:
        return ToQt(GetCoverageText(coverage));
    }
    return {};
}

/// A long state gives way to the name of the room; the tooltip has the whole.
QSize SizeOfLongState()
{
    const QFontMetrics metrics(QGuiApplication::font());
    return {metrics.horizontalAdvance("troppo grande… "), metrics.height()};
}

} // namespace

void CRoomRows::Show(const CBuilding& building)
{
    beginResetModel();
    m_rooms.clear();
    for (const CRoomRef& ref : AllRooms(building)) {
        const CRoom& shown = RoomOf(building, ref);
        m_rooms.push_back({ref, ToQt(building.floors[ref.nFloor].strName), ToQt(shown.strName),
                           shown.bedarf, CoveredOf(shown), RemainderOf(shown),
                           workbench::CoverageOf(building, shown), StateOf(building, shown)});
    }
    endResetModel();
}

int CRoomRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rooms.size());
}

int CRoomRows::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant CRoomRows::SortValue(const CRow& row, int column)
{
    switch (column) {
    case demand:
        return row.bedarf;
    case covered:
        return row.gedeckt;
    case remainder:
        return row.rest;
    case floor:
        return static_cast<qulonglong>(row.ref.nFloor);
    default:
        return Text(row, column);
    }
}

QString CRoomRows::Text(const CRow& row, int column)
{
    switch (column) {
    case floor:
        return row.strFloor;
    case room:
        return row.strRoom;
    case demand:
        return WattText(row.bedarf);
    case covered:
        return WattText(row.gedeckt);
    case remainder:
        return WattText(row.rest);
    default:
        return StateText(row.coverage);
    }
}

QVariant CRoomRows::data(const QModelIndex& index, int role) const
{
    const CRow& row = m_rooms[static_cast<std::size_t>(index.row())];
    // The column of the names gives way to the others.
    if (role == Qt::ToolTipRole && index.column() == room) {
        return PlainToolTip(row.strRoom);
    }
    switch (role) {
    case Qt::DisplayRole:
        return Text(row, index.column());
    case Qt::UserRole:
        return SortValue(row, index.column());
    case Qt::SizeHintRole:
        return index.column() == state && IsMissized(row.coverage) ? QVariant(SizeOfLongState())
                                                                   : QVariant();
    case Qt::ToolTipRole:
        return index.column() == state ? QVariant(PlainToolTip(row.strState)) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() >= demand && index.column() <= remainder
                   ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                   : QVariant();
    case Qt::ForegroundRole:
        return IsOpen(row.coverage) || IsMissized(row.coverage)
                   ? QVariant(InkOn(QGuiApplication::palette().color(QPalette::Base), row.coverage))
                   : QVariant();
    default:
        return {};
    }
}

QVariant CRoomRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
        return QString(kHeadings[section]);
    }
    return QAbstractTableModel::headerData(section, orientation, role);
}

CRoomTable::CRoomTable(QObject* parent) : QSortFilterProxyModel(parent)
{
    setSourceModel(&m_rows);
    setSortRole(Qt::UserRole);
}

void CRoomTable::Show(const CBuilding& building)
{
    for (int row = 0; row < rowCount(); ++row) {
        m_listed.insert(m_rows.NameOf(mapToSource(index(row, 0)).row()));
    }
    m_rows.Show(building);
}

void CRoomTable::ShowOpenOnly(bool openOnly)
{
    m_bOpenOnly = openOnly;
    m_listed.clear();
    invalidateFilter();
}

bool CRoomTable::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const
{
    return !m_bOpenOnly || IsOpen(m_rows.CoverageOf(row)) || m_listed.contains(m_rows.NameOf(row));
}

} // namespace workbench
