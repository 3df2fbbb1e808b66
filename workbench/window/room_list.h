#pragma once

#include "workbench/plan/plan_edit.h"

#include <QWidget>

class QCheckBox;
class QTableView;

namespace workbench {

class CRoomTable;

/// The rooms of a building in a list that can be sorted: what each needs, gets and lacks. A check
/// leaves those only that someone has to look after. Rows are marked as far as they are listed:
/// what is marked in truth is the plan's matter, and no filter changes it.
class CRoomList : public QWidget
{
    Q_OBJECT

public:
    explicit CRoomList(QWidget* parent = nullptr);

    /// Afterwards no row is marked.
    void ShowBuilding(const CBuilding& building);

    void MarkRooms(const std::vector<CRoomRef>& rooms);
    /// Those that are listed.
    std::vector<CRoomRef> GetMarkedRooms() const;

    void ShowOpenOnly(bool openOnly);

    /// Lists again what passes the filter now.
    void Refilter();

signals:
    /// The user has marked other rows.
    void MarkChanged();
    /// Other rows are listed, of which none is marked.
    void FilterChanged();
    /// Double click, or Return.
    void RoomActivated(const CRoomRef& room);

private:
    QCheckBox* m_pOpenOnly;
    QTableView* m_pView;
    CRoomTable* m_pTable;
    bool m_bMarking = false;
};

} // namespace workbench
