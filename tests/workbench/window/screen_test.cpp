// What must hold on screens of any size. The tests run on a large screen like all others, and once
// more on each of those on which designers work.

#include "tests/look/cut_texts.h"
#include "tests/look/fonts.h"
#include "tests/workbench/window/module_user.h"
#include "tests/workbench/window/workbench_fixture.h"
#include "tools/dark_palette.h"
#include "workbench/drawing/plan_view.h"
#include "workbench/window/coverage_look.h"
#include "workbench/window/kept_window.h"
#include "workbench/window/message_pane.h"
#include "workbench/window/project_dialog.h"
#include "workbench/window/room_dialog.h"
#include "workbench/window/system_dialog.h"

#include <QDockWidget>
#include <QScreen>
#include <QTableView>
#include <QTextBlock>

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {

QRect OnScreen(const QWidget& widget)
{
    return {widget.mapToGlobal(QPoint()), widget.size()};
}

class AnyScreen : public WorkbenchWindow
{
protected:
    AnyScreen() { Show(); }

    void Show()
    {
        m_window->show();
        QApplication::processEvents();
    }

    QRect Room() const { return m_window->screen()->availableGeometry(); }
    QDockWidget& Dock() { return *m_window->findChild<QDockWidget*>("roomDock"); }
    CPlanView& Plan() { return *m_window->findChild<CPlanView*>(); }

    CEnvironmentVariable m_root{"TGA_DATA_SINGLE", RADSEL_DATA_DIR "/root"};
    CSettingOverride m_local{reference_host::kSettingLocalPath, m_folder.Path()};
};

} // namespace

TEST_F(AnyScreen, HoldsTheWholeWindowAndItsTexts)
{
    EXPECT_TRUE(Room().contains(m_window->frameGeometry()));
    std::vector<CutText> cut = FindCutTexts(*m_window);
    std::erase_if(cut, [](const CutText& text) { return text.isTold; });
    EXPECT_EQ(Describe(cut), "");
    m_window->Tell("Un avviso.");
    QApplication::processEvents();
    EXPECT_TRUE(Room().contains(m_window->frameGeometry()));
    for (const char* const part : {"plan", "rooms", "messages", "totals"}) {
        const auto* const widget = m_window->findChild<QWidget*>(part);
        EXPECT_TRUE(OnScreen(*m_window).contains(OnScreen(*widget))) << part;
    }
}

TEST_F(AnyScreen, TextsFitInEveryFont)
{
    for (const QFont& font : kDesktopFonts) {
        const CDesktopFont desktop(font);
        m_window = MakeWindow(m_document);
        Show();
        CSystemDialog system(m_document.Building(), m_window.get());
        system.show();
        CProjectDialog project(m_document.Building().project, m_window.get());
        project.show();
        CRoomDialog room(m_document.Building(), 0, m_window.get());
        room.show();
        QApplication::processEvents();
        std::vector<CutText> cut = FindCutTexts(*m_window);
        std::ranges::copy(FindCutListItems(system), std::back_inserter(cut));
        std::erase_if(cut, [](const CutText& text) { return text.isTold; });
        EXPECT_EQ(Describe(cut), "") << font.toString().toStdString();
        EXPECT_TRUE(Room().contains(m_window->frameGeometry()));
    }
}

TEST_F(AnyScreen, KeepsPlaceSizeAndDocksOfTheWindow)
{
    m_window->resize(640, 480);
    m_window->move(40, 30);
    m_window->addDockWidget(Qt::LeftDockWidgetArea, &Dock());
    QApplication::processEvents();
    const QRect place = m_window->geometry();
    m_window->close();
    m_window = MakeWindow(m_document);
    Show();
    EXPECT_EQ(m_window->geometry(), place);
    EXPECT_EQ(m_window->dockWidgetArea(&Dock()), Qt::LeftDockWidgetArea);
    EXPECT_FALSE(m_window->findChild<QDockWidget*>("messageDock")->isVisible());
}

TEST_F(AnyScreen, KeepsTheFolderInWhichAFileWasChosen)
{
    EXPECT_EQ(LastFolder(), L"");
    m_answerPath = m_path.wstring();
    Do("open");
    EXPECT_EQ(LastFolder(), m_path.parent_path().wstring());
    const fs::path other = m_path.parent_path() / "altrove";
    fs::create_directory(other);
    m_answerPath = (other / "casa.csv").wstring();
    Do("exportCsv");
    EXPECT_EQ(LastFolder(), other.wstring());
    fs::remove_all(other);
    EXPECT_EQ(LastFolder(), L"");
}

TEST_F(AnyScreen, TheDialogOfConnectionsStandsBesideThePlanThatItChanges)
{
    constexpr CRoomRef kRoom{0, 1};
    Do("sizeAll");
    Mark({kRoom});
    QApplication::processEvents();
    const QSize whole = Plan().viewport()->size();
    const QRectF room = m_window->findChild<CFloorScene*>()->BoundsOf(kRoom);
    for (const bool zoomed : {false, true}) {
        if (zoomed) {
            // The room comes to the right edge, where a dialog may stand.
            Plan().ZoomAt({}, 1.2);
            const QPoint edge(whole.width() - 2, 0);
            const double right = Plan().mapToScene(edge).x();
            const double middle = Plan().mapToScene(edge / 2).x();
            Plan().centerOn(room.right() - (right - middle), room.center().y());
        }
        InDialog([&](QWidget& dialog) {
            const QRect plan = OnScreen(*Plan().viewport());
            EXPECT_TRUE(Room().contains(dialog.geometry()));
            EXPECT_FALSE(dialog.geometry().intersects(plan));
            EXPECT_GE(plan.width(), 100);
            const QRect shown = Plan().mapFromScene(room).boundingRect();
            EXPECT_TRUE(Plan().viewport()->rect().contains(shown));
            dialog.close();
        });
        Do("connect");
        EXPECT_EQ(Plan().viewport()->size(), whole);
    }
}

TEST_F(AnyScreen, StatesAndLinksCanBeReadWhateverTheColours)
{
    auto& messages = *m_window->findChild<CMessagePane*>("messages");
    for (const QPalette& palette : {QApplication::palette(), DarkPalette()}) {
        const CColors colors(palette);
        const QAbstractItemModel& rooms = *m_window->findChild<QTableView*>("rooms")->model();
        const int ground = palette.color(QPalette::Base).lightness();
        for (int row = 0; row < rooms.rowCount(); ++row) {
            const auto ink = rooms.index(row, 0).data(Qt::ForegroundRole);
            if (ink.isValid()) {
                EXPECT_GT(std::abs(ink.value<QColor>().lightness() - ground), 100);
            }
        }
        messages.Add({{"scarso", "Cucina"}}, std::nullopt);
        const QTextBlock line = messages.document()->lastBlock();
        const QTextCharFormat link = line.begin().fragment().charFormat();
        ASSERT_TRUE(link.isAnchor());
        EXPECT_GT(std::abs(qGray(link.foreground().color().rgb()) -
                           qGray(palette.color(QPalette::Base).rgb())),
                  60);
    }
}

} // namespace workbench
