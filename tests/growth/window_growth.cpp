// The window of the workbench over a floor of many rooms: its docks, and what the user does there.

#include "tests/growth/floor.h"
#include "tests/growth/growth.h"

#include "platform/encoding.h"
#include "tests/support/environment_variable.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"
#include "uikit/application.h"
#include "workbench/drawing/plan_view.h"
#include "workbench/window/floor_scene.h"
#include "workbench/window/message_pane.h"
#include "workbench/window/room_dialog.h"
#include "workbench/window/state_notices.h"
#include "workbench/window/system_dialog.h"
#include "workbench/window/workbench_window.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include <optional>

using namespace reference_host;

namespace workbench {

namespace {

/// The building after a change to one room.
CBuilding Changed(CBuilding building)
{
    CRoom room = RoomOf(building, {0, 0});
    room.bedarf += 100.0;
    ReplaceRoom(building, {0, 0}, std::move(room));
    return building;
}

void Finish()
{
    QApplication::sendPostedEvents();
}

class CWindow
{
public:
    explicit CWindow(int size)
    {
        EnsureApplication();
        document.BeginNew(Floor(size));
        CPrompts prompts;
        prompts.ask = [](auto&&...) { return CPrompts::Answer::yes; };
        prompts.tell = [](auto&&...) {};
        window = std::make_unique<CWorkbenchWindow>(document, CDrawingBlocks(), prompts);
        window->resize(1000, 500);
        window->show();
        Finish();
    }

    template <class T>
    T& The(const char* name) const
    {
        return *window->findChild<T*>(name);
    }

    const CTempFolder folder;
    CPlanDocument document{nullptr};
    std::unique_ptr<CWorkbenchWindow> window;

private:
    CEnvironmentVariable m_config{"XDG_CONFIG_HOME", folder.Root().c_str()};
    CSettingOverride m_catalogues{kSettingHKDir, WideFromUtf8(RADSEL_DATA_DIR "/catalogues")};
    CSettingOverride m_valves{kSettingVEDir, folder.Path()};
    CSettingOverride m_records{kSettingDefFolder, folder.Path()};
    CSettingOverride m_local{kSettingLocalPath, folder.Path()};
};

void ChangeAndUndo(CWindow& window)
{
    window.document.Do(L"Modifica", Changed(window.document.Building()));
    Finish();
    window.document.Undo();
    Finish();
}

void MarkAll(CWindow& window)
{
    QTest::keyClick(&window.The<CPlanView>("plan"), Qt::Key_A, Qt::ControlModifier);
    Finish();
}

void WorkInList(CWindow& window)
{
    QTest::keyClicks(&window.The<QLineEdit>("find"), "x");
    window.The<QTableView>("rooms").sortByColumn(2, Qt::DescendingOrder);
    Finish();
    window.The<QCheckBox>("openOnly").click();
    Finish();
}

/// The window opens, and what the user does there, with what is painted for that.
void WorkInWindow(int size, CWorkCount& count)
{
    std::optional<CWindow> window;
    count.Of([&] { window.emplace(size); }, "opened");
    count.Of([&] { ChangeAndUndo(*window); }, "after a change");
    count.Of([&] { MarkAll(*window); }, "with all rooms marked");
    count.Of([&] { WorkInList(*window); }, "with another list");
    count.Of([&] { window.reset(); }, "closed");
}

/// Dialogs over the building, with as many systems that the user has stored.
void WorkInDialogs(int size, CWorkCount& count)
{
    EnsureApplication();
    const CTempFolder root;
    root.WriteBytes("HEIZUNG/CmbData.txt", "[VDI6030_HS]\r\n" + Repeated(size, [](int i) {
                                               return "Sistema " + std::to_string(1000 + i) +
                                                      " (75/65)|";
                                           }) + "\r\n");
    const CSettingOverride setting(kSettingServerPath, root.Path());
    const CBuilding building = Tower(size);
    const auto finish = [](QDialog& dialog) {
        dialog.show();
        Finish();
    };
    count.Of([&] {
        CSystemDialog system(building, nullptr);
        finish(system);
        Require(system.findChild<QComboBox*>("systems")->count() > size);
        CRoomDialog room(building, 0, nullptr);
        finish(room);
    });
}

void Tell(int size, CWorkCount& count)
{
    EnsureApplication();
    const CPlanHistory history(Floor(1));
    CMessagePane pane;
    std::vector<CNotice> notices;
    for (int i = 0; i < size; ++i) {
        notices.push_back({"Un radiatore non basta.", "Locale " + QString::number(1000 + i)});
    }
    count.Of(
        [&] {
            pane.Add(notices, history.GetCurrentId());
            pane.ShowFor(history);
        },
        "at once");
    count.Of(
        [&] {
            for (const CNotice& notice : notices) {
                pane.Add({notice}, {});
            }
        },
        "one by one");
    const CBuilding building = Floor(size);
    CStateNotices states;
    count.Of(
        [&] {
            states.TakeNew(building);
            Require(states.TakeNew(building).empty());
        },
        "of states");
}

void ShowFloor(int size, CWorkCount& count)
{
    EnsureApplication();
    const CBuilding building = Floor(size);
    const CBuilding changed = Changed(building);
    CFloorScene scene;
    CPlanView view(&scene);
    view.resize(1200, 800);
    count.Of([&] {
        scene.ShowFloor(building, 0);
        scene.ShowFloor(changed, 0);
        scene.ShowFloor(building, 1);
    });
}

} // namespace

} // namespace workbench

std::vector<CGrowthCase> WindowCases()
{
    using namespace workbench;
    return {
        {"Workbench", "rooms", 20, WorkInWindow},
        {"DrawnFloor", "rooms", 10, ShowFloor},
        {"BuildingDialogs", "rooms and systems", 30, WorkInDialogs},
        {"Messages", "messages", 20, Tell},
    };
}
