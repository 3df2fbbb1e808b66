#pragma once

#include "workbench/plan/plan_edit.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QStackedWidget;
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

    /// Goes to the field in which the user types what a room is called.
    void StartFinding();

signals:
    /// The user has marked other rows.
    void MarkChanged();
    /// Other rows are listed, of which none is marked.
    void FilterChanged();
    /// Double click, or Return.
    void RoomActivated(const CRoomRef& room);
    /// A room, listed or not, whose name has what the user typed.
    void RoomFound(const CRoomRef& room);
    /// The user asks what can be done with the marked rooms, at a place of the screen.
    void MenuAsked(const QPoint& place);

private:
    /// Looks through the rooms of the building, from the one found last on or behind it.
    void FindRoom(bool behind);
    void ShowHint();

    QLineEdit* m_pFind;
    QCheckBox* m_pOpenOnly;
    /// The list, or why it is empty.
    QStackedWidget* m_pPages;
    QLabel* m_pHint;
    QTableView* m_pView;
    CRoomTable* m_pTable;
    bool m_bMarking = false;
    /// Row of the room found last.
    int m_nFound = 0;
};

} // namespace workbench
