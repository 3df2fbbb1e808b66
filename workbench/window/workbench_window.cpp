#include "workbench/window/workbench_window.h"

#include "workbench/drawing/beside_window.h"
#include "workbench/drawing/plan_view.h"
#include "workbench/plan/coverage.h"
#include "workbench/plan/placement.h"
#include "workbench/toolkit/qt_text.h"
#include "workbench/window/floor_scene.h"
#include "workbench/window/kept_window.h"
#include "workbench/window/message_pane.h"
#include "workbench/window/plan_drawer.h"
#include "workbench/window/plan_texts.h"
#include "workbench/window/room_list.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

constexpr QSize kWindowSize(1240, 800);
/// What a window system puts around a window, at most.
constexpr QSize kWindowFrame(16, 48);
constexpr int kListWidth = 500;
/// The same in a large font.
constexpr int kListCharacters = 60;
/// Of the window's width, in percent, where that is a small one.
constexpr int kListShare = 55;
constexpr int kMessagesHeight = 120;

} // namespace

CWorkbenchWindow::CWorkbenchWindow(CPlanDocument& document, CDrawingBlocks blocks, CPrompts prompts)
    : m_document(document), m_blocks(std::move(blocks)), m_prompts(std::move(prompts)),
      m_commands(document, m_prompts, *this), m_files(document, m_blocks, m_prompts, *this),
      m_help(*this), m_pScene(new CFloorScene(this)), m_pView(new CPlanView(m_pScene)),
      m_pTabs(new QTabBar), m_pRooms(new CRoomList), m_pEmpty(new QWidget),
      m_pContext(new QMenu(this)), m_pMessages(new CMessagePane), m_pTotals(new QLabel)
{
    m_pScene->SetBlocks(m_blocks.heizkoerper, m_blocks.Valves());
    m_pDrawer = std::make_unique<CPlanDrawer>(*m_pScene, m_blocks.heizkoerper.layers);

    setCentralWidget(MakePlan());
    m_pContext->setObjectName("context");
    statusBar()->addWidget(m_pTotals);
    m_pTotals->setObjectName("totals");
    MakeDocks();
    MakeMenus();
    FillEmptyPlan();
    Connect();
    PlaceWindow();
    ShowBuilding();
    m_pView->setFocus();
}

CWorkbenchWindow::~CWorkbenchWindow() = default;

QWidget* CWorkbenchWindow::MakePlan()
{
    auto* const plan = new QWidget;
    auto* const layout = new QVBoxLayout(plan);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_pTabs);
    layout->addWidget(m_pView);
    layout->addWidget(m_pEmpty);
    m_pTabs->setObjectName("floors");
    m_pTabs->setDocumentMode(true);
    m_pTabs->setExpanding(false);
    m_pView->setObjectName("plan");
    m_pView->setFrameShape(QFrame::NoFrame);
    return plan;
}

void CWorkbenchWindow::FillEmptyPlan()
{
    m_pEmpty->setObjectName("empty");
    auto* const layout = new QVBoxLayout(m_pEmpty);
    // As wide as the widest of what stands in it.
    auto* const column = new QVBoxLayout;
    column->addWidget(new QLabel("Nessun edificio aperto."), 0, Qt::AlignHCenter);
    for (const char* const name : {"open", "new"}) {
        auto* const action = findChild<QAction*>(name);
        auto* const button = new QPushButton(action->text());
        button->setAutoDefault(true);
        connect(button, &QPushButton::clicked, action, &QAction::trigger);
        column->addWidget(button);
    }
    layout->addStretch();
    layout->addLayout(column);
    layout->setAlignment(column, Qt::AlignHCenter);
    layout->addStretch();
}

void CWorkbenchWindow::MakeDocks()
{
    m_pMessages->setObjectName("messages");
    const auto add = [this](const char* name, const QString& title, QWidget* content,
                            Qt::DockWidgetArea area) {
        auto* const dock = new QDockWidget(title, this);
        dock->setObjectName(name);
        dock->setWidget(content);
        addDockWidget(area, dock);
        return dock;
    };
    m_pRoomDock = add("roomDock", "Locali", m_pRooms, Qt::RightDockWidgetArea);
    m_pMessageDock = add("messageDock", "Avvisi", m_pMessages, Qt::BottomDockWidgetArea);
    m_pMessageDock->hide();
}

/// As the user left the window, or else as large as it is made for and the screen allows.
void CWorkbenchWindow::PlaceWindow()
{
    resize(kWindowSize.boundedTo(screen()->availableSize() - kWindowFrame));
    const int list = std::max(kListWidth, kListCharacters * fontMetrics().averageCharWidth());
    resizeDocks({m_pRoomDock}, {std::min(list, width() * kListShare / 100)}, Qt::Horizontal);
    resizeDocks({m_pMessageDock}, {kMessagesHeight}, Qt::Vertical);
    RestoreWindow(*this);
    // It shows with the first message.
    m_pMessageDock->hide();
}

void CWorkbenchWindow::Connect()
{
    connect(&m_document, &CPlanDocument::Changed, this, &CWorkbenchWindow::ShowBuilding);
    connect(&m_document, &CPlanDocument::Opened, this, [this] {
        m_marked.clear();
        m_pScene->MarkRooms({});
        m_pRooms->Refilter();
        m_pTabs->setCurrentIndex(0);
        m_pView->FitToContent();
        m_pView->setFocus();
    });
    connect(&m_document, &CPlanDocument::KeepingFailed, this, [this](const QString& message) {
        Tell("Il lavoro non salvato non è al sicuro da un arresto improvviso: " + message);
    });
    connect(&m_commands, &CPlanCommands::Told, this, &CWorkbenchWindow::TellNotices);
    connect(m_pMessages, &CMessagePane::RoomAsked, this, [this](const QString& name) {
        if (const auto room = FindRoom(m_document.Building(), FromQt(name))) {
            ShowRoom(*room);
        }
    });
    connect(&m_files, &CFileCommands::Told, this, &CWorkbenchWindow::Tell);
    connect(m_pTabs, &QTabBar::currentChanged, this, &CWorkbenchWindow::ShowFloor);
    connect(m_pScene, &CFloorScene::MarkChanged, this, &CWorkbenchWindow::MarkAsPlan);
    connect(m_pScene, &CFloorScene::RoomActivated, this, &CWorkbenchWindow::ChooseFor);
    connect(m_pScene, &CFloorScene::RadiatorActivated, this, &CWorkbenchWindow::ChooseForMarked);
    connect(m_pRooms, &CRoomList::MarkChanged, this, &CWorkbenchWindow::MarkAsList);
    connect(m_pRooms, &CRoomList::FilterChanged, this, [this] { m_pRooms->MarkRooms(m_marked); });
    connect(m_pRooms, &CRoomList::RoomActivated, this, &CWorkbenchWindow::ChooseFor);
    connect(m_pRooms, &CRoomList::RoomFound, this, &CWorkbenchWindow::ShowRoom);
    connect(m_pRooms, &CRoomList::MenuAsked, this, &CWorkbenchWindow::ShowContextMenu);
    connect(m_pScene, &CFloorScene::MenuAsked, this, &CWorkbenchWindow::ShowContextMenu);
}

void CWorkbenchWindow::ShowBuilding()
{
    const bool any = !m_document.Building().floors.empty();
    m_pView->setVisible(any);
    m_pEmpty->setVisible(!any);
    m_pMessages->ShowFor(m_document.History());
    ShowTabs();
    ShowFloor(m_pTabs->currentIndex());
    m_pRooms->ShowBuilding(m_document.Building());
    std::erase_if(m_marked, [this](const CRoomRef& ref) {
        return !IsSameRoom(m_document.Building(), m_shown, ref);
    });
    m_shown = m_document.Building();
    m_pRooms->MarkRooms(m_marked);
    ShowTotals();
    ShowTitle();
    TellStates();
    EnableActions();
}

void CWorkbenchWindow::ShowTabs()
{
    const QSignalBlocker quiet(m_pTabs);
    const std::vector<CFloor>& floors = m_document.Building().floors;
    while (m_pTabs->count() > static_cast<int>(floors.size())) {
        m_pTabs->removeTab(m_pTabs->count() - 1);
    }
    for (int i = 0; i < static_cast<int>(floors.size()); ++i) {
        const QString name = ToQt(floors[static_cast<std::size_t>(i)].strName);
        if (i < m_pTabs->count()) {
            m_pTabs->setTabText(i, name);
        } else {
            m_pTabs->addTab(name);
        }
    }
}

void CWorkbenchWindow::ShowFloor(int floor)
{
    m_pScene->ShowFloor(m_document.Building(), static_cast<std::size_t>(std::max(floor, 0)));
}

void CWorkbenchWindow::ShowTotals()
{
    const CBuilding& building = m_document.Building();
    if (building.floors.empty()) {
        m_pTotals->setText("Nessun edificio aperto");
        return;
    }
    double bedarf = 0.0;
    double gedeckt = 0.0;
    for (const CRoomRef& ref : AllRooms(building)) {
        bedarf += RoomOf(building, ref).bedarf;
        gedeckt += CoveredOf(RoomOf(building, ref));
    }
    m_pTotals->setText(QString("Sistema %1 °C     Fabbisogno %2     Coperto %3     "
                               "Locali da sistemare: %4")
                           .arg(SystemText(building.system), WattText(bedarf), WattText(gedeckt))
                           .arg(OpenRooms(building).size()));
    m_pTotals->setToolTip(m_pTotals->text());
}

void CWorkbenchWindow::ShowTitle()
{
    if (m_document.Building().floors.empty()) {
        setWindowTitle("radsel[*]");
        return;
    }
    const char* const use = m_document.IsReadOnly() ? " [sola lettura]" : "";
    setWindowTitle(ToQt(m_document.Building().strName) + use + "[*] – radsel");
    setWindowModified(!m_document.IsSaved());
}

void CWorkbenchWindow::TellStates()
{
    const CPlanHistory& history = m_document.History();
    const StateId state = history.GetCurrentId();
    // A state that comes back has its notices already.
    const bool isNew = std::exchange(m_nTold, std::max(m_nTold, state)) < state;
    if (isNew && !history.CanUndo()) {
        // The notices of the building before went with it, even if this one has the same to tell.
        m_states = {};
    }
    const std::vector<CNotice> notices = m_states.TakeNew(m_document.Building());
    if (isNew && !notices.empty()) {
        TellNotices(notices);
    }
}

void CWorkbenchWindow::MarkAsPlan()
{
    std::vector<CRoomRef> rooms = m_pScene->GetMarkedRooms();
    for (const CRadiatorRef& radiator : m_pScene->GetMarkedRadiators()) {
        rooms.push_back(radiator.room);
    }
    std::ranges::sort(rooms);
    rooms.erase(std::unique(rooms.begin(), rooms.end()), rooms.end());
    m_marked = std::move(rooms);
    m_pRooms->MarkRooms(m_marked);
    EnableActions();
}

void CWorkbenchWindow::MarkAsList()
{
    m_marked = m_pRooms->GetMarkedRooms();
    // The plan shows one floor: that of the rooms, unless they lie on several.
    const QSignalBlocker quiet(m_pScene);
    if (!m_marked.empty() && m_marked.front().nFloor == m_marked.back().nFloor) {
        m_pTabs->setCurrentIndex(static_cast<int>(m_marked.front().nFloor));
    }
    m_pScene->MarkRooms(m_marked);
    EnableActions();
}

/// The marked radiators, or all radiators of the marked rooms.
std::vector<CRadiatorRef> CWorkbenchWindow::RadiatorsOfMark() const
{
    std::vector<CRadiatorRef> radiators = m_pScene->GetMarkedRadiators();
    if (!radiators.empty()) {
        return radiators;
    }
    for (const CRoomRef& ref : MarkedRooms()) {
        const CRoom& room = RoomOf(m_document.Building(), ref);
        for (std::size_t i = 0; i < room.heizkoerper.size(); ++i) {
            radiators.push_back({ref, i});
        }
    }
    return radiators;
}

void CWorkbenchWindow::ChooseFor(const CRoomRef& ref)
{
    const CRoom& room = RoomOf(m_document.Building(), ref);
    const auto radiator = room.heizkoerper.empty() ? std::nullopt : std::optional<std::size_t>(0);
    m_commands.ChooseRadiator(ref, radiator, *m_pDrawer);
}

void CWorkbenchWindow::ChooseForMarked()
{
    const std::vector<CRadiatorRef> radiators = m_pScene->GetMarkedRadiators();
    if (!radiators.empty()) {
        m_commands.ChooseRadiator(radiators.front().room, radiators.front().nRadiator, *m_pDrawer);
    } else if (!MarkedRooms().empty()) {
        ChooseFor(MarkedRooms().front());
    }
}

void CWorkbenchWindow::AddToMarked()
{
    if (!MarkedRooms().empty()) {
        m_commands.ChooseRadiator(MarkedRooms().front(), std::nullopt, *m_pDrawer);
    }
}

void CWorkbenchWindow::ConnectMarked()
{
    QRectF rooms;
    for (const CRadiatorRef& radiator : RadiatorsOfMark()) {
        rooms |= m_pScene->BoundsOf(radiator.room);
    }
    const CBesideWindow beside(*m_pView, rooms);
    m_pScene->ShowConnections(false);
    m_commands.Connect(RadiatorsOfMark(), *m_pDrawer);
    m_pDrawer->ClearPreview();
    m_pScene->ShowConnections(true);
}

void CWorkbenchWindow::RemoveMarked()
{
    m_commands.Remove(RadiatorsOfMark());
}

void CWorkbenchWindow::RemoveMarkedRooms()
{
    m_commands.RemoveRooms(MarkedRooms());
}

/// What comes back is marked again, so that work goes on where it was.
void CWorkbenchWindow::Undo()
{
    const CBuilding before = m_document.Building();
    m_document.Undo();
    const CPlanMarks back = MarksOfMore(m_document.Building(), before);
    if (!back.rooms.empty()) {
        m_pTabs->setCurrentIndex(static_cast<int>(back.rooms.begin()->nFloor));
        m_pScene->MarkRooms({back.rooms.begin(), back.rooms.end()});
    } else if (!back.radiators.empty()) {
        m_pTabs->setCurrentIndex(static_cast<int>(back.radiators.begin()->room.nFloor));
        m_pScene->MarkRadiators({back.radiators.begin(), back.radiators.end()});
    }
}

void CWorkbenchWindow::Find()
{
    m_pRoomDock->show();
    m_pRooms->StartFinding();
}

void CWorkbenchWindow::ShowRoom(const CRoomRef& room)
{
    if (Exists(m_document.Building(), room)) {
        m_pTabs->setCurrentIndex(static_cast<int>(room.nFloor));
        m_pScene->MarkRooms({room});
        m_pScene->ShowInViews(room);
    }
}

std::size_t CWorkbenchWindow::ShownFloor() const
{
    return static_cast<std::size_t>(std::max(m_pTabs->currentIndex(), 0));
}

void CWorkbenchWindow::TurnFloors(int step)
{
    m_pTabs->setCurrentIndex(std::clamp(m_pTabs->currentIndex() + step, 0, m_pTabs->count() - 1));
}

void CWorkbenchWindow::Tell(const QString& message)
{
    m_pMessages->Add({{message}}, std::nullopt);
    ShowMessages();
}

void CWorkbenchWindow::TellNotices(const std::vector<CNotice>& notices)
{
    m_pMessages->Add(notices, m_document.History().GetCurrentId());
    ShowMessages();
}

void CWorkbenchWindow::ShowMessages()
{
    if (m_pMessageDock->isHidden()) {
        m_pMessageDock->show();
        resizeDocks({m_pMessageDock}, {kMessagesHeight}, Qt::Vertical);
    }
}

void CWorkbenchWindow::closeEvent(QCloseEvent* event)
{
    if (!m_files.MayLeave()) {
        event->ignore();
        return;
    }
    m_document.ForgetKept();
    KeepWindow(*this);
    event->accept();
}

} // namespace workbench
