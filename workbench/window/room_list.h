#pragma once

#include "workbench/plan/plan_edit.h"

#include <QWidget>

class QCheckBox;
class QTableView;

namespace workbench {

class CRoomTable;

/// The rooms of a building in a list that can be sorted: what each needs, gets and lacks. A check
/// leaves those only that someone has to look after.
class CRoomList : public QWidget
{
    Q_OBJECT

public:
    explicit CRoomList(QWidget* parent = nullptr);

    /// Rows that are marked stay so as long as their rooms are there.
    void ShowBuilding(const CBuilding& building);

    void MarkRooms(const std::vector<CRoomRef>& rooms);
    std::vector<CRoomRef> GetMarkedRooms() const;

    void ShowOpenOnly(bool openOnly);

signals:
    /// The user has marked other rows.
    void MarkChanged();
    /// Double click, or Return.
    void RoomActivated(const CRoomRef& room);

private:
    QCheckBox* m_pOpenOnly;
    QTableView* m_pView;
    CRoomTable* m_pTable;
    bool m_bMarking = false;
};

} // namespace workbench
