// What the window makes of the module's dialogs.

#include "frame/vdi6030_start.h"
#include "host/host_prefs.h"
#include "tests/workbench/window/module_user.h"
#include "tests/workbench/window/workbench_fixture.h"
#include "tools/make_building_samples.h"
#include "workbench/plan/plan_edit.h"
#include "workbench/toolkit/qt_text.h"

#include <QMessageBox>
#include <QProgressDialog>
#include <QTableView>
#include <QTreeWidget>

namespace workbench {

namespace {

/// Controls of the selection dialog.
enum SelectionControl
{
    idLeistungSoll = 18005,
    idLeistungIst = 18011,
    idNachLeistung = 18017,
    idRaumtemperatur = 18107,
    idSystemName = 7007,
    idVorlauf = 7008,
    idRuecklauf = 7009,
    idSpeichern = 268,
    idBloecke = 18080,
    idAbstaende = 7022,
    idVentile = 7028,
    idAbstandWand = 1529,
};

/// Controls of the dialog of connections.
enum ConnectionControl
{
    idTypen = 362,
    idVentileAktiv = 18077,
    idWand = 18105,
    idBezeichnungAN = 364,
    idBezeichnungRI = 366,
    idLeereAN = 18095,
    idGrafikenAN = 18097,
    idGrafikenRI = 18098,
    idInverti = 18040,
    idPresetLinksUnten = 18080,
};

class ModuleDialogs : public WorkbenchWindow
{
protected:
    using Script = std::function<void(const CModuleUser&)>;

    ModuleDialogs()
    {
        fs::copy(fs::path(RADSEL_DATA_DIR) / "root", m_root, fs::copy_options::recursive);
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

    /// Gives radiators graphics, and the second one a distance of its own.
    void DrawValves(const std::vector<CRadiatorRef>& refs)
    {
        CBuilding building = m_document.Building();
        const wchar_t* const graphics[][2] = {{L"VALVOLA_SQUADRA_DX", L"DETENTORE_DIRITTO"},
                                              {L"VALVOLA_DIRITTA", L""}};
        for (std::size_t i = 0; i < refs.size(); ++i) {
            CPlacedRadiator radiator = RadiatorOf(building, refs[i]);
            radiator.anschluss.GrafikAN = graphics[i][0];
            radiator.anschluss.GrafikRI = graphics[i][1];
            radiator.abstandWand = i == 0 ? 0.05 : 0.08;
            ReplaceRadiator(building, refs[i], radiator);
        }
        m_document.Do(L"Simboli", building);
    }

    using Graphics = std::pair<CString, CString>;
    Graphics GraphicsOf(const CRadiatorRef& ref) const
    {
        const ConnValues& values = RadiatorOf(m_document.Building(), ref).anschluss;
        return {values.GrafikAN, values.GrafikRI};
    }

    CSettingOverride m_local{reference_host::kSettingLocalPath, m_folder.Path()};
    fs::path m_root = m_path.parent_path() / "radice";
    CEnvironmentVariable m_rootSet{"TGA_DATA_SINGLE", m_root.c_str()};
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

TEST_F(ModuleDialogs, TypingAnOutputIsNotInterrupted)
{
    Mark({{0, 1}});
    int warnings = 0;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++warnings;
            box->accept();
        }
    });
    QString typed;
    InSelection([&](const CModuleUser& user) {
        auto& filter = user.Control<QAbstractButton>(idNachLeistung);
        if (!filter.isChecked()) {
            filter.click();
        }
        watch.start(1);
        auto& output = user.Control<QLineEdit>(idLeistungSoll);
        output.selectAll();
        QTest::keyClicks(&output, "900");
        typed = output.text();
        user.Cancel();
    });
    Do("choose");
    EXPECT_EQ(warnings, 0);
    EXPECT_EQ(typed, "900");
}

TEST_F(ModuleDialogs, ExchangedPointsHaveTheNameOfTheirOwnType)
{
    Do("sizeAll");
    Mark({{0, 1}});
    const auto connect = [this](const Script& work) {
        InModule([&](const CModuleUser& user) {
            work(user);
            user.Ok();
        });
        Do("connect");
        return Radiator(0, 1).anschluss.Name;
    };
    const auto choose = [](const char* type) {
        return [=](const CModuleUser& user) { user.Choose(idTypen, type); };
    };
    EXPECT_EQ(connect(choose("Opposti in basso, mandata a sinistra")),
              L"Opposti in basso, mandata a sinistra");
    EXPECT_EQ(connect([](const CModuleUser& user) { user.Click(idInverti); }),
              L"Opposti in basso, mandata a destra");
    EXPECT_EQ(connect([](const CModuleUser&) {}), L"Opposti in basso, mandata a destra");
    connect(choose("Stesso lato, a sinistra"));
    EXPECT_EQ(connect([](const CModuleUser& user) { user.Click(idInverti); }), L"")
        << "the list has no type with its flow below";
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
    room.gedeckt = room.bedarf + 1.0;
    EXPECT_EQ(asked(), 0.0) << "what is covered already asks for nothing";
}

TEST_F(ModuleDialogs, ARoomTemperatureOfTheSelectionIsToldAndStaysThere)
{
    Do("sizeAll");
    Mark({{0, 1}});
    const CRoom before = Room(0, 1);
    ASSERT_EQ(before.raumtemperatur, 20.0);
    InSelection([](const CModuleUser& user) {
        user.Type(idRaumtemperatur, "24");
        user.Ok();
    });
    Do("choose");
    EXPECT_EQ(Room(0, 1).raumtemperatur, 20.0);
    EXPECT_EQ(Room(0, 1).heizkoerper[0].daten.Leistung, before.heizkoerper[0].daten.Leistung);
    EXPECT_TRUE(Messages().contains("Soggiorno: la temperatura di 24 °C vale solo nel dialogo"))
        << Messages().toStdString();
}

TEST_F(ModuleDialogs, TheConnectionDialogShowsTheValvesDrawnAndKeepsThem)
{
    Do("sizeAll");
    const CRadiatorRef ref{{0, 1}, 0};
    DrawValves({ref});
    Mark({{0, 1}});
    const Graphics drawn{L"VALVOLA_SQUADRA_DX", L"DETENTORE_DIRITTO"};
    ASSERT_EQ(GraphicsOf(ref), drawn);
    const std::tuple<const char*, Script, Graphics> steps[] = {
        {"untouched", [](const CModuleUser&) {}, drawn},
        {"one of them",
         [](const CModuleUser& user) { user.Choose(idGrafikenRI, "VALVOLA_DIRITTA"); },
         {drawn.first, L"VALVOLA_DIRITTA"}},
        {"none",
         [](const CModuleUser& user) { user.Choose(idGrafikenAN, "(nessuno)"); },
         {L"", L"VALVOLA_DIRITTA"}},
        {"one again",
         [](const CModuleUser& user) { user.Choose(idGrafikenAN, "VALVOLA_SQUADRA_DX"); },
         {drawn.first, L"VALVOLA_DIRITTA"}},
        {"the valve goes",
         [](const CModuleUser& user) { user.Click(idLeereAN); },
         {L"", L"VALVOLA_DIRITTA"}},
    };
    for (const auto& [what, work, expected] : steps) {
        Graphics shown;
        const Graphics before = GraphicsOf(ref);
        InModule([&, &act = work](const CModuleUser& user) {
            shown = {FromQt(user.Chosen(idGrafikenAN)), FromQt(user.Chosen(idGrafikenRI))};
            act(user);
            user.Ok();
        });
        Do("connect");
        EXPECT_EQ(shown.first, before.first.empty() ? L"(nessuno)" : before.first) << what;
        EXPECT_EQ(shown.second, before.second) << what;
        EXPECT_EQ(GraphicsOf(ref), expected) << what;
    }
    InModule([](const CModuleUser& user) {
        const auto name = [&](int id) {
            return user.Control<QWidget>(id).property("text").toString();
        };
        EXPECT_EQ(name(idBezeichnungAN), "");
        EXPECT_NE(name(idBezeichnungRI), "") << "the other valve is still there";
        user.Cancel();
    });
    Do("connect");
}

TEST_F(ModuleDialogs, WhatIsSwitchedOffStaysOnEachOfSeveralRadiators)
{
    Do("sizeAll");
    const CRadiatorRef refs[] = {{{0, 1}, 0}, {{0, 3}, 0}};
    DrawValves({refs[0], refs[1]});
    const Graphics drawn[] = {GraphicsOf(refs[0]), GraphicsOf(refs[1])};
    Mark({{0, 1}, {0, 3}});
    InModule([&](const CModuleUser& user) {
        user.Click(idVentileAktiv);
        user.Click(idPresetLinksUnten);
        user.Ok();
    });
    Do("connect");
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(GraphicsOf(refs[i]), drawn[i]);
        EXPECT_EQ(RadiatorOf(m_document.Building(), refs[i]).anschluss.PosAN,
                  (ConnVector{-0.5, 0.0, -0.5}));
        EXPECT_EQ(RadiatorOf(m_document.Building(), refs[i]).abstandWand, i == 0 ? 0.05 : 0.08);
    }
    InModule([&](const CModuleUser& user) {
        user.Type(idWand, "0.12");
        user.Ok();
    });
    Do("connect");
    for (const CRadiatorRef& ref : refs) {
        EXPECT_EQ(RadiatorOf(m_document.Building(), ref).abstandWand, 0.12);
    }
}

TEST_F(ModuleDialogs, AnotherSystemInTheSelectionIsTakenForTheBuildingOrChosenAgain)
{
    using enum CPrompts::Answer;
    Do("sizeAll");
    const std::string sized = FormatBuilding(m_document.Building());
    const auto storeSystem = [](const char* supply, const char* back) {
        return [=](const CModuleUser& user) {
            user.Type(idSystemName, "Prova");
            user.Type(idVorlauf, supply);
            user.Type(idRuecklauf, back);
            user.Click(idSpeichern);
            user.Ok();
        };
    };
    Mark({{0, 1}});
    m_answers = {cancel};
    InSelection(storeSystem("45", "35"));
    Do("choose");
    EXPECT_TRUE(FormatBuilding(m_document.Building()) == sized);
    EXPECT_TRUE(m_question.contains("45/35")) << m_question.toStdString();
    EXPECT_TRUE(m_question.contains("70/55")) << m_question.toStdString();

    QString again;
    m_answers = {no};
    InSelection([&](const CModuleUser& user) {
        InSelection([&](const CModuleUser& second) {
            again = second.Text(idVorlauf);
            second.Ok();
        });
        storeSystem("45", "35")(user);
    });
    Do("choose");
    EXPECT_EQ(again, "70");
    EXPECT_TRUE(FormatBuilding(m_document.Building()) == sized);

    m_answers = {yes};
    m_nQuestions = 0;
    InSelection(storeSystem("45", "35"));
    Do("choose");
    EXPECT_EQ(m_nQuestions, 1);
    EXPECT_EQ(m_document.Building().system, (CHeatingSystem{45.0, 35.0}));
    EXPECT_TRUE(m_question.contains(QString("sistemare sono %1 (ora 2)").arg(Open())))
        << m_question.toStdString();
    Do("undo");
    EXPECT_TRUE(FormatBuilding(m_document.Building()) == sized) << "one step";

    m_answers = {no};
    InSelection(storeSystem("45", "19")); // colder than the rooms
    Do("choose");
    EXPECT_TRUE(m_question.contains("non sono possibili")) << m_question.toStdString();
    EXPECT_TRUE(FormatBuilding(m_document.Building()) == sized);
}

TEST_F(ModuleDialogs, TheBlockShownIsTheBlockDrawn)
{
    Do("sizeAll");
    const CRoomRef rooms[] = {{0, 1}, {0, 3}};
    const CString own = Radiator(0, 1).strBlock;
    ASSERT_FALSE(own.empty());
    const auto choose = [&](const CRoomRef& room, const char* block) {
        QString shown;
        Mark({room});
        InSelection([&](const CModuleUser& user) {
            shown = user.Chosen(idBloecke);
            if (block != nullptr) {
                user.Choose(idBloecke, block);
            }
            user.Ok();
        });
        Do("choose");
        return FromQt(shown);
    };
    for (const CRoomRef& room : rooms) { // the same one twice in a row
        EXPECT_EQ(choose(room, "RAD_CONVETTORE_PIANTA"), own);
        EXPECT_EQ(Radiator(0, room.nRoom).strBlock, L"RAD_CONVETTORE_PIANTA");
    }
    EXPECT_EQ(choose({0, 2}, nullptr), Radiator(0, 2).strBlock);
    choose(rooms[0], "(nessuno)");
    EXPECT_EQ(Radiator(0, 1).strBlock, L"");
    EXPECT_EQ(choose(rooms[0], nullptr), L"(nessuno)");
    EXPECT_EQ(Radiator(0, 1).strBlock, L"");
    EXPECT_EQ(choose({0, 2}, nullptr), Radiator(0, 2).strBlock);
}

TEST_F(ModuleDialogs, RadiatorsTakeDistancesAndConnectionConfirmedInTheSelection)
{
    Do("sizeAll");
    const ConnVector left{-0.5, 0.0, -0.5};
    QString shown;
    Mark({{0, 1}});
    InSelection([&](const CModuleUser& user) {
        InModule([&](const CModuleUser& distances) {
            shown = distances.Text(idAbstandWand);
            distances.Type(idAbstandWand, "0.08");
            distances.Ok();
        });
        user.Click(idAbstaende);
        InModule([&](const CModuleUser& valves) {
            valves.Click(idPresetLinksUnten);
            valves.Click(idLeereAN);
            valves.Ok();
        });
        user.Click(idVentile);
        user.Ok();
    });
    Do("choose");
    EXPECT_EQ(shown, "0.050");
    const CPlacedRadiator changed = Radiator(0, 1);
    EXPECT_EQ(changed.abstandWand, 0.08);
    EXPECT_EQ(changed.anschluss.PosAN, left);
    EXPECT_FALSE(changed.ventile.vorlauf);
    EXPECT_TRUE(changed.ventile.ruecklauf);

    const std::string before = FormatBuilding(m_document.Building());
    const auto untouched = [](const CModuleUser& user) { user.Ok(); };
    Mark({{0, 2}});
    InSelection(untouched);
    Do("choose");
    EXPECT_TRUE(FormatBuilding(m_document.Building()) == before) << "nothing was confirmed for it";

    Do("remove");
    InSelection(untouched);
    Do("choose");
    const CPlacedRadiator& fresh = Radiator(0, 2);
    EXPECT_EQ(fresh.abstandWand, 0.08);
    EXPECT_EQ(fresh.anschluss.PosAN, left);
    EXPECT_TRUE(fresh.ventile.vorlauf) << "the building tells which valves";
}

TEST_F(ModuleDialogs, ACrashInTheSelectionLeavesTheStartValuesThatAreKept)
{
    Do("sizeAll");
    const fs::path store = fs::path(m_folder.Path()) / "Vdi6030Start.def";
    VDI6030START kept;
    kept.AbstandWand = 0.07;
    kept.Anschluss.Name = L"Proprio";
    ASSERT_TRUE(WriteDefFile_VDI6030START(&kept, false));
    const std::string before = BytesOf(store);
    Mark({{0, 1}});
    std::string open;
    InSelection([&](const CModuleUser& user) {
        open = BytesOf(store);
        user.Ok();
    });
    Do("choose");
    EXPECT_TRUE(open == before);
    const VDI6030START* const after = ReadDefFile_VDI6030START(false);
    ASSERT_NE(after, nullptr);
    EXPECT_EQ(after->AbstandWand, 0.07);
    EXPECT_EQ(after->Anschluss.Name, L"Proprio");
    EXPECT_EQ(after->SystemVorlauf, 70) << "OK stores the system";
}

TEST_F(ModuleDialogs, ARoomWithoutAProductKeepsNoneIfNoneIsPicked)
{
    CBuilding building = m_document.Building();
    SetProduct(building, {CRoomRef{0, 0}}, {});
    m_document.Do(L"Nessun prodotto", building);
    m_window->findChild<QTableView*>("rooms")->selectRow(0);
    InModule([](const CModuleUser& user) { user.Ok(); });
    Do("product");
    EXPECT_EQ(m_nQuestions, 0);
    EXPECT_EQ(m_document.History().GetUndoText(), L"Nessun prodotto");
}

TEST_F(ModuleDialogs, CancellingTheSizingLeavesTheProductAsWell)
{
    m_document.Do(L"Ampliamento", MakeLargeBuilding(2000));
    const std::string before = FormatBuilding(m_document.Building());
    m_window->findChild<QTableView*>("rooms")->selectAll();
    m_answers = {CPrompts::Answer::yes}; // with the new product at once
    InModule([](const CModuleUser& user) {
        auto& tree = user.Control<QTreeWidget>(18000);
        QTreeWidgetItem* const product = tree.currentItem();
        ASSERT_NE(product, nullptr);
        QTreeWidgetItem* const other = tree.itemBelow(product);
        tree.setCurrentItem(other != nullptr ? other : tree.itemAbove(product));
        user.Ok();
    });
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [this] {
        if (auto* const bar = m_window->findChild<QProgressDialog*>("sizing")) {
            bar->cancel();
        }
    });
    timer.start(1);
    Do("product");
    EXPECT_EQ(m_nQuestions, 1);
    EXPECT_TRUE(FormatBuilding(m_document.Building()) == before);
    EXPECT_TRUE(Messages().contains("annullato")) << Messages().toStdString();
}

TEST_F(ModuleDialogs, SizingLeavesWhatWasPickedByHandUnlessTheUserSaysOtherwise)
{
    using enum CPrompts::Answer;
    Do("sizeAll");
    EXPECT_EQ(m_nQuestions, 0);
    const double sized = Radiator(0, 1).daten.Leistung;
    Mark({{0, 1}});
    InSelection([&](const CModuleUser& user) {
        user.Type(idLeistungSoll, "500");
        user.Ok();
    });
    Do("choose");
    const double picked = Radiator(0, 1).daten.Leistung;
    ASSERT_LT(picked, sized);

    const std::string before = FormatBuilding(m_document.Building());
    for (const CPrompts::Answer answer : {yes, cancel}) {
        m_answers = {answer};
        Do("sizeAll");
        EXPECT_TRUE(m_answers.empty()) << "it was asked";
        EXPECT_TRUE(FormatBuilding(m_document.Building()) == before);
    }
    Do("save");
    m_document.Open(m_path.wstring());
    m_answers = {no};
    Do("sizeAll");
    EXPECT_TRUE(m_answers.empty()) << "the file tells it";
    EXPECT_EQ(Radiator(0, 1).daten.Leistung, sized);
    m_nQuestions = 0;
    Do("sizeAll");
    EXPECT_EQ(m_nQuestions, 0) << "nothing of the user's own is left";
}

} // namespace workbench
