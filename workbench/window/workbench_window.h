#pragma once

#include "workbench/drawing/drawing_blocks.h"
#include "workbench/window/file_commands.h"
#include "workbench/window/plan_commands.h"
#include "workbench/window/plan_document.h"
#include "workbench/window/prompts.h"
#include "workbench/window/state_notices.h"

#include <QMainWindow>

class QLabel;
class QPlainTextEdit;
class QTabBar;

namespace workbench {

class CFloorScene;
class CPlanDrawer;
class CPlanView;
class CRoomList;

/// The workbench: floors as tabs over the plan, the rooms in a list, messages below. Everything can
/// be done by keyboard. Actions have object names, by which tests find them.
class CWorkbenchWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The document outlives the window.
    CWorkbenchWindow(CPlanDocument& document, CDrawingBlocks blocks, CPrompts prompts);
    ~CWorkbenchWindow() override;

    /// Begins with a building (CFileCommands::Start).
    void Start(const CString& asked, const CString& sample) { m_files.Start(asked, sample); }

    /// Adds a text to the messages and shows them.
    void Tell(const QString& message);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QAction* AddAction(QMenu& menu, const char* name, const QString& text, const QKeySequence& keys,
                       const std::function<void()>& work);
    void MakeFileMenu();
    void MakeEditMenu();
    void MakeRadiatorMenu();
    void MakePlantMenu();
    void MakeViewMenu();
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

    void MarkAsPlan();
    void MarkAsList();

    const std::vector<CRoomRef>& MarkedRooms() const { return m_marked; }
    void ChooseFor(const CRoomRef& room);
    void ChooseForMarked();
    void AddToMarked();
    void ConnectMarked();
    void RemoveMarked();
    std::vector<CRadiatorRef> RadiatorsOfMark() const;

    CPlanDocument& m_document;
    CDrawingBlocks m_blocks;
    CPrompts m_prompts;
    CPlanCommands m_commands;
    CFileCommands m_files;
    CFloorScene* m_pScene;
    CPlanView* m_pView;
    QTabBar* m_pTabs;
    CRoomList* m_pRooms;
    /// In the order of the building. The plan shows those on its floor, the list those that it
    /// lists; where radiators are marked, the rooms in which they stand.
    std::vector<CRoomRef> m_marked;
    QDockWidget* m_pRoomDock = nullptr;
    QDockWidget* m_pMessageDock = nullptr;
    CStateNotices m_states;
    QPlainTextEdit* m_pMessages;
    QLabel* m_pTotals;
    std::unique_ptr<CPlanDrawer> m_pDrawer;
};

} // namespace workbench
