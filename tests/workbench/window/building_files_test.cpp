// Files that the window reads and writes: buildings, exports, catalogues.

#include "tests/workbench/window/workbench_fixture.h"

#include <tuple>

using namespace reference_host;

namespace workbench {

using BuildingFiles = WorkbenchWindow;

TEST_F(BuildingFiles, AValveFileCutShortIsToldAndChangesNothing)
{
    const fs::path valves = fs::path(m_folder.Path()) / "valvole";
    fs::copy(fs::path(RADSEL_DATA_DIR) / "valves", valves, fs::copy_options::recursive);
    for (const fs::directory_entry& maker : fs::directory_iterator(valves)) {
        std::ofstream(maker.path() / "ha.tga", std::ios::app) << "100;\n";
    }
    const CSettingOverride damaged(kSettingVEDir, valves.wstring());
    Do("sizeAll");
    const std::string before = FormatBuilding(m_document.Building());
    const CRoom& room = Room(0, 1);
    ASSERT_TRUE(!room.heizkoerper.empty() && room.heizkoerper[0].ventile.vorlauf);
    Mark({{0, 1}});
    Do("connect");
    EXPECT_EQ(FormatBuilding(m_document.Building()), before);
    EXPECT_TRUE(Messages().contains("ha.tga: riga ")) << Messages().toStdString();
}

TEST_F(BuildingFiles, ADamagedValveFileIsToldWhenTheBuildingOpensAndTheRestWorks)
{
    m_window->Start(m_path.wstring(), {});
    EXPECT_EQ(Messages(), "") << "the sample's files are sound";
    const fs::path valves = fs::path(m_folder.Path()) / "valvole";
    fs::copy(fs::path(RADSEL_DATA_DIR) / "valves", valves, fs::copy_options::recursive);
    std::ofstream(valves / "Fontespada" / "ha.tga") << "010;1;Prova;\n";
    std::ofstream(valves / "M\u00f6hrental" / "ha.tga", std::ios::app) << "110;\n";
    fs::remove(valves / "Ostervliet" / "ha.tga");
    const CSettingOverride damaged(kSettingVEDir, valves.wstring());
    m_window->Start(m_path.wstring(), {});
    EXPECT_TRUE(Messages().contains("Fontespada/ha.tga: riga 1: ")) << Messages().toStdString();
    EXPECT_TRUE(Messages().contains("hrental/ha.tga: riga ")) << Messages().toStdString();
    EXPECT_FALSE(Messages().contains("Ostervliet")) << "no file is no damaged one";
    Do("sizeAll");
    EXPECT_EQ(Open(), 2u);
}

TEST_F(BuildingFiles, SavesAndOpensAgainAndAsksBeforeWorkIsLost)
{
    Do("sizeAll");
    const std::string sized = FormatBuilding(m_document.Building());
    Do("open"); // the answer is to stay
    EXPECT_EQ(m_nQuestions, 1);
    EXPECT_EQ(FormatBuilding(m_document.Building()), sized);
    EXPECT_FALSE(m_window->close());

    Do("save");
    EXPECT_FALSE(m_window->isWindowModified());
    EXPECT_EQ(BytesOf(m_path), sized);
    EXPECT_FALSE(m_recovery.Read());

    m_answerPath = (m_path.parent_path() / "rotto.json").wstring();
    std::ofstream(fs::path(*m_answerPath)) << "{ \"version\": 2,\n";
    Do("open");
    EXPECT_TRUE(m_told.contains("rotto.json")) << m_told.toStdString();
    EXPECT_EQ(FormatBuilding(m_document.Building()), sized);
    EXPECT_EQ(m_document.Path(), m_path.wstring());

    m_answerPath = m_path.wstring();
    Do("undo");
    m_answer = CPrompts::Answer::no;
    Do("open");
    EXPECT_EQ(FormatBuilding(m_document.Building()), sized);
    EXPECT_FALSE(m_document.History().CanUndo());
}

TEST_F(BuildingFiles, AFailedSaveKeepsFileAndWork)
{
    Do("sizeAll");
    m_answerPath = (m_path.parent_path() / "manca" / "casa.json").wstring();
    Do("saveAs");
    EXPECT_TRUE(m_told.contains("non è stato salvato")) << m_told.toStdString();
    EXPECT_EQ(m_tone, CPrompts::Tone::error);
    EXPECT_TRUE(m_window->isWindowModified());
    EXPECT_EQ(m_document.Path(), m_path.wstring());
    m_answer = CPrompts::Answer::yes;
    EXPECT_TRUE(m_window->close());
    EXPECT_EQ(BytesOf(m_path), FormatBuilding(m_document.Building()));
}

TEST_F(BuildingFiles, AsksBeforeItSavesOverWhatSomebodyElseWrote)
{
    Do("sizeAll");
    const std::string sized = FormatBuilding(m_document.Building());
    std::ofstream(m_path) << "altrui";
    m_answer = CPrompts::Answer::cancel;
    Do("save");
    EXPECT_EQ(m_nQuestions, 1);
    EXPECT_EQ(BytesOf(m_path), "altrui");
    EXPECT_TRUE(m_window->isWindowModified());

    m_answer = CPrompts::Answer::no; // replace it
    Do("save");
    EXPECT_EQ(BytesOf(m_path), sized);
    Do("undo");
    Do("save");
    EXPECT_EQ(m_nQuestions, 2) << "its own file, as it wrote it";

    std::ofstream(m_path) << "altrui";
    m_answer = CPrompts::Answer::yes; // beside it
    m_answerPath = (m_path.parent_path() / "accanto.json").wstring();
    Do("redo");
    Do("save");
    EXPECT_EQ(BytesOf(m_path), "altrui");
    EXPECT_EQ(BytesOf(m_path.parent_path() / "accanto.json"), sized);
    EXPECT_EQ(m_document.Path(), *m_answerPath);

    fs::remove(*m_answerPath); // nothing is there to be lost
    Do("undo");
    Do("save");
    EXPECT_EQ(m_nQuestions, 3);
    EXPECT_FALSE(m_window->isWindowModified());
}

TEST_F(BuildingFiles, TheSecondWindowOnABuildingOnlyReadsIt)
{
    CPlanDocument document(nullptr);
    const auto second = MakeWindow(document);
    const auto action = [&](const char* name) { return second->findChild<QAction*>(name); };
    m_answerPath = m_path.wstring();
    action("open")->trigger();
    EXPECT_TRUE(second->windowTitle().contains("sola lettura"))
        << second->windowTitle().toStdString();
    EXPECT_FALSE(action("save")->isEnabled());
    EXPECT_TRUE(action("save")->text().contains("sola lettura"));
    EXPECT_TRUE(second->findChild<QTextEdit*>("messages")->toPlainText().contains("è aperto da"));

    const std::string before = BytesOf(m_path);
    action("sizeAll")->trigger();
    m_answer = CPrompts::Answer::yes;
    action("saveAs")->trigger(); // to the same file
    EXPECT_TRUE(m_told.contains("casa.json è aperto da")) << m_told.toStdString();
    EXPECT_EQ(BytesOf(m_path), before);
    m_answerPath = (m_path.parent_path() / "copia.json").wstring();
    EXPECT_TRUE(second->close()) << "saving goes to another file";
    EXPECT_EQ(BytesOf(*m_answerPath), FormatBuilding(document.Building()));
    EXPECT_FALSE(second->windowTitle().contains("sola lettura"));
    EXPECT_TRUE(action("save")->isEnabled());

    EXPECT_FALSE(m_window->windowTitle().contains("sola lettura"));
    m_answerPath = (m_path.parent_path() / "terza.json").wstring();
    Do("saveAs"); // leaves the first file to others
    document.Open(m_path.wstring());
    EXPECT_FALSE(document.IsReadOnly());
}

TEST_F(BuildingFiles, AFileThatMayOnlyBeReadSaysSoAndNothingElse)
{
    const auto all = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    fs::permissions(m_path, all, fs::perm_options::remove);
    m_window->Start(m_path.wstring(), {});
    EXPECT_TRUE(m_window->windowTitle().contains("sola lettura"));
    EXPECT_FALSE(Action("save").isEnabled());
    EXPECT_EQ(Messages(), "");
    m_answerPath = (m_path.parent_path() / "copia.json").wstring();
    Do("saveAs");
    EXPECT_FALSE(m_window->windowTitle().contains("sola lettura"));
    EXPECT_TRUE(Action("save").isEnabled());
}

TEST_F(BuildingFiles, ADamagedBuildingAtTheStartLeavesAWindow)
{
    std::ofstream(m_path.parent_path() / "rotto.json") << "{\n\"version\": 2\n\"name\": 1 }";
    CPlanDocument document(nullptr);
    m_window = MakeWindow(document);
    m_window->Start((m_path.parent_path() / "rotto.json").wstring(), {});
    EXPECT_TRUE(Messages().contains("rotto.json: riga 3")) << Messages().toStdString();
    for (const char* action : {"save", "saveAs", "exportPdf", "sizeAll", "system", "undo"}) {
        EXPECT_FALSE(Action(action).isEnabled()) << action;
    }
    m_answerPath = (m_path.parent_path() / "copia.json").wstring();
    fs::copy_file(m_path, *m_answerPath);
    Do("open");
    EXPECT_TRUE(m_window->windowTitle().contains("Villa dei Tigli"));
    EXPECT_TRUE(Action("save").isEnabled());
}

TEST_F(BuildingFiles, ExportsWhatStandsInThePlan)
{
    Do("sizeAll");
    const std::tuple<const char*, const char*, std::string> exports[] = {
        {"exportCsv", "distinta.csv", "\xef\xbb\xbfPiano;Locale;"},
        {"exportXlsx", "distinta.xlsx", "PK"},
        {"exportJson", "distinta.json", "{"},
        {"exportPdf", "progetto.pdf", "%PDF-"},
        {"exportDxf", "pianta.dxf", "0\r\nSECTION\r\n"},
    };
    for (const auto& [action, file, begin] : exports) {
        const fs::path path = m_path.parent_path() / file;
        m_answerPath = path.wstring();
        Do(action);
        EXPECT_EQ(BytesOf(path).find(begin), 0u) << action;
        m_told.clear();
        m_answerPath = (m_path.parent_path() / "manca" / file).wstring();
        Do(action);
        EXPECT_TRUE(m_told.contains("non è stato scritto")) << action;
    }
}

TEST_F(BuildingFiles, AsksBeforeAFileWhoseSuffixWasNotTypedIsReplaced)
{
    const std::pair<const char*, const char*> writers[] = {
        {"exportCsv", "altra.csv"},
        {"exportXlsx", "altra.xlsx"},
        {"exportJson", "altra-distinta.json"},
        {"exportPdf", "altra.pdf"},
        {"exportDxf", "altra.dxf"},
        {"saveAs", "altra.json"},
    };
    m_answerPath = (m_path.parent_path() / "altra").wstring();
    for (const auto& [action, file] : writers) {
        m_nQuestions = 0;
        std::ofstream(m_path.parent_path() / file) << "altrui";
        m_answer = CPrompts::Answer::no;
        Do(action);
        EXPECT_EQ(BytesOf(m_path.parent_path() / file), "altrui") << action;
        EXPECT_EQ(m_document.Path(), m_path.wstring());
        m_answer = CPrompts::Answer::yes;
        Do(action);
        EXPECT_NE(BytesOf(m_path.parent_path() / file), "altrui") << action;
        EXPECT_EQ(m_nQuestions, 2) << action;
    }
}

TEST_F(BuildingFiles, NoExportTakesThePlaceOfTheBuilding)
{
    const std::string before = BytesOf(m_path);
    m_answerPath = m_path.wstring();
    for (const char* action : {"exportCsv", "exportXlsx", "exportJson", "exportPdf", "exportDxf"}) {
        m_told.clear();
        Do(action);
        EXPECT_TRUE(m_told.contains("casa.json")) << action;
        EXPECT_EQ(BytesOf(m_path), before) << action;
    }
}

TEST_F(BuildingFiles, AnotherCatalogueFolderTellsItsDamagedFileAndServesTheRest)
{
    const fs::path catalogues = m_path.parent_path() / "listini";
    fs::copy(fs::path(RADSEL_DATA_DIR) / "catalogues", catalogues, fs::copy_options::recursive);
    std::ofstream(catalogues / "Altovico" / "hk.tga") << "100;rotto\n";
    m_answerPath = catalogues.wstring();
    Do("catalogues");
    EXPECT_TRUE(Messages().contains(QRegularExpression("Altovico/hk\\.tga: riga 1: ")))
        << Messages().toStdString();
    Do("sizeAll");
    EXPECT_EQ(Room(0, 0).strHersteller, L"Altovico");
    EXPECT_TRUE(Room(0, 0).heizkoerper.empty());
    EXPECT_EQ(Room(0, 1).heizkoerper.size(), 1u);
}

} // namespace workbench
