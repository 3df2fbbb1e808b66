// What the window makes of the module's dialogs.

#include "tests/workbench/window/module_user.h"
#include "tests/workbench/window/workbench_fixture.h"

namespace workbench {

namespace {

/// Controls of the selection dialog.
enum SelectionControl
{
    idLeistungSoll = 18005,
    idLeistungIst = 18011,
};

class ModuleDialogs : public WorkbenchWindow
{
protected:
    using Script = std::function<void(const CModuleUser&)>;

    ModuleDialogs()
    {
        fs::copy(fs::path(RADSEL_DATA_DIR) / "root", m_root, fs::copy_options::recursive);
        qputenv("TGA_DATA_SINGLE", QByteArray::fromStdString(m_root.string()));
    }

    /// Works on the dialog of the module that the next action opens.
    static void InModule(const Script& work)
    {
        InDialog([work](QWidget& dialog) {
            try {
                work(CModuleUser(dialog));
            } catch (const std::logic_error& error) {
                ADD_FAILURE() << error.what();
                dialog.close();
            }
        });
    }

    /// The same for the selection dialog, once its best row is chosen.
    static void InSelection(const Script& work)
    {
        InModule([work](const CModuleUser& user) {
            EXPECT_TRUE(QTest::qWaitFor([&] { return user.Text(idLeistungIst).size() > 0; }));
            work(user);
        });
    }

    const CPlacedRadiator& Radiator(std::size_t floor, std::size_t room,
                                    std::size_t radiator = 0) const
    {
        return Room(floor, room).heizkoerper.at(radiator);
    }

    CSettingOverride m_local{reference_host::kSettingLocalPath, m_folder.Path()};
    fs::path m_root = m_path.parent_path() / "radice";
};

} // namespace

TEST_F(ModuleDialogs, AnUntouchedSelectionLeavesTheRadiatorAsItIs)
{
    Do("sizeAll");
    const std::string sized = FormatBuilding(m_document.Building());
    for (const CRoomRef& ref : AllRooms(m_document.Building())) {
        const CRoom& room = RoomOf(m_document.Building(), ref);
        if (room.heizkoerper.empty()) {
            continue;
        }
        Mark({});
        m_window->findChild<QTabBar*>("floors")->setCurrentIndex(static_cast<int>(ref.nFloor));
        Mark({ref});
        QString asked;
        InSelection([&](const CModuleUser& user) {
            asked = user.Text(idLeistungSoll);
            user.Ok();
        });
        Do("choose");
        EXPECT_EQ(asked, QString::number(room.GetLeistung()));
        EXPECT_TRUE(FormatBuilding(m_document.Building()) == sized) << Utf8FromWide(room.strName);
        while (Action("undo").text() != "&Annulla: Dimensiona tutto") {
            Do("undo");
        }
    }
}

TEST_F(ModuleDialogs, OnlyTheFirstOfSeveralRadiatorsStartsWithHalfTheDemand)
{
    CBuilding building = m_document.Building();
    CRoom room = Room(0, 2);
    room.gedeckt = 0.0;
    room.heizkoerper.clear();
    const auto asked = [&] {
        ReplaceRoom(building, {0, 2}, room);
        m_document.Do(L"Locale", building);
        Mark({});
        Mark({{0, 2}});
        QString text;
        InSelection([&](const CModuleUser& user) {
            text = user.Text(idLeistungSoll);
            user.Cancel();
        });
        Do("choose");
        return text.toDouble();
    };
    EXPECT_EQ(asked(), room.bedarf);
    room.plaetze.push_back(room.plaetze.front());
    EXPECT_EQ(asked(), room.bedarf / 2.0);
}

} // namespace workbench
