#include "dialogs/platzierung.h"

#include "common/arbeits_ordner.h"
#include "common/platzierung_datei.h"
#include "dialogs/resizing_dialog.h"
#include "platform/environment.h"
#include "tests/dialog_support/dialog_test.h"
#include "tests/src/common/lines.h"
#include "tests/support/file_size_limit.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

using namespace reference_host;

namespace {

constexpr char kDatei[] = "posti.txt";
constexpr char16_t kByteOrderMark[] = {0xFEFF, 0};

const DialogTemplate kFest = {7201, L"Fisso", 120, 60, frameFixed, {}};
const DialogTemplate kVariabel = {7202, L"Variabile", 120, 60, frameResizable, {}};

/// A dialog that comes back where it was.
template <class Base>
class CPlatzDialog : public Base
{
public:
    using Base::Base;

    int m_alpha = kDeckend;
    bool m_ohneGroesse = false;

protected:
    bool OnInitDialog() override
    {
        Base::OnInitDialog();
        m_resourceSize = {this->GetWindowRect().Width(), this->GetWindowRect().Height()};
        PlatzierungLaden(*this, L"CHIAVE", &m_alpha, m_ohneGroesse);
        return true;
    }

    void OnOK() override
    {
        PlatzierungSpeichern(*this, L"CHIAVE", &m_alpha);
        Base::OnOK();
    }

public:
    CSize m_resourceSize;
};

using CFesterDialog = CPlatzDialog<CBrushedDialog>;
using CVariablerDialog = CPlatzDialog<CResizingDialog>;

class Platzierung : public CDialogTest
{
protected:
    /// Opens a dialog, has the work done, and leaves it with OK or Annulla.
    template <class Dialog>
    void Open(Dialog& dialog, const std::function<void()>& work, int end = kIdCancel)
    {
        m_driver.WhenOpens(dialog.GetTemplateId(), [&](CDialogUser& user) {
            work();
            user.Press(end == kIdOk ? Qt::Key_Return : Qt::Key_Escape);
        });
        EXPECT_EQ(dialog.DoModal(), end);
    }

    /// The place at which a dialog comes up with that file.
    template <class Dialog>
    CRect Opened(Dialog& dialog, const std::string& file)
    {
        CRect place;
        m_folder.WriteBytes(kDatei, file);
        Open(dialog, [&] { place = dialog.GetWindowRect(); });
        return place;
    }

    std::vector<CString> Lines() const
    {
        const CStringArray lines = LinesIn(m_folder.Path(kDatei));
        return {lines.begin(), lines.end()};
    }

    CSettingOverride m_name{kSettingWinposFile, L"posti.txt"};
};

TEST_F(Platzierung, TheFirstSaveMakesTheFileTheSecondOneKeepsThePlace)
{
    const CRect place = {120, 70, 620, 480};
    CVariablerDialog dialog(kVariabel);
    dialog.m_alpha = 200;
    Open(
        dialog, [&] { dialog.MoveWindow(place); }, kIdOk);
    EXPECT_EQ(m_folder.ReadBytes(kDatei).size(), sizeof kByteOrderMark[0]);

    Open(
        dialog, [&] { dialog.MoveWindow(place); }, kIdOk);
    EXPECT_EQ(Lines(), (std::vector<CString>{L"CHIAVE|120|620|70|480|255|"}))
        << "alpha became 255 as there was no file at the opening of the first one";

    Open(dialog, [&] {
        EXPECT_EQ(dialog.GetWindowRect(), place);
        dialog.MoveWindow(place.MovedBy(9, 9));
    });
    EXPECT_EQ(Lines().front(), L"CHIAVE|120|620|70|480|255|") << "Annulla keeps nothing";
}

TEST_F(Platzierung, OpacityIsTakenFromTheLineWithinItsLimits)
{
    const std::string place = "CHIAVE|10|400|20|300|";
    // What the file holds, if there is one, and the opacity before and after.
    const std::tuple<std::optional<std::string>, int, int> cases[] = {
        {{}, 120, 255},
        {"", 120, 120},
        {"", 99, 255},
        {"chiave|10|400|20|300|150|\n", 120, 120},
        {place + "\n", 120, 120},
        {place + "99|\n", 120, 255},
        {place + "100|\n", 255, 100},
        {place + "255|\n", 120, 255},
        {place + "256|\n", 120, 255},
        {place + "-3|\n", 120, 255},
        {"CHIAVE|10|400|20|\n" + place + "150|\n" + place + "160|\n", 255, 150},
    };
    for (const auto& [file, before, after] : cases) {
        SCOPED_TRACE(file.value_or("no file"));
        std::filesystem::remove(m_folder.Root() / kDatei);
        if (file) {
            m_folder.WriteBytes(kDatei, *file);
        }
        CFesterDialog dialog(kFest);
        dialog.m_alpha = before;
        Open(dialog, [&, expected = after] { EXPECT_EQ(dialog.GetAlpha(), expected); });
        EXPECT_EQ(dialog.m_alpha, after);
    }
}

TEST_F(Platzierung, AFixedDialogKeepsItsSizeAndNoneFallsOffTheRight)
{
    using Corner = std::pair<int, int>;
    const auto inOwnSize = [this](auto& dialog, const std::string& file) {
        const CRect place = Opened(dialog, file);
        EXPECT_EQ(place.Width(), dialog.m_resourceSize.cx) << file;
        EXPECT_EQ(place.Height(), dialog.m_resourceSize.cy) << file;
        return Corner(place.left, place.top);
    };
    CFesterDialog fixed(kFest);
    CVariablerDialog keepsSize(kVariabel);
    keepsSize.m_ohneGroesse = true;
    EXPECT_EQ(inOwnSize(fixed, "CHIAVE|300|900|200|800|\n"), Corner(300, 200));
    EXPECT_EQ(inOwnSize(keepsSize, "CHIAVE|300|900|200|800|\n"), Corner(300, 200));

    const int screen = GetVirtualScreenSize().cx;
    const auto line = [](int left, int right) {
        return "CHIAVE|" + std::to_string(left) + "|" + std::to_string(right) + "|30|500|\n";
    };
    EXPECT_EQ(inOwnSize(fixed, line(screen, screen + 500)), Corner(0, 30));
    CVariablerDialog sizable(kVariabel);
    EXPECT_EQ(Opened(sizable, line(screen - 1, screen + 499)),
              (CRect{screen - 1, 30, screen + 499, 500}));
    EXPECT_EQ(Opened(sizable, line(screen, screen + 500)), (CRect{0, 30, screen + 500, 500}));
    EXPECT_EQ(inOwnSize(sizable, "CHIAVE|a|b||d|\n"), Corner(0, 0))
        << "zeros, held up by the smallest size";
}

TEST_F(Platzierung, DialogsShareLinesByKeyAndLeaveTheOthers)
{
    m_folder.WriteBytes(kDatei, "ALTRO|1|2|3|4|255|\nchiave|5|6|7|8|100|extra|\nCHIAVE|0|0|\n"
                                "nessun campo\nCHIAVE|1|2|3|\nCHIAVE|9|9|9|9|9|\n");
    SchreibePlatzierung(L"CHIAVE", {10, 20, 110, 220}, 180);
    SchreibePlatzierung(L"NUOVA", {-5, -6, 7, 8}, 255);
    EXPECT_EQ(Lines(),
              (std::vector<CString>{L"ALTRO|1|2|3|4|255|", L"chiave|5|6|7|8|100|extra|",
                                    L"CHIAVE|0|0|", L"nessun campo", L"CHIAVE|10|110|20|220|180|",
                                    L"CHIAVE|9|9|9|9|9|", L"NUOVA|-5|7|-6|8|255|"}));

    CFesterDialog first(kFest);
    CVariablerDialog second(kVariabel);
    Open(
        first, [&] { first.MoveWindow(first.GetWindowRect().MovedBy(31, 0)); }, kIdOk);
    const CRect place = Opened(second, m_folder.ReadBytes(kDatei));
    EXPECT_EQ(place.left, 41);
}

TEST_F(Platzierung, FilesThatCannotBeReadOrWrittenHarmNothing)
{
    const CRect rect = {1, 2, 3, 4};
    std::filesystem::create_directory(m_folder.Root() / kDatei);
    CVariablerDialog dialog(kVariabel);
    Open(
        dialog, [] {}, kIdOk);
    std::filesystem::remove(m_folder.Root() / kDatei);

    const std::string line = "ALTRO|1|2|3|4|255|\n";
    m_folder.WriteBytes(kDatei, line);
    std::filesystem::permissions(m_folder.Root() / kDatei, std::filesystem::perms::owner_read);
    SchreibePlatzierung(L"CHIAVE", rect, 255);
    EXPECT_EQ(m_folder.ReadBytes(kDatei), line);
    std::filesystem::permissions(m_folder.Root() / kDatei, std::filesystem::perms::owner_all);

    {
        const CFileSizeLimit full(0);
        EXPECT_NO_THROW(SchreibePlatzierung(L"CHIAVE", rect, 255));
    }
    EXPECT_EQ(m_folder.ReadBytes(kDatei), line);

    const CSettingOverride missing(kSettingLocalPath, m_folder.Path("manca"));
    SchreibePlatzierung(L"CHIAVE", rect, 255);
    EXPECT_FALSE(m_folder.Exists("manca"));
    EXPECT_TRUE(m_driver.Messages().empty());
}

TEST(ArbeitsOrdner, TheHostsFolderComesBeforeTheEnvironments)
{
    const auto before = SetEnvironmentReader([](const CString& name) {
        return name == L"TGA_DATA_SINGLE" ? std::optional<CString>(L"/dati") : std::nullopt;
    });
    {
        const CSettingOverride local(kSettingLocalPath, L"/locale");
        EXPECT_EQ(ArbeitsPfad(L"a.txt"), L"/locale\\a.txt");
    }
    const CSettingOverride none(kSettingLocalPath, L"");
    EXPECT_EQ(ArbeitsPfad(L"a.txt"), L"/dati\\a.txt");
    SetEnvironmentReader(before);
}

/// Asks for paths without any folder; for a process of its own, as it is told once in each.
[[noreturn]] void AskWithoutFolder()
{
    std::vector<MessageBoxText> messages;
    SetMessageHandler([&](const MessageBoxText& message) { messages.push_back(message); });
    SetEnvironmentReader([](const CString&) { return std::nullopt; });
    const CSettingOverride none(kSettingLocalPath, L"");
    const bool bare = ArbeitsPfad(L"a.txt") == L"a.txt" && ArbeitsPfad(L"b.txt") == L"b.txt";
    const bool told = messages.size() == 1 &&
                      messages[0].caption == L"Missing Environmental-Variable: TGA_DATA_SINGLE" &&
                      messages[0].text == L"Install-Error" && messages[0].icon == MessageIcon::stop;
    std::_Exit(bare && told ? 0 : 1);
}

TEST(ArbeitsOrdner, WithNoFolderAtAllThatIsToldOnce)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(AskWithoutFolder(), testing::ExitedWithCode(0), "");
}

/// A program around the dialogs that has its own mind about where they show.
class CMover : public QObject
{
public:
    CMover() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* const window = qobject_cast<QWidget*>(object);
        if (event->type() == QEvent::Show && window != nullptr && window->isModal()) {
            window->move(600, 400);
        }
        return false;
    }
};

TEST_F(Platzierung, KeepsWhatTheUserMovesAndNotWhatTheProgramAroundMoves)
{
    const CMover mover;
    CFesterDialog dialog(kFest);
    m_folder.WriteBytes(kDatei, "CHIAVE|50|99|60|99|255|\n");
    const auto kept = [&](const std::function<void(QWidget&)>& work) {
        Open(
            dialog, [&] { work(*QApplication::activeModalWidget()); }, kIdOk);
        CRect rect;
        LesePlatzierung(L"CHIAVE", rect, nullptr);
        EXPECT_EQ(rect.Width(), dialog.m_resourceSize.cx);
        return std::pair(rect.left, rect.top);
    };
    EXPECT_EQ(kept([](QWidget& window) { EXPECT_EQ(window.pos(), QPoint(600, 400)); }),
              std::pair(50, 60));
    EXPECT_EQ(kept([](QWidget& window) { window.move(610, 420); }), std::pair(610, 420));
}

} // namespace
