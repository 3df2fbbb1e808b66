#include "workbench/building/qt_text.h"
#include "workbench/drawing/plan_view.h"
#include "workbench/plan/placement.h"
#include "workbench/window/floor_scene.h"
#include "workbench/window/room_list.h"
#include "workbench/window/workbench_window.h"

#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>

#include <algorithm>

namespace workbench {

QAction* CWorkbenchWindow::AddAction(QMenu& menu, const char* name, const QString& text,
                                     const QKeySequence& keys, const std::function<void()>& work)
{
    auto* const action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, work);
    menu.addAction(action);
    return action;
}

void CWorkbenchWindow::MakeFileMenu()
{
    QMenu& menu = *menuBar()->addMenu("&File");
    AddAction(menu, "open", "&Apri…", QKeySequence::Open, [this] { m_files.Open(); });
    AddAction(menu, "save", "&Salva", QKeySequence::Save, [this] { m_files.Save(); });
    AddAction(menu, "saveAs", "Salva &con nome…", QKeySequence("Ctrl+Shift+S"),
              [this] { m_files.SaveAs(); });
    menu.addSeparator();
    QMenu& exports = *menu.addMenu("&Esporta");
    AddAction(exports, "exportPdf", "&Progetto (PDF)…", QKeySequence("Ctrl+P"),
              [this] { m_files.ExportPdf(); });
    AddAction(exports, "exportCsv", "Distinta (&CSV)…", {}, [this] { m_files.ExportCsv(); });
    AddAction(exports, "exportXlsx", "Distinta (&Excel)…", {}, [this] { m_files.ExportXlsx(); });
    AddAction(exports, "exportJson", "Distinta (&JSON)…", {}, [this] { m_files.ExportJson(); });
    AddAction(exports, "exportDxf", "Pianta (&DXF)…", {}, [this] { m_files.ExportDxf(); });
    AddAction(menu, "project", "&Dati del progetto…", {}, [this] { m_commands.DescribeProject(); });
    AddAction(menu, "catalogues", "Cartella dei ca&taloghi…", {},
              [this] { m_files.ChooseCatalogues(); });
    menu.addSeparator();
    AddAction(menu, "quit", "&Esci", QKeySequence("Ctrl+Q"), [this] { close(); });
}

void CWorkbenchWindow::MakeEditMenu()
{
    QMenu& menu = *menuBar()->addMenu("&Modifica");
    AddAction(menu, "undo", "&Annulla", QKeySequence::Undo, [this] { m_document.Undo(); });
    AddAction(menu, "redo", "&Ripeti", QKeySequence("Ctrl+Y"), [this] { m_document.Redo(); });
    menu.addSeparator();
    AddAction(menu, "remove", "&Elimina corpo scaldante", QKeySequence::Delete,
              [this] { RemoveMarked(); });
}

void CWorkbenchWindow::MakeRadiatorMenu()
{
    QMenu& menu = *menuBar()->addMenu("&Corpi scaldanti");
    AddAction(menu, "choose", "&Scegli corpo scaldante…", QKeySequence("F4"),
              [this] { ChooseForMarked(); });
    AddAction(menu, "add", "Agg&iungi corpo scaldante…", QKeySequence("Shift+F4"),
              [this] { AddToMarked(); });
    AddAction(menu, "connect", "&Attacchi e valvole…", QKeySequence("F6"),
              [this] { ConnectMarked(); });
    menu.addSeparator();
    AddAction(menu, "product", "&Prodotto dei locali scelti…", QKeySequence("F7"),
              [this] { m_commands.ChooseProduct(MarkedRooms()); });
    AddAction(menu, "size", "Dimensiona i &locali scelti", QKeySequence("F8"),
              [this] { m_commands.Size(MarkedRooms(), L"Dimensiona locali"); });
    AddAction(menu, "sizeAll", "&Dimensiona tutto", QKeySequence("Ctrl+D"),
              [this] { m_commands.Size(AllRooms(m_document.Building()), L"Dimensiona tutto"); });
}

void CWorkbenchWindow::MakePlantMenu()
{
    QMenu& menu = *menuBar()->addMenu("&Impianto");
    AddAction(menu, "system", "&Sistema di riscaldamento…", QKeySequence("F9"), [this] {
        if (m_commands.ChangeSystem()) {
            m_pRooms->ShowOpenOnly(!OpenRooms(m_document.Building()).empty());
        }
    });
    menu.addSeparator();
    AddAction(menu, "repair", "&Ripara i locali scelti", QKeySequence("Ctrl+R"),
              [this] { m_commands.Repair(MarkedRooms(), L"Ripara"); });
    AddAction(menu, "repairAll", "Ripara &tutti", QKeySequence("Ctrl+Shift+R"),
              [this] { m_commands.Repair(OpenRooms(m_document.Building()), L"Ripara tutti"); });
}

void CWorkbenchWindow::MakeViewMenu()
{
    QMenu& menu = *menuBar()->addMenu("&Vista");
    AddAction(menu, "fit", "&Tutta la pianta", QKeySequence("Ctrl+0"),
              [this] { m_pView->FitToContent(); });
    const auto turn = [this](int step) {
        m_pTabs->setCurrentIndex(
            std::clamp(m_pTabs->currentIndex() + step, 0, m_pTabs->count() - 1));
    };
    AddAction(menu, "floorUp", "Piano &successivo", QKeySequence("Ctrl+PgDown"),
              [turn] { turn(1); });
    AddAction(menu, "floorDown", "Piano &precedente", QKeySequence("Ctrl+PgUp"),
              [turn] { turn(-1); });
    menu.addSeparator();
    menu.addAction(m_pRoomDock->toggleViewAction());
    menu.addAction(m_pMessageDock->toggleViewAction());
}

void CWorkbenchWindow::EnableActions()
{
    const auto enable = [this](const char* name, bool enabled) {
        findChild<QAction*>(name)->setEnabled(enabled);
    };
    const CPlanHistory& history = m_document.History();
    const auto name = [](const QString& verb, const CString& what) {
        return what.empty() ? verb : verb + ": " + ToQt(what);
    };
    findChild<QAction*>("undo")->setText(name("&Annulla", history.GetUndoText()));
    findChild<QAction*>("redo")->setText(name("&Ripeti", history.GetRedoText()));
    const bool readOnly = m_document.IsReadOnly();
    findChild<QAction*>("save")->setText(readOnly ? "&Salva (sola lettura)" : "&Salva");
    const bool any = !m_document.Building().floors.empty();
    enable("save", any && !readOnly);
    for (const char* const work : {"saveAs", "exportPdf", "exportCsv", "exportXlsx", "exportJson",
                                   "exportDxf", "sizeAll", "system", "project"}) {
        enable(work, any);
    }
    enable("undo", history.CanUndo());
    enable("redo", history.CanRedo());

    const std::vector<CRoomRef>& rooms = MarkedRooms();
    const bool oneRoom = rooms.size() == 1;
    enable("choose", oneRoom && m_pScene->GetMarkedRadiators().size() <= 1);
    enable("add", oneRoom);
    enable("product", !rooms.empty());
    enable("size", !rooms.empty());
    enable("repair", !rooms.empty());
    enable("connect", !RadiatorsOfMark().empty());
    enable("remove", !RadiatorsOfMark().empty());
    enable("repairAll", !OpenRooms(m_document.Building()).empty());
}

} // namespace workbench
