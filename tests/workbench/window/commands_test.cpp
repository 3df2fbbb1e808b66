// What a user expects of any program with windows.

#include "tests/workbench/window/plan_window.h"
#include "tests/workbench/window/workbench_fixture.h"
#include "workbench/toolkit/qt_text.h"
#include "workbench/window/message_pane.h"

#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <QTextBlock>
#include <QToolBar>

namespace workbench {

namespace {

std::vector<std::string> NamesOf(const QList<QAction*>& actions)
{
    std::vector<std::string> names;
    for (const QAction* const action : actions) {
        if (!action->isSeparator()) {
            names.push_back(action->objectName().toStdString());
        }
    }
    return names;
}

class Commands : public WorkbenchWindow
{
protected:
    CMessagePane& Pane() { return *m_window->findChild<CMessagePane*>("messages"); }
    QMenu& Menu(const char* name) { return *m_window->findChild<QMenu*>(name); }
    std::vector<CRoomRef> Marked() { return m_window->findChild<CFloorScene*>()->GetMarkedRooms(); }

    /// Fills the dialog for a room that the next action opens.
    static void InRoomDialog(const QString& room, const QString& floor)
    {
        InDialog([=](QWidget& dialog) {
            auto& ok = *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
            EXPECT_FALSE(ok.isEnabled()) << "it has no name";
            EXPECT_EQ(dialog.findChild<QLabel*>("fault")->text(), "") << "nobody typed anything";
            dialog.findChild<QLineEdit*>("name")->setText(room);
            dialog.findChild<QComboBox*>("floor")->setEditText(floor);
            ASSERT_TRUE(ok.isEnabled()) << dialog.findChild<QLabel*>("fault")->text().toStdString();
            ok.click();
        });
    }

    fs::path Beside(const char* name) const { return m_path.parent_path() / name; }
};

} // namespace

TEST_F(Commands, StandInMenuToolBarAndContextMenuAsOne)
{
    const std::vector<std::string> tools = {"open", "save",   "exportPdf", "undo",
                                            "redo", "choose", "connect",   "sizeAll"};
    EXPECT_EQ(NamesOf(m_window->findChild<QToolBar*>("tools")->actions()), tools);
    for (const QAction* const action : m_window->findChild<QToolBar*>("tools")->actions()) {
        EXPECT_TRUE(action->isSeparator() || !action->icon().isNull());
    }
    std::map<QKeySequence, std::string> keys;
    for (const QAction* const action : m_window->findChildren<QAction*>()) {
        if (!action->shortcut().isEmpty()) {
            EXPECT_TRUE(keys.emplace(action->shortcut(), action->text().toStdString()).second)
                << action->shortcut().toString().toStdString() << " " << keys[action->shortcut()];
        }
    }
    EXPECT_FALSE(Action("choose").isEnabled());
    Mark({{0, 1}});
    EXPECT_TRUE(Action("choose").isEnabled());
    EXPECT_EQ(NamesOf(Menu("context").actions()).front(), "choose");
}

TEST_F(Commands, TheRightButtonMarksAndOffersWhatCanBeDone)
{
    m_window->show();
    Do("sizeAll");
    auto& view = *m_window->findChild<CPlanView*>();
    auto& scene = *m_window->findChild<CFloorScene*>();
    const auto ask = [&](const CRoomRef& room) {
        const QPoint place = view.mapFromScene(scene.BoundsOf(room).center());
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(view.viewport(), &event);
        const bool shown = Menu("context").isVisible();
        Menu("context").close();
        return shown;
    };
    emit scene.MenuAsked({5, 5});
    EXPECT_FALSE(Menu("context").isVisible()) << "nothing is marked, and nothing can be done";
    Mark({{0, 1}, {0, 3}});
    EXPECT_TRUE(ask({0, 3}));
    EXPECT_EQ(Marked().size(), 2u) << "it was marked already";
    EXPECT_TRUE(ask({0, 2}));
    EXPECT_EQ(Marked(), (std::vector<CRoomRef>{{0, 2}}));

    auto& list = *m_window->findChild<QTableView*>("rooms");
    emit list.customContextMenuRequested({5, 5});
    EXPECT_TRUE(Menu("context").isVisible());
    Menu("context").close();
}

TEST_F(Commands, AMessageLeadsToItsRoomAndGoesWithItsStep)
{
    Do("sizeAll");
    const QString told = Messages();
    const CRoomRef open = OpenRooms(m_document.Building()).back();
    const QString room = ToQt(RoomOf(m_document.Building(), open).strName);
    ASSERT_TRUE(told.contains(room + ": ")) << told.toStdString();
    m_window->Tell("<b>resta</b>");

    // By keys, as a link is reached without a mouse.
    Pane().setFocus();
    while (Pane().textCursor().selectedText() != room) {
        QTest::keyClick(&Pane(), Qt::Key_Tab);
        ASSERT_TRUE(Pane().textCursor().hasSelection());
    }
    QTest::keyClick(&Pane(), Qt::Key_Return);
    EXPECT_EQ(Marked(), std::vector<CRoomRef>{open});
    EXPECT_EQ(m_window->findChild<QTabBar*>("floors")->currentIndex(), int(open.nFloor));

    Do("undo");
    EXPECT_EQ(Messages(), "<b>resta</b>");
    Do("redo");
    EXPECT_TRUE(Messages().contains(told));
    Do("undo");
    Mark({{0, 1}});
    Do("size");
    Do("undo");
    EXPECT_EQ(Messages(), "<b>resta</b>");
}

TEST_F(Commands, OfTooManyMessagesTheOldestGoAndTheOthersLeadToTheirRooms)
{
    constexpr int kMost = 5000;
    constexpr int kKept = 4500;
    CMessagePane pane;
    int told = 0;
    const auto tell = [&](int count) {
        std::vector<CNotice> notices;
        for (int i = 0; i < count; ++i) {
            notices.push_back({"scarso", "Locale " + QString::number(told++)});
        }
        pane.Add(notices, std::nullopt);
    };
    QString asked;
    QObject::connect(&pane, &CMessagePane::RoomAsked, [&](const QString& room) { asked = room; });
    const auto expect = [&](int count) {
        EXPECT_EQ(pane.document()->blockCount(), count);
        const auto lead = [&](const QTextBlock& line, int number) {
            const QString room = "Locale " + QString::number(number);
            EXPECT_EQ(line.text(), room + ": scarso");
            emit pane.anchorClicked(line.begin().fragment().charFormat().anchorHref());
            EXPECT_EQ(asked, room);
        };
        lead(pane.document()->firstBlock(), told - count);
        lead(pane.document()->lastBlock(), told - 1);
    };
    tell(kMost - 1);
    tell(1);
    expect(kMost);
    tell(1);
    expect(kKept);
    tell(1);
    expect(kKept + 1);
    tell(2 * kMost);
    expect(kKept);
}

TEST_F(Commands, ANewBuildingTakesRoomsAndGoesToAFileOfItsOwn)
{
    InRoomDialog("Cucina", "Piano terra");
    Do("new");
    EXPECT_TRUE(m_document.Path().empty());
    EXPECT_FALSE(m_document.IsSaved());
    Do("sizeAll");
    EXPECT_TRUE(Messages().contains("Cucina: il locale non ha ancora un prodotto"))
        << Messages().toStdString();
    InRoomDialog("Bagno", "Piano terra");
    Do("addRoom");
    InRoomDialog("Camera", "Mansarda");
    Do("addRoom");
    const CBuilding& building = m_document.Building();
    ASSERT_EQ(building.floors.size(), 2u);
    EXPECT_EQ(building.floors[0].rooms.size(), 2u);
    EXPECT_EQ(Marked(), (std::vector<CRoomRef>{{1, 0}})) << "of the floor that is shown";
    EXPECT_EQ(Action("undo").text(), "&Annulla: Aggiungi locale");

    m_answerPath = Beside("nuova").wstring();
    Do("save");
    EXPECT_EQ(FormatBuilding(ReadBuilding(Beside("nuova.json").wstring())),
              FormatBuilding(building));

    bool possible = true;
    InDialog([&](QWidget& dialog) {
        dialog.findChild<QLineEdit*>("name")->setText("Bagno");
        auto& buttons = *dialog.findChild<QDialogButtonBox*>();
        possible = buttons.button(QDialogButtonBox::Ok)->isEnabled();
        buttons.button(QDialogButtonBox::Cancel)->click();
    });
    Do("addRoom");
    EXPECT_FALSE(possible) << "there is one of that name";
}

TEST_F(Commands, WhatIsDeletedComesBackMarkedAndLinksLeadToTheRightRoom)
{
    using Rooms = std::vector<CRoomRef>;
    Do("sizeAll");
    const CBuilding sized = m_document.Building();
    m_window->findChild<CFloorScene*>()->MarkRadiators({{{0, 1}, 0}});
    EXPECT_FALSE(Action("removeRoom").isEnabled()) << "a radiator is marked, and not its room";
    Do("remove");
    m_window->findChild<QTabBar*>("floors")->setCurrentIndex(1);
    Do("undo");
    EXPECT_EQ(m_window->findChild<CFloorScene*>()->GetMarkedRadiators(),
              (std::vector<CRadiatorRef>{{{0, 1}, 0}}));

    const CRoomRef open = OpenRooms(sized).back();
    const CString name = RoomOf(sized, open).strName;
    ASSERT_GT(open.nRoom, 0u);
    m_window->findChild<QTabBar*>("floors")->setCurrentIndex(int(open.nFloor));
    Mark({{open.nFloor, 0}});
    Do("removeRoom"); // the answer is not to
    EXPECT_EQ(m_nQuestions, 1);
    EXPECT_EQ(FormatBuilding(m_document.Building()), FormatBuilding(sized));
    m_answer = CPrompts::Answer::yes;
    Do("removeRoom");
    EXPECT_EQ(Action("undo").text(), "&Annulla: Elimina locale");
    EXPECT_FALSE(FindRoom(m_document.Building(), RoomOf(sized, {open.nFloor, 0}).strName));
    EXPECT_EQ(Marked(), Rooms());
    emit Pane().RoomAsked(ToQt(name));
    EXPECT_EQ(Marked(), (Rooms{{open.nFloor, open.nRoom - 1}}));
    Do("undo");
    EXPECT_EQ(FormatBuilding(m_document.Building()), FormatBuilding(sized));
    EXPECT_EQ(Marked(), (Rooms{{open.nFloor, 0}}));

    Rooms floor = AllRooms(sized);
    std::erase_if(floor, [](const CRoomRef& ref) { return ref.nFloor != 0; });
    m_window->findChild<QTabBar*>("floors")->setCurrentIndex(0);
    Mark(floor);
    Do("removeRoom");
    EXPECT_EQ(m_document.Building().floors.size(), sized.floors.size() - 1);
    EXPECT_EQ(m_document.Building().floors[0].strName, sized.floors[1].strName);
    Mark(AllRooms(m_document.Building()));
    EXPECT_FALSE(Action("removeRoom").isEnabled()) << "a building needs one room";
}

TEST_F(Commands, RecentBuildingsOpenAgain)
{
    const auto recent = [this] {
        emit Menu("recent").aboutToShow();
        return Menu("recent").actions();
    };
    EXPECT_FALSE(recent().front()->isEnabled());
    fs::copy_file(m_path, Beside("a&b.json"));
    for (const fs::path& path : {m_path, Beside("a&b.json"), m_path}) {
        m_answerPath = path.wstring();
        Do("open");
    }
    const QList<QAction*> actions = recent();
    ASSERT_EQ(actions.size(), 2);
    EXPECT_TRUE(actions[0]->text().endsWith("casa.json"));
    EXPECT_TRUE(actions[1]->text().endsWith("a&&b.json"));
    actions[1]->trigger();
    EXPECT_EQ(m_document.Path(), Beside("a&b.json").wstring());

    fs::remove(m_path);
    recent()[1]->trigger();
    EXPECT_TRUE(m_told.contains("casa.json")) << m_told.toStdString();
    EXPECT_EQ(recent().size(), 1);
}

TEST_F(Commands, ARoomIsFoundByPartOfItsName)
{
    m_window->show();
    Do("find");
    auto& field = *m_window->findChild<QLineEdit*>("find");
    m_window->findChild<QCheckBox*>("openOnly")->setChecked(true);
    QTest::keyClicks(&field, "bagno");
    const auto first = Marked();
    ASSERT_EQ(first.size(), 1u);
    EXPECT_TRUE(ToQt(RoomOf(m_document.Building(), first[0]).strName)
                    .contains("bagno", Qt::CaseInsensitive));
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_NE(Marked(), first) << "the next one";
    QTest::keyClicks(&field, "xyz");
    EXPECT_FALSE(field.toolTip().isEmpty());
    const auto ink = [&] { return field.palette().color(QPalette::Text); };
    EXPECT_EQ(ink(), field.palette().color(QPalette::PlaceholderText));
    field.clear();
    QTest::keyClicks(&field, "bagno");
    EXPECT_NE(ink(), field.palette().color(QPalette::PlaceholderText));
}

TEST_F(Commands, WhatIsEmptySaysWhy)
{
    m_window->show();
    auto& list = *m_window->findChild<QTableView*>("rooms");
    auto& hint = *m_window->findChild<QLabel*>("hint");
    EXPECT_TRUE(list.isVisible());
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return m_window->findChild<QTabBar*>("floors")->height() > 10; }));
    CBuilding done = m_document.Building();
    for (const CRoomRef& ref : OpenRooms(done)) {
        CRoom room = RoomOf(done, ref);
        room.bedarf = 0.0;
        ReplaceRoom(done, ref, room);
    }
    m_document.Do(L"Fabbisogno", done);
    m_window->findChild<QCheckBox*>("openOnly")->setChecked(true);
    EXPECT_FALSE(list.isVisible());
    EXPECT_TRUE(hint.text().contains("Nessun locale da sistemare"));

    CPlanDocument none(nullptr);
    m_window = MakeWindow(none);
    m_window->show();
    auto& page = *m_window->findChild<QWidget*>("empty");
    EXPECT_TRUE(page.isVisible());
    InRoomDialog("Cucina", "Terra");
    QTimer::singleShot(0, [&] { page.findChildren<QPushButton*>().back()->click(); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return !page.isVisible(); }));
}

TEST_F(Commands, TheFolderOfTheValvesCanBeChosen)
{
    m_answerPath = kData + L"/valves";
    Do("valveCatalogues");
    EXPECT_TRUE(Messages().contains("Fontespada, Möhrental, Ostervliet"))
        << Messages().toStdString();
    EXPECT_EQ(reference_host::GetHostSetting(reference_host::kSettingVEDir, {}), *m_answerPath);
    m_answerPath = m_folder.Path();
    Do("valveCatalogues");
    EXPECT_TRUE(Messages().contains("Nessun produttore")) << Messages().toStdString();
}

TEST_F(Commands, TheProgramTellsItsVersionAndLicences)
{
    QCoreApplication::setApplicationVersion("1.2.3");
    QString text;
    InDialog([&](QWidget& dialog) {
        const auto& box = dynamic_cast<QMessageBox&>(dialog);
        text = box.text() + box.informativeText();
        dialog.close();
    });
    Do("about");
    for (const char* const word : {"1.2.3", "GPL-2.0", "MIT", "Qt", "dxflib", "libxlsxwriter"}) {
        EXPECT_TRUE(text.contains(word)) << word;
    }
}

} // namespace workbench
