// The commands of the window: one table, out of which come menus, tool bar and context menus, and
// what each needs to be of use.

#include "workbench/drawing/plan_view.h"
#include "workbench/plan/placement.h"
#include "workbench/toolkit/qt_text.h"
#include "workbench/window/command_icons.h"
#include "workbench/window/floor_scene.h"
#include "workbench/window/message_pane.h"
#include "workbench/window/plan_texts.h"
#include "workbench/window/recent_files.h"
#include "workbench/window/room_list.h"
#include "workbench/window/workbench_window.h"

#include <QDir>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QToolBar>

#include <algorithm>
#include <map>
#include <string_view>

namespace workbench {

namespace {

/// Low, since screens have less to spare of their height.
constexpr QSize kToolIcon(18, 18);

enum class Menu
{
    file,
    exports,
    edit,
    radiators,
    plant,
    view,
    help,
};

struct CMenuTitle
{
    Menu menu;
    const char* text;
    /// The menu that it opens out of; the menu itself for one of the bar.
    Menu parent;
};

constexpr CMenuTitle kMenus[] = {
    {Menu::file, "&File", Menu::file},       {Menu::exports, "&Esporta", Menu::file},
    {Menu::edit, "&Modifica", Menu::edit},   {Menu::radiators, "&Corpi scaldanti", Menu::radiators},
    {Menu::plant, "&Impianto", Menu::plant}, {Menu::view, "&Vista", Menu::view},
    {Menu::help, "&?", Menu::help},
};

/// What has to be there for a command.
enum class Needs
{
    nothing,
    building,
    /// A building that may be saved to its own file.
    ownFile,
    undo,
    redo,
    /// Rooms that are marked, or of which radiators are.
    rooms,
    /// The same without radiators being marked, and others besides them.
    spareRooms,
    oneRoom,
    oneChoice,
    radiators,
    openRooms,
};

/// Ahead of a command in its menu.
enum class Gap
{
    none,
    line,
};

} // namespace

/// A command with all the places where it stands.
struct CWorkbenchWindow::CCommand
{
    /// Of its action, by which tests find it.
    const char* name;
    Menu menu;
    Gap gap;
    const char* text;
    const char* keys;
    Needs needs;
    void (*run)(CWorkbenchWindow& window);
    bool bContext = false;
    /// On the tool bar, if it has an icon, with a short text.
    CommandIcon icon = CommandIcon::none;
    const char* shortText = "";
    /// The line ahead of it there.
    Gap toolGap = Gap::none;
};

std::span<const CWorkbenchWindow::CCommand> CWorkbenchWindow::Commands()
{
    using Window = CWorkbenchWindow;
    static const CCommand commands[] = {
        {"new", Menu::file, Gap::none, "&Nuovo…", "Ctrl+N", Needs::nothing,
         [](Window& window) { window.m_files.New(); }},
        {"open", Menu::file, Gap::none, "&Apri…", "Ctrl+O", Needs::nothing,
         [](Window& window) { window.m_files.Open(); }, false, CommandIcon::open, "Apri"},
        {"save", Menu::file, Gap::none, "&Salva", "Ctrl+S", Needs::ownFile,
         [](Window& window) { window.m_files.Save(); }, false, CommandIcon::save, "Salva"},
        {"saveAs", Menu::file, Gap::none, "Salva &con nome…", "Ctrl+Shift+S", Needs::building,
         [](Window& window) { window.m_files.SaveAs(); }},
        {"exportPdf", Menu::exports, Gap::none, "&Progetto (PDF)…", "Ctrl+P", Needs::building,
         [](Window& window) { window.m_files.ExportPdf(); }, false, CommandIcon::project,
         "Progetto", Gap::line},
        {"exportCsv", Menu::exports, Gap::none, "Distinta (&CSV)…", "", Needs::building,
         [](Window& window) { window.m_files.ExportCsv(); }},
        {"exportXlsx", Menu::exports, Gap::none, "Distinta (&foglio di calcolo)…", "",
         Needs::building, [](Window& window) { window.m_files.ExportXlsx(); }},
        {"exportJson", Menu::exports, Gap::none, "Distinta (&JSON)…", "", Needs::building,
         [](Window& window) { window.m_files.ExportJson(); }},
        {"exportDxf", Menu::exports, Gap::none, "Pianta (&DXF)…", "", Needs::building,
         [](Window& window) { window.m_files.ExportDxf(); }},
        {"project", Menu::file, Gap::line, "&Dati del progetto…", "", Needs::building,
         [](Window& window) { window.m_commands.DescribeProject(); }},
        {"catalogues", Menu::file, Gap::none, "Cartella dei ca&taloghi…", "", Needs::nothing,
         [](Window& window) { window.m_files.ChooseCatalogues(); }},
        {"valveCatalogues", Menu::file, Gap::none, "Cartella delle &valvole…", "", Needs::nothing,
         [](Window& window) { window.m_files.ChooseValveCatalogues(); }},
        {"quit", Menu::file, Gap::line, "&Esci", "Ctrl+Q", Needs::nothing,
         [](Window& window) { window.close(); }},

        {"undo", Menu::edit, Gap::none, "&Annulla", "Ctrl+Z", Needs::undo,
         [](Window& window) { window.Undo(); }, false, CommandIcon::undo, "Annulla", Gap::line},
        {"redo", Menu::edit, Gap::none, "&Ripeti", "Ctrl+Y", Needs::redo,
         [](Window& window) { window.m_document.Redo(); }, false, CommandIcon::redo, "Ripeti"},
        {"addRoom", Menu::edit, Gap::line, "Aggiungi &locale…", "Ctrl+L", Needs::building,
         [](Window& window) {
             if (const auto added = window.m_commands.AddRoom(window.ShownFloor())) {
                 window.ShowRoom(*added);
             }
         }},

        {"choose", Menu::radiators, Gap::none, "&Scegli corpo scaldante…", "F4", Needs::oneChoice,
         [](Window& window) { window.ChooseForMarked(); }, true, CommandIcon::radiator, "Scegli",
         Gap::line},
        {"add", Menu::radiators, Gap::none, "Agg&iungi corpo scaldante…", "Shift+F4",
         Needs::oneRoom, [](Window& window) { window.AddToMarked(); }, true},
        {"connect", Menu::radiators, Gap::none, "&Attacchi e valvole…", "F6", Needs::radiators,
         [](Window& window) { window.ConnectMarked(); }, true, CommandIcon::connection, "Attacchi"},
        {"remove", Menu::radiators, Gap::none, "&Elimina corpo scaldante", "Del", Needs::radiators,
         [](Window& window) { window.RemoveMarked(); }, true},
        {"product", Menu::radiators, Gap::line, "&Prodotto dei locali scelti…", "F7", Needs::rooms,
         [](Window& window) { window.m_commands.ChooseProduct(window.MarkedRooms()); }, true},
        {"size", Menu::radiators, Gap::none, "Dimensiona i &locali scelti", "F8", Needs::rooms,
         [](Window& window) { window.m_commands.Size(window.MarkedRooms(), L"Dimensiona locali"); },
         true},
        {"sizeAll", Menu::radiators, Gap::none, "&Dimensiona tutto", "Ctrl+D", Needs::building,
         [](Window& window) {
             window.m_commands.Size(AllRooms(window.m_document.Building()), L"Dimensiona tutto");
         },
         false, CommandIcon::sizeAll, "Dimensiona"},

        {"system", Menu::plant, Gap::none, "&Sistema di riscaldamento…", "F9", Needs::building,
         [](Window& window) {
             if (window.m_commands.ChangeSystem()) {
                 window.m_pRooms->ShowOpenOnly(!OpenRooms(window.m_document.Building()).empty());
             }
         }},
        {"repair", Menu::plant, Gap::line, "&Ripara i locali scelti", "Ctrl+R", Needs::rooms,
         [](Window& window) { window.m_commands.Repair(window.MarkedRooms(), L"Ripara"); }, true},
        {"repairAll", Menu::plant, Gap::none, "Ripara &tutti", "Ctrl+Shift+R", Needs::openRooms,
         [](Window& window) {
             window.m_commands.Repair(OpenRooms(window.m_document.Building()), L"Ripara tutti");
         }},

        // In the context menus, which keep this order, behind all else that is done with a room.
        {"removeRoom", Menu::edit, Gap::none, "Elimina l&ocale", "", Needs::spareRooms,
         [](Window& window) { window.RemoveMarkedRooms(); }, true},
        {"find", Menu::edit, Gap::none, "&Trova locale", "Ctrl+F", Needs::building,
         [](Window& window) { window.Find(); }},

        {"fit", Menu::view, Gap::none, "&Tutta la pianta", "Ctrl+0", Needs::building,
         [](Window& window) { window.m_pView->FitToContent(); }},
        {"floorUp", Menu::view, Gap::none, "Piano &successivo", "Ctrl+PgDown", Needs::building,
         [](Window& window) { window.TurnFloors(1); }},
        {"floorDown", Menu::view, Gap::none, "Piano &precedente", "Ctrl+PgUp", Needs::building,
         [](Window& window) { window.TurnFloors(-1); }},

        {"about", Menu::help, Gap::line, "&Informazioni su radsel…", "", Needs::nothing,
         [](Window& window) { window.m_help.About(); }},
    };
    return commands;
}

void CWorkbenchWindow::MakeMenus()
{
    std::map<Menu, QMenu*> menus;
    for (const CMenuTitle& title : kMenus) {
        menus[title.menu] = title.parent == title.menu ? menuBar()->addMenu(title.text)
                                                       : new QMenu(title.text, menuBar());
    }
    m_help.AddPages(*menus[Menu::help]);
    auto* const tools = addToolBar("Strumenti");
    tools->setObjectName("tools");
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tools->setIconSize(kToolIcon);
    for (const CCommand& command : Commands()) {
        QMenu& menu = *menus[command.menu];
        if (command.gap == Gap::line) {
            menu.addSeparator();
        }
        QAction* const action = MakeAction(command);
        menu.addAction(action);
        if (command.icon != CommandIcon::none) {
            if (command.toolGap == Gap::line) {
                tools->addSeparator();
            }
            tools->addAction(action);
        }
        if (command.bContext) {
            m_pContext->addAction(action);
        }
        if (command.name == std::string_view("open")) {
            MakeRecentMenu(menu);
        }
        if (command.name == std::string_view("saveAs")) {
            menu.addMenu(menus[Menu::exports]);
        }
    }
    QMenu& view = *menus[Menu::view];
    view.addSeparator();
    view.addAction(tools->toggleViewAction());
    view.addAction(m_pRoomDock->toggleViewAction());
    view.addAction(m_pMessageDock->toggleViewAction());
}

QAction* CWorkbenchWindow::MakeAction(const CCommand& command)
{
    auto* const action = new QAction(command.text, this);
    action->setObjectName(command.name);
    action->setShortcut(QKeySequence(command.keys));
    action->setIcon(IconOf(command.icon));
    action->setIconVisibleInMenu(false);
    action->setIconText(command.shortText);
    connect(action, &QAction::triggered, this, [this, &command] { command.run(*this); });
    return action;
}

void CWorkbenchWindow::MakeRecentMenu(QMenu& file)
{
    QMenu* const menu = file.addMenu("&Recenti");
    menu->setObjectName("recent");
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        menu->clear();
        for (const CString& path : ReadRecentFiles()) {
            // An ampersand would underline what follows.
            QString text = QDir::toNativeSeparators(ToQt(path));
            menu->addAction(text.replace('&', "&&"), this,
                            [this, path] { m_files.OpenRecent(path); });
        }
        if (menu->isEmpty()) {
            menu->addAction("Nessun edificio")->setEnabled(false);
        }
    });
}

void CWorkbenchWindow::ShowContextMenu(const QPoint& place)
{
    const QList<QAction*> actions = m_pContext->actions();
    if (std::ranges::any_of(actions, &QAction::isEnabled)) {
        m_pContext->popup(place);
    }
}

bool CWorkbenchWindow::Has(const CCommand& command) const
{
    const CPlanHistory& history = m_document.History();
    const bool any = !m_document.Building().floors.empty();
    switch (command.needs) {
    case Needs::nothing:
        return true;
    case Needs::building:
        return any;
    case Needs::ownFile:
        return any && !m_document.IsReadOnly();
    case Needs::undo:
        return history.CanUndo();
    case Needs::redo:
        return history.CanRedo();
    case Needs::rooms:
        return !MarkedRooms().empty();
    case Needs::spareRooms:
        return !MarkedRooms().empty() && m_pScene->GetMarkedRadiators().empty() &&
               MarkedRooms().size() < AllRooms(m_document.Building()).size();
    case Needs::oneRoom:
        return MarkedRooms().size() == 1;
    case Needs::oneChoice:
        return MarkedRooms().size() == 1 && m_pScene->GetMarkedRadiators().size() <= 1;
    case Needs::radiators:
        return !RadiatorsOfMark().empty();
    case Needs::openRooms:
        return !OpenRooms(m_document.Building()).empty();
    }
    return false;
}

void CWorkbenchWindow::EnableActions()
{
    for (const CCommand& command : Commands()) {
        findChild<QAction*>(command.name)->setEnabled(Has(command));
    }
    const CPlanHistory& history = m_document.History();
    const auto tell = [this](const char* name, const QString& verb, const CString& what) {
        QAction& action = *findChild<QAction*>(name);
        const QString text = what.empty() ? verb : verb + ": " + ToQt(what);
        // An ampersand in a room's name would underline what follows.
        action.setText("&" + QString(text).replace('&', "&&"));
        action.setToolTip(PlainToolTip(text));
    };
    tell("undo", "Annulla", history.GetUndoText());
    tell("redo", "Ripeti", history.GetRedoText());
    findChild<QAction*>("save")->setText(m_document.IsReadOnly() ? "&Salva (sola lettura)"
                                                                 : "&Salva");
}

} // namespace workbench
