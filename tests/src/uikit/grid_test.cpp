#include "uikit/grid.h"

#include "uikit/native/access.h"

#include "tests/dialog_support/paint_counter.h"
#include "tests/dialog_support/widget_look.h"

#include <QFontMetricsF>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <QtMath>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using Log = std::vector<std::string>;

std::string Join(const char* what, int a, int b)
{
    return std::string(what) + ' ' + std::to_string(a) + ' ' + std::to_string(b);
}

class CRecordingGrid : public CUGCtrl
{
public:
    Log log;
    int fixedColumn = -1;
    bool guarded = false;
    wchar_t processed = L'\0';
    std::vector<wchar_t> characters;
    COLORREF back = RGB(255, 255, 255);

protected:
    void OnSetup() override
    {
        SetColumnCount(3);
        log.push_back("setup");
    }
    bool OnMaySizeColumn(int column) override { return column != fixedColumn; }
    void OnRowChange(int oldRow, int newRow) override
    {
        log.push_back(Join("row", oldRow, newRow));
        EXPECT_TRUE(guarded) << "what it throws would leave through the toolkit";
    }
    void OnDoubleClick(int column, int row) override { log.push_back(Join("double", column, row)); }
    void OnHeadingClick(int column, int row, bool down) override
    {
        log.push_back(Join(down ? "press" : "release", column, row));
    }
    void OnCharTyped(wchar_t* character, bool& isProcessed) override
    {
        characters.push_back(*character);
        isProcessed = *character == processed;
    }
    bool OnToolTip(int column, int row, GridSection, CString& html) override
    {
        html = L"<b>tip</b> " + std::to_wstring(column) + L"/" + std::to_wstring(row);
        return column != 2;
    }
    COLORREF OnDefaultBackColor(GridSection) override { return back; }
};

class GridTest : public ::testing::Test
{
protected:
    GridTest()
    {
        m_window.resize(420, 320);
        m_place->setGeometry(10, 40, 400, 200);
        SetControlId(*m_place, 18001);
        CNativeAccess::Attach(m_handle, m_place);
        EXPECT_TRUE(m_grid->AttachTo(m_handle, [this](const std::function<void()>& work) {
            m_grid->guarded = true;
            work();
            m_grid->guarded = false;
        }));
        m_view = m_place->findChild<QTableView*>();
        m_window.show();
        m_window.activateWindow();
        m_view->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    ~GridTest() override { QToolTip::hideText(); }

    void Fill(int rows)
    {
        m_grid->SetRedraw(false);
        CUGCell cell;
        for (int row = 0; row < rows; ++row) {
            m_grid->AppendRow();
            cell.SetText(L"Typ " + std::to_wstring(row));
            m_grid->SetCell(0, row, cell);
        }
        m_grid->SetRedraw(true);
        m_grid->GotoCell(0, 0);
        m_grid->log.clear();
    }

    void SetText(int column, int row, const CString& text)
    {
        CUGCell cell;
        cell.SetText(text);
        cell.SetAlignment(GridAlign::center);
        m_grid->SetCell(column, row, cell);
    }

    QPoint MiddleOf(int row, int column = 0) const
    {
        return m_view->visualRect(m_view->model()->index(row, column)).center();
    }
    QPoint MiddleOfHeading(int column) const
    {
        const QHeaderView* top = m_view->horizontalHeader();
        return {top->sectionViewportPosition(column) + top->sectionSize(column) / 2, 10};
    }
    void ClickCell(int row)
    {
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, MiddleOf(row));
    }
    Log TakeLog() { return std::exchange(m_grid->log, {}); }

    QWidget m_window;
    QWidget* m_place = new QWidget(&m_window);
    QLineEdit* m_after = new QLineEdit(&m_window);
    CWnd m_handle;
    std::unique_ptr<CRecordingGrid> m_grid = std::make_unique<CRecordingGrid>();
    QTableView* m_view;
};

TEST_F(GridTest, OutlivesItsWindowAndIsOutlivedByIt)
{
    EXPECT_FALSE(m_grid->AttachTo(m_handle, {})) << "it has its place already";
    Fill(3);
    auto* window = new QWidget;
    CWnd place;
    CNativeAccess::Attach(place, window);
    CRecordingGrid other;
    ASSERT_TRUE(other.AttachTo(place, {}));
    delete window;
    other.AppendRow();
    other.GotoCell(0, 0);
    other.SetRedraw(false);
    other.BestFit(0, 3, 1);
    EXPECT_EQ(std::pair(other.GetCurrentRow(), other.GetColumnWidth(0)), std::pair(-1, 0));

    m_grid.reset();
    EXPECT_EQ(m_place->findChild<QTableView*>(), nullptr) << "nothing is left to raise anything";
    QTest::mouseClick(m_place, Qt::LeftButton);
}

TEST_F(GridTest, KeysMoveTheCurrentRow)
{
    Fill(100);
    const int page = m_view->viewport()->height() / m_view->rowHeight(0);
    struct
    {
        Qt::Key key;
        int row;
    } const moves[] = {
        {Qt::Key_Down, 1},   {Qt::Key_Down, 2}, {Qt::Key_Up, 1},  {Qt::Key_PageDown, 1 + page},
        {Qt::Key_PageUp, 1}, {Qt::Key_End, 99}, {Qt::Key_Home, 0}};
    int row = 0;
    for (const auto& move : moves) {
        QTest::keyClick(m_view, move.key);
        EXPECT_EQ(TakeLog(), Log{Join("row", row, move.row)});
        row = move.row;
        EXPECT_EQ(m_grid->GetCurrentRow(), row);
        EXPECT_TRUE(m_view->viewport()->rect().contains(MiddleOf(row)));
    }
    for (const Qt::Key key :
         {Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp, Qt::Key_Right, Qt::Key_Return}) {
        QTest::keyClick(m_view, key);
    }
    EXPECT_EQ(TakeLog(), Log{}) << "there is no row above the first";
    EXPECT_EQ(m_view->currentIndex().column(), 1);
}

TEST_F(GridTest, KeysThatItDoesNotProcessAreThoseOfTheWindowAround)
{
    m_grid->processed = 27;
    for (const auto& [key, text] : {std::pair(Qt::Key_Return, "\r"), {Qt::Key_Escape, "\x1b"}}) {
        QKeyEvent press(QEvent::KeyPress, key, {}, text);
        QApplication::sendEvent(m_view, &press);
        EXPECT_EQ(press.isAccepted(), key == Qt::Key_Escape);
    }
    EXPECT_EQ(m_grid->characters, (std::vector<wchar_t>{13, 27}));
}

TEST_F(GridTest, TheCellsStandForTheControlOfItsId)
{
    EXPECT_EQ(GetControlId(*m_view), 18001);
    m_after->setFocus();
    QTest::keyClick(m_after, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(m_view->hasFocus()) << "in its place in the order of Tab";
    m_after->setFocus();
    m_place->setFocus();
    EXPECT_TRUE(m_view->hasFocus());

    m_place->resize(100, 50);
    QApplication::processEvents();
    EXPECT_EQ(m_view->size(), QSize(100, 50));
    m_grid->MoveWindow({3, 40, 63, 90});
    QApplication::processEvents();
    EXPECT_EQ(m_view->size(), QSize(60, 50));
    EXPECT_EQ(m_grid->GetPlace(), m_handle.GetPlace());
    m_grid->ShowWindow(false);
    EXPECT_FALSE(m_view->isVisible());
}

TEST_F(GridTest, OnlyTheUserRaisesRowChanges)
{
    Fill(5);
    ClickCell(3);
    EXPECT_EQ(TakeLog(), Log{"row 0 3"});
    ClickCell(3);
    m_grid->GotoCell(0, 1);
    m_grid->ClearSelection();
    m_grid->SortBy(0, kSortDescending);
    m_grid->DeleteRow(0);
    m_view->setFocus();
    EXPECT_EQ(TakeLog(), Log{});
    ClickCell(2);
    EXPECT_EQ(TakeLog(), Log{"row 1 2"});
    QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, {}, MiddleOf(1, 2));
    QTest::mouseClick(m_view->viewport(), Qt::RightButton, {}, MiddleOf(2, 2));
    EXPECT_EQ(TakeLog(), (Log{"row 2 1", "double 2 1"}));
    EXPECT_EQ(m_grid->GetCurrentRow(), 1);
}

TEST_F(GridTest, AfterASortTheFirstPickOfAnyRowIsTold)
{
    Fill(3);
    const auto click = [&] { ClickCell(0); };
    const auto doubleClick = [&] {
        QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, {}, MiddleOf(0));
    };
    const auto key = [&] { QTest::keyClick(m_view, Qt::Key_Home); };
    const std::pair<std::function<void()>, Log> picks[] = {
        {click, {"row 0 0"}}, {doubleClick, {"row 0 0", "double 0 0"}}, {key, {"row 0 0"}}};
    for (const auto& [pick, told] : picks) {
        m_grid->SortBy(0, kSortDescending);
        m_grid->GotoCell(0, 0);
        pick();
        EXPECT_EQ(TakeLog(), told);
        click();
        EXPECT_EQ(TakeLog(), Log{}) << "it is known by now";
    }
    m_grid->SortBy(0, kSortAscending);
    while (m_grid->DeleteRow(0)) {
    }
    Fill(3);
    click();
    EXPECT_EQ(TakeLog(), Log{}) << "the sort went with the rows";
}

TEST_F(GridTest, RebuildUnderSuspendedRedrawKeepsWidthsAndMovesNoUser)
{
    Fill(4);
    m_grid->SetColumnWidth(1, 77);
    m_grid->GotoCell(0, 3);
    m_grid->SetRedraw(false);
    int deleted = 0;
    while (m_grid->DeleteRow(0)) {
        ++deleted;
    }
    EXPECT_EQ(deleted, 4);
    EXPECT_EQ(m_grid->GetRowCount(), 0);
    // A message box while a rebuild is under way paints the rows of before.
    m_view->setUpdatesEnabled(true);
    m_view->grab();
    m_grid->AppendRow();
    m_grid->SetRedraw(true);
    EXPECT_EQ(m_grid->GetCurrentRow(), 0);
    EXPECT_EQ(m_grid->GetColumnWidth(1), 77);
    m_grid->DeleteRow(0);
    EXPECT_EQ(m_grid->GetCurrentRow(), -1);
    m_grid->GotoCell(0, 7);
    EXPECT_EQ(m_grid->GetCurrentRow(), -1);
    EXPECT_EQ(TakeLog(), Log{});
}

/// Headings take as long as many rows to paint, and most rebuilds leave them as they are.
TEST_F(GridTest, ARebuildPaintsTheHeadingsOnlyForOtherWidths)
{
    Fill(4);
    m_grid->SetColumnWidth(1, 60);
    m_grid->GotoCell(0, 3);
    CPaintCounter paints(*m_view->horizontalHeader()->viewport());
    const auto rebuild = [&](int width) {
        m_grid->GotoCell(0, 0);
        m_grid->SetRedraw(false);
        m_grid->BestFit(1, 2, 4, width);
        EXPECT_EQ(m_grid->GetColumnWidth(1), width) << "what was fitted is read at once";
        m_grid->SetColumnWidth(3, width);
        m_grid->SetRedraw(true);
        m_grid->GotoCell(0, 3);
        QApplication::processEvents();
        EXPECT_EQ(m_view->columnWidth(1), width);
        return std::exchange(paints.nPaints, 0);
    };
    QApplication::processEvents();
    paints.nPaints = 0;
    EXPECT_EQ(rebuild(60), 0);
    EXPECT_EQ(rebuild(80), 1);
}

TEST_F(GridTest, HeadingTextsAreReadAsRowMinusOne)
{
    SetText(1, -1, L"Resa\nC.S");
    EXPECT_EQ(m_grid->GetCellText(1, -1), L"Resa\nC.S");
    EXPECT_EQ(m_grid->GetCellText(1, 0), L"");
    CUGCell cell;
    EXPECT_TRUE(m_grid->GetCell(1, -1, cell));
    EXPECT_EQ(cell.GetAlignment(), GridAlign::center);
    EXPECT_FALSE(m_grid->GetCell(1, 0, cell));
    EXPECT_FALSE(m_grid->SetCell(3, -1, cell));
}

TEST_F(GridTest, BestFitTakesTheWidestCellAndTwoPixels)
{
    Fill(3);
    const auto fitted = [&](int rows) {
        m_grid->BestFit(1, 2, rows);
        return m_grid->GetColumnWidth(1);
    };
    EXPECT_EQ(fitted(3), 3);
    m_grid->SetColumnWidth(0, 41);
    m_grid->SetColumnWidth(2, 42);

    const auto padded = [&](const QString& text) {
        const QFontMetricsF metrics(m_view->font());
        return qCeil(metrics.horizontalAdvance(text)) + 2 * qRound(metrics.height() / 4) + 2;
    };
    SetText(1, 0, L"1234");
    SetText(1, 2, L"Kompakt");
    EXPECT_EQ(fitted(2), padded("1234"));
    EXPECT_EQ(fitted(9), padded("Kompakt"));
    CUGCell arrow;
    m_grid->GetCell(1, 0, arrow);
    arrow.SetCellType(kGridSortArrowType);
    m_grid->SetCell(1, 1, arrow);
    EXPECT_GT(fitted(2), padded("1234")) << "the same text, and an arrow beside it";
    SetText(1, -1, L"a\nHeizkörper\nb");
    EXPECT_EQ(fitted(3), padded("Heizkörper"));
    EXPECT_EQ(m_grid->GetColumnWidth(0), 41);
    EXPECT_EQ(m_grid->GetColumnWidth(2), 42);

    CUGCell cell;
    m_grid->GetCell(1, -1, cell);
    cell.SetCellType(kGridSortArrowType);
    m_grid->SetCell(1, -1, cell);
    EXPECT_GT(fitted(3), padded("Heizkörper"));

    SetText(1, 1, CString(500, L'W'));
    EXPECT_EQ(fitted(3), m_view->contentsRect().width());
    m_grid->BestFit(1, 2, 3, 999);
    EXPECT_EQ(m_grid->GetColumnWidth(1), 999);
    m_place->resize(0, 0);
    EXPECT_EQ(fitted(3), 300);
}

TEST_F(GridTest, HeadingClickComesOnReleaseAndNotFromADrag)
{
    QWidget* top = m_view->horizontalHeader()->viewport();
    QTest::mousePress(top, Qt::LeftButton, {}, MiddleOfHeading(1));
    EXPECT_EQ(TakeLog(), (Log{"setup", "press 1 -1"}));
    QTest::mouseRelease(top, Qt::LeftButton, {}, MiddleOfHeading(1));
    EXPECT_EQ(TakeLog(), Log{"release 1 -1"});
    QTest::mouseDClick(top, Qt::LeftButton, {}, MiddleOfHeading(1));
    QTest::mouseRelease(top, Qt::LeftButton, {}, MiddleOfHeading(1));
    EXPECT_EQ(TakeLog(), (Log{"press 1 -1", "release 1 -1"})) << "a quick click is a click";
}

TEST_F(GridTest, ColumnsAreDraggedWhereTheGridAllows)
{
    QWidget* top = m_view->horizontalHeader()->viewport();
    m_grid->fixedColumn = 1;
    m_grid->SetColumnCount(3);
    const auto drag = [&](const QPoint& from, const QPoint& by) {
        QTest::mouseMove(top, from);
        QTest::mousePress(top, Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, from + by, top->mapToGlobal(from + by), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(top, &move);
        QTest::mouseRelease(top, Qt::LeftButton, {}, from + by);
    };
    for (const int column : {0, 1, 2}) {
        m_grid->SetColumnWidth(column, 80);
        const int edge = m_view->horizontalHeader()->sectionViewportPosition(column) + 79;
        drag({edge, 8}, {25, 0});
        EXPECT_EQ(m_grid->GetColumnWidth(column), column == 1 ? 80 : 105);
    }
    m_grid->SetNarrowestColumn(60);
    drag({104, 8}, {-90, 0});
    EXPECT_EQ(m_grid->GetColumnWidth(0), 60);
}

TEST_F(GridTest, HeadingsShowBothLinesInTheMiddle)
{
    m_grid->SetDefaultFont({L"Segoe UI", 15});
    m_grid->SetHeadingHeight(32);
    m_grid->SetColumnWidth(0, 101);
    SetText(0, -1, L"III\nIII");
    const QImage image = m_view->horizontalHeader()->viewport()->grab().toImage();
    const int half = image.height() / 2;
    const int band = m_view->fontMetrics().horizontalAdvance("III") / 2 + 2;
    const auto hasInk = [&](const QRect& part) { return !InkOf(image.copy(part), 100).isNull(); };
    EXPECT_TRUE(hasInk({50 - band, 0, 2 * band, half}));
    EXPECT_TRUE(hasInk({50 - band, half, 2 * band, half - 2}));
    EXPECT_FALSE(hasInk({50 - band, half, 2 * band, 1})) << "the lines are apart";
    EXPECT_FALSE(hasInk({0, 0, 50 - band, 2 * half - 2}));
    EXPECT_FALSE(hasInk({50 + band, 0, 48 - band, 2 * half - 2}));
}

TEST_F(GridTest, CurrentRowStaysHighlightedWithoutFocus)
{
    Fill(3);
    m_grid->GotoCell(0, 1);
    m_after->setFocus();
    const auto colorAt = [&](int row) {
        const QRect cell = m_view->visualRect(m_view->model()->index(row, 1));
        return m_view->viewport()->grab().toImage().pixelColor(cell.center());
    };
    EXPECT_EQ(colorAt(0), QColor(Qt::white));
    EXPECT_NE(colorAt(1), QColor(Qt::white));
    m_grid->back = RGB(250, 240, 230);
    m_grid->RedrawAll();
    EXPECT_EQ(colorAt(2), QColor(250, 240, 230));
    m_grid->ClearSelection();
    EXPECT_EQ(colorAt(1), QColor(250, 240, 230));
}

TEST_F(GridTest, TooltipsComeFromTheCallback)
{
    Fill(2);
    EXPECT_EQ(TipAt(*m_view->viewport(), MiddleOf(1, 2)), "") << "the grid wants none there";
    EXPECT_EQ(TipAt(*m_view->viewport(), MiddleOf(1, 0)), "<b>tip</b> 0/1");
    EXPECT_EQ(TipAt(*m_view->horizontalHeader()->viewport(), MiddleOfHeading(1)),
              "<b>tip</b> 1/-1");
}

} // namespace
