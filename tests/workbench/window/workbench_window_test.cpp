// What the window makes of the building, and what plan and list show of it.

#include "tests/workbench/window/workbench_fixture.h"
#include "tools/make_building_samples.h"
#include "workbench/drawing/plan_view.h"
#include "workbench/toolkit/qt_text.h"
#include "workbench/window/plan_texts.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QTabBar>
#include <QTableView>

namespace workbench {

TEST_F(WorkbenchWindow, SizesAllRoomsInOneStepThatCanBeUndone)
{
    const std::string before = FormatBuilding(m_document.Building());
    ASSERT_EQ(Open(), 17u);
    Do("sizeAll");
    // Two rooms of the sample have no space for what they need.
    EXPECT_EQ(Open(), 2u);
    EXPECT_TRUE(Messages().contains("Biblioteca: "));
    EXPECT_TRUE(m_window->isWindowModified());
    EXPECT_EQ(Action("undo").text(), "&Annulla: Dimensiona tutto");

    const std::string sized = FormatBuilding(m_document.Building());
    Do("undo");
    EXPECT_EQ(FormatBuilding(m_document.Building()), before);
    EXPECT_FALSE(m_window->isWindowModified());
    EXPECT_FALSE(Action("undo").isEnabled());
    Do("redo");
    EXPECT_EQ(FormatBuilding(m_document.Building()), sized);
}

TEST_F(WorkbenchWindow, ACommandThatChangesNothingIsNoStep)
{
    Do("sizeAll");
    Do("undo");
    m_document.Do(L"Niente", m_document.Building());
    EXPECT_EQ(Action("redo").text(), "&Ripeti: Dimensiona tutto");
    Do("redo");
    Do("sizeAll"); // the same sizes come out again
    Do("undo");
    EXPECT_FALSE(Action("undo").isEnabled());

    CBuilding changed = m_document.Building();
    changed.strNotiz = L"[1]";
    m_document.Do(L"Nota", changed);
    EXPECT_EQ(Action("undo").text(), "&Annulla: Nota");
}

TEST_F(WorkbenchWindow, AnotherBuildingIsShownWhole)
{
    m_window->show();
    auto& plan = *m_window->findChild<CPlanView*>("plan");
    plan.ZoomAt({10, 10}, 20.0);
    m_window->findChild<QTabBar*>("floors")->setCurrentIndex(1);
    Do("sizeAll");
    m_answer = CPrompts::Answer::no;
    m_answerPath = m_path.wstring();
    Do("open");
    EXPECT_EQ(m_window->findChild<QTabBar*>("floors")->currentIndex(), 0);
    const auto shown = plan.transform();
    Do("fit");
    EXPECT_EQ(plan.transform(), shown);
}

TEST_F(WorkbenchWindow, WorksOnTheRoomsThatAreMarked)
{
    for (const char* name : {"choose", "add", "product", "size", "repair", "connect", "remove"}) {
        EXPECT_FALSE(Action(name).isEnabled()) << name;
    }
    Mark({{0, 1}, {0, 3}});
    EXPECT_FALSE(Action("choose").isEnabled());
    EXPECT_FALSE(Action("connect").isEnabled());
    Do("size");
    EXPECT_EQ(Open(), 15u);
    EXPECT_EQ(Room(0, 1).heizkoerper.size(), 1u);
    EXPECT_TRUE(Room(0, 2).heizkoerper.empty());
    EXPECT_TRUE(Action("connect").isEnabled());
    Mark({{0, 1}});
    Do("remove");
    EXPECT_TRUE(Room(0, 1).heizkoerper.empty());
    EXPECT_EQ(Room(0, 3).heizkoerper.size(), 1u);
}

TEST_F(WorkbenchWindow, NamesInMessagesAreNoMarkup)
{
    const CPrompts prompts = MakePrompts();
    const QString text = "<img src=\"file:///x.png\"> aperto?";
    int seen = 0;
    const auto look = [&](QWidget& box) {
        seen += dynamic_cast<QMessageBox&>(box).textFormat() == Qt::PlainText ? 1 : 0;
        dynamic_cast<QMessageBox&>(box).reject();
    };
    InDialog(look);
    prompts.tell(m_window.get(), text, CPrompts::Tone::error);
    InDialog(look);
    prompts.ask(m_window.get(), text, "&Sì", "&No", true);
    EXPECT_EQ(seen, 2);
}

TEST_F(WorkbenchWindow, SizesThatOughtToBeOthersAreToldWhereverRoomsAreShown)
{
    Do("sizeAll");
    const std::size_t before = Open();
    auto& list = *m_window->findChild<QTableView*>("rooms");
    const auto cell = [&](int role) { return list.model()->index(1, 5).data(role).toString(); };
    EXPECT_EQ(cell(Qt::DisplayRole), "coperto");
    CBuilding changed = m_document.Building();
    CPlacedRadiator radiator = RadiatorOf(changed, {{0, 1}, 0});
    radiator.daten.Hoehe = 900.0;
    ReplaceRadiator(changed, {{0, 1}, 0}, radiator);
    m_document.Do(L"Alto", changed);
    const QString excess = "altezza 900 mm, consentiti 720 mm";
    EXPECT_EQ(Open(), before + 1);
    EXPECT_EQ(cell(Qt::DisplayRole), "troppo grande per il posto");
    EXPECT_EQ(cell(Qt::ToolTipRole), "Troppo grande per il posto: " + excess);
    EXPECT_TRUE(ToolTipOf(changed, Room(0, 1)).contains(cell(Qt::ToolTipRole)));
    EXPECT_TRUE(ToolTipOf(changed, Room(0, 1), radiator).contains(excess));
    const QString told = "Soggiorno: troppo grande per il posto, " + excess;
    EXPECT_EQ(Messages().count(told), 1) << Messages().toStdString();
    changed.strNotiz = L"[1]";
    m_document.Do(L"Nota", changed);
    EXPECT_EQ(Messages().count(told), 1) << "told once";
    Do("undo");
    Do("undo");
    Do("redo");
    EXPECT_EQ(Messages().count(told), 1) << "what was told of the step went with it";

    InDialog([](QWidget& dialog) {
        auto& limit = *dialog.findChild<QDoubleSpinBox*>("excessMax");
        EXPECT_EQ(limit.value(), 15.0);
        limit.setValue(0.0);
        EXPECT_TRUE(dialog.findChild<QLabel*>("consequence")->text().contains("sovradimensionati"));
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    Do("system");
    EXPECT_EQ(m_document.Building().ueberschussMax, 0.0);
    EXPECT_EQ(Action("undo").text(), "&Annulla: Limite di sovradimensionamento");
    EXPECT_EQ(Open(), before + 1);
    EXPECT_FALSE(m_window->findChild<QCheckBox*>("openOnly")->isChecked());
    EXPECT_TRUE(Messages().contains(QRegularExpression("sovradimensionato, .* limite 0 %")))
        << Messages().toStdString();
}

TEST_F(WorkbenchWindow, AnotherSystemShowsWhichRoomsLackAndRepairsThem)
{
    Do("sizeAll");
    auto& list = *m_window->findChild<QTableView*>("rooms");
    ChangeSystem(55.0, 45.0, false);
    EXPECT_EQ(Open(), 2u);
    ChangeSystem(55.0, 45.0, true);
    const std::size_t lacking = Open();
    EXPECT_GT(lacking, 10u);
    EXPECT_TRUE(m_window->findChild<QCheckBox*>("openOnly")->isChecked());
    EXPECT_EQ(list.model()->rowCount(), static_cast<int>(lacking));
    EXPECT_TRUE(m_window->findChild<QLabel*>("totals")->text().contains(
        QString("Locali da sistemare: %1").arg(lacking)));

    Mark({{0, 3}});
    ASSERT_EQ(StateOf(0, 3), Coverage::lacking);
    Do("repair");
    EXPECT_EQ(StateOf(0, 3), Coverage::covered);
    EXPECT_EQ(Open(), lacking - 1);
    EXPECT_TRUE(Messages().contains(QRegularExpression(
        QString("locali esaminati 1\\. Locali da sistemare: %1\\.\nCucina: .* W invece di ")
            .arg(Open()))))
        << Messages().toStdString();
    Do("repairAll");
    EXPECT_LT(Open(), lacking - 1);
    EXPECT_TRUE(Messages().contains(QRegularExpression("\nBiblioteca: non cambia, .*\n")))
        << Messages().toStdString();
    Do("undo");
    EXPECT_EQ(Open(), lacking - 1);
}

TEST_F(WorkbenchWindow, AnImpossibleSystemCannotBeConfirmed)
{
    bool enabled = true;
    QString consequence;
    InDialog([&](QWidget& dialog) {
        dialog.findChild<QDoubleSpinBox*>("return")->setValue(19.0);
        auto& buttons = *dialog.findChild<QDialogButtonBox*>();
        enabled = buttons.button(QDialogButtonBox::Ok)->isEnabled();
        consequence = dialog.findChild<QLabel*>("consequence")->text();
        buttons.button(QDialogButtonBox::Cancel)->click();
    });
    Do("system");
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(consequence.contains("Soggiorno")) << consequence.toStdString();
    EXPECT_FALSE(Action("undo").isEnabled());
}

TEST_F(WorkbenchWindow, CancellingTheSizingChangesNothing)
{
    // Long enough for the bar to show.
    m_document.Do(L"Ampliamento", MakeLargeBuilding(2000));
    const std::string before = FormatBuilding(m_document.Building());
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [this] {
        if (auto* const bar = m_window->findChild<QProgressDialog*>("sizing")) {
            bar->cancel();
        }
    });
    timer.start(1);
    Do("sizeAll");
    // Compared as a whole: a difference of megabytes is not worth telling.
    EXPECT_TRUE(FormatBuilding(m_document.Building()) == before);
    EXPECT_TRUE(Messages().contains("annullato"));
}

TEST_F(WorkbenchWindow, WhatPapersSayOfTheProjectIsTypedAndUndone)
{
    const CProject before = m_document.Building().project;
    const auto type = [](QWidget& dialog, const char* field, const QString& text) {
        dialog.findChild<QLineEdit*>(field)->setText(text);
    };
    const auto button = [](QWidget& dialog, QDialogButtonBox::StandardButton which) {
        return dialog.findChild<QDialogButtonBox*>()->button(which);
    };
    InDialog([&](QWidget& dialog) {
        type(dialog, "client", " Famiglia Bruni ");
        type(dialog, "designer", "");
        type(dialog, "number", "2026/014");
        type(dialog, "date", "31/2/2026");
        EXPECT_FALSE(button(dialog, QDialogButtonBox::Ok)->isEnabled());
        EXPECT_TRUE(dialog.findChild<QLabel*>("fault")->text().contains("La data"));
        type(dialog, "date", "1/3/2026");
        EXPECT_TRUE(dialog.findChild<QLabel*>("fault")->text().isEmpty());
        button(dialog, QDialogButtonBox::Ok)->click();
    });
    Do("project");
    const CProject typed{L"Famiglia Bruni", L"", L"2026/014", L"2026-03-01"};
    EXPECT_EQ(m_document.Building().project, typed);

    InDialog([&](QWidget& dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit*>("date")->text(), "01/03/2026");
        type(dialog, "designer", "Rossi");
        button(dialog, QDialogButtonBox::Cancel)->click();
    });
    Do("project");
    EXPECT_EQ(m_document.Building().project, typed);
    Do("undo");
    EXPECT_EQ(m_document.Building().project, before);
    EXPECT_TRUE(m_document.IsSaved());
}

TEST_F(WorkbenchWindow, PlanAndListMarkTheSameRooms)
{
    auto& scene = *m_window->findChild<CFloorScene*>();
    auto& list = *m_window->findChild<QTableView*>("rooms");
    Mark({{0, 2}});
    ASSERT_EQ(list.selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(list.selectionModel()->selectedRows()[0].siblingAtColumn(1).data().toString(),
              ToQt(Room(0, 2).strName));

    const int last = list.model()->rowCount() - 1;
    list.selectRow(last);
    EXPECT_EQ(m_window->findChild<QTabBar*>("floors")->currentIndex(), 1);
    ASSERT_EQ(scene.GetMarkedRooms().size(), 1u);
    EXPECT_EQ(list.model()->index(last, 1).data().toString(),
              ToQt(RoomOf(m_document.Building(), scene.GetMarkedRooms()[0]).strName));
}

TEST_F(WorkbenchWindow, TheFilterOfTheListLeavesTheMarksAlone)
{
    const auto rows = [this] {
        std::vector<QString> names;
        const auto& list = *m_window->findChild<QTableView*>("rooms");
        for (const QModelIndex& row : list.selectionModel()->selectedRows()) {
            names.push_back(row.siblingAtColumn(1).data().toString());
        }
        return names;
    };
    auto& filter = *m_window->findChild<QCheckBox*>("openOnly");
    auto& scene = *m_window->findChild<CFloorScene*>();
    const auto& model = *m_window->findChild<QTableView*>("rooms")->model();
    const std::vector<CRoomRef> marked = {{0, 3}};
    const std::vector<QString> name = {ToQt(Room(0, 3).strName)};
    Do("sizeAll");
    Mark(marked);
    ChangeSystem(55.0, 45.0, false);
    EXPECT_FALSE(filter.isChecked()) << "nothing has changed";
    EXPECT_EQ(rows(), name);

    filter.setChecked(true); // a covered room is not listed, and stays marked
    EXPECT_EQ(rows(), std::vector<QString>());
    EXPECT_EQ(scene.GetMarkedRooms(), marked);
    for (const char* const action : {"choose", "connect", "product", "size", "remove"}) {
        EXPECT_TRUE(Action(action).isEnabled()) << action;
    }
    Do("remove");
    EXPECT_TRUE(Room(0, 3).heizkoerper.empty());
    EXPECT_EQ(rows(), name);
    Do("size");
    EXPECT_EQ(StateOf(0, 3), Coverage::covered);
    EXPECT_EQ(rows(), name) << "what was worked on stays in sight";
    const int listed = model.rowCount();
    filter.setChecked(false);
    filter.setChecked(true);
    EXPECT_EQ(model.rowCount(), listed - 1);
    EXPECT_EQ(scene.GetMarkedRooms(), marked);
    filter.setChecked(false);
    EXPECT_EQ(rows(), name);
}

TEST_F(WorkbenchWindow, AllOfAListIsWhatItShows)
{
    Do("sizeAll");
    ChangeSystem(66.0, 54.0, true);
    const std::vector<CRoomRef> open = OpenRooms(m_document.Building());
    ASSERT_GT(open.size(), 2u);
    ASSERT_LT(open.size(), 17u);
    auto& list = *m_window->findChild<QTableView*>("rooms");
    list.selectAll();
    Do("remove");
    for (const CRoomRef& ref : AllRooms(m_document.Building())) {
        const CRoom& room = RoomOf(m_document.Building(), ref);
        const bool removed = std::ranges::binary_search(open, ref);
        EXPECT_EQ(room.heizkoerper.empty(), removed || room.GetLeistung() <= 0.0)
            << Utf8FromWide(room.strName);
    }
}

} // namespace workbench
