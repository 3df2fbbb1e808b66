#pragma once

#include "workbench/drawing/drawing_blocks.h"
#include "workbench/window/file_commands.h"
#include "workbench/window/help_commands.h"
#include "workbench/window/plan_commands.h"
#include "workbench/window/plan_document.h"
#include "workbench/window/prompts.h"
#include "workbench/window/state_notices.h"

#include <QMainWindow>

#include <span>

class QLabel;
class QMenu;
class QTabBar;

namespace workbench {

class CFloorScene;
class CMessagePane;
class CPlanDrawer;
class CPlanView;
class CRoomList;

/// The workbench: floors as tabs over the plan, the rooms in a list, messages below. Everything can
/// be done by keyboard. A command stands in one table, of which menus, tool bar and context menus
/// are made; its action has an object name, by which tests find it.
class CWorkbenchWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The document outlives the window.
    CWorkbenchWindow(CPlanDocument& document, CDrawingBlocks blocks, CPrompts prompts);
    ~CWorkbenchWindow() override;

    /// Begins with a building (CFileCommands::Start).
    void Start(const CString& asked, const CString& sample) { m_files.Start(asked, sample); }

    /// Adds a text, which stays, to the messages and shows them.
    void Tell(const QString& message);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    struct CCommand;
    static std::span<const CCommand> Commands();
    void MakeMenus();
    QAction* MakeAction(const CCommand& command);
    void MakeRecentMenu(QMenu& file);
    void ShowContextMenu(const QPoint& place);
    /// True if what the command needs is there.
    bool Has(const CCommand& command) const;
    QWidget* MakePlan();
    void FillEmptyPlan();
    void MakeDocks();
    void PlaceWindow();
    void Connect();

    void ShowBuilding();
    void ShowFloor(int floor);
    void ShowTabs();
    void ShowTotals();
    void ShowTitle();
    void TellStates();
    void EnableActions();
    void TellNotices(const std::vector<CNotice>& notices);
    void ShowMessages();

    void MarkAsPlan();
    void MarkAsList();
    void Find();
    /// Marks a room where it can be seen.
    void ShowRoom(const CRoomRef& room);
    std::size_t ShownFloor() const;
    void TurnFloors(int step);

    const std::vector<CRoomRef>& MarkedRooms() const { return m_marked; }
    void ChooseFor(const CRoomRef& room);
    void ChooseForMarked();
    void AddToMarked();
    void ConnectMarked();
    void RemoveMarked();
    void RemoveMarkedRooms();
    void Undo();
    std::vector<CRadiatorRef> RadiatorsOfMark() const;

    CPlanDocument& m_document;
    CDrawingBlocks m_blocks;
    CPrompts m_prompts;
    CPlanCommands m_commands;
    CFileCommands m_files;
    CHelpCommands m_help;
    CFloorScene* m_pScene;
    CPlanView* m_pView;
    QTabBar* m_pTabs;
    CRoomList* m_pRooms;
    /// As shown; copies share their rooms.
    CBuilding m_shown;
    /// In the order of the building. The plan shows those on its floor, the list those that it
    /// lists; where radiators are marked, the rooms in which they stand.
    std::vector<CRoomRef> m_marked;
    QDockWidget* m_pRoomDock = nullptr;
    QDockWidget* m_pMessageDock = nullptr;
    CStateNotices m_states;
    /// The latest one of which the notices were told.
    StateId m_nTold = 0;
    /// Stands in for the plan as long as there is no building.
    QWidget* m_pEmpty;
    QMenu* m_pContext;
    CMessagePane* m_pMessages;
    QLabel* m_pTotals;
    std::unique_ptr<CPlanDrawer> m_pDrawer;
};

} // namespace workbench
