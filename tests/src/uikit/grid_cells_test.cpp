#include "uikit/native/grid_model.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <numeric>
#include <random>
#include <span>
#include <stdexcept>
#include <vector>

namespace {

void Add(CGridModel& rows, int key, int place)
{
    CUGCell cell;
    rows.AppendRow();
    ASSERT_EQ(rows.Find(0, rows.GetRowCount() - 1)->GetText(), L"");
    cell.SetNumber(key);
    rows.SetCell(0, rows.GetRowCount() - 1, cell);
    cell.SetNumber(place);
    rows.SetCell(1, rows.GetRowCount() - 1, cell);
}

/// Rows of a key and of the place at which each was added.
std::unique_ptr<CGridModel> RowsOf(const std::vector<int>& keys)
{
    auto rows = std::make_unique<CGridModel>();
    rows->SetColumnCount(2);
    rows->Suspend(true);
    for (int row = 0; row < static_cast<int>(keys.size()); ++row) {
        Add(*rows, keys[static_cast<std::size_t>(row)], row);
    }
    return rows;
}

std::vector<int> ColumnOf(const CGridModel& rows, int column)
{
    std::vector<int> numbers;
    for (int row = 0; row < rows.GetRowCount(); ++row) {
        numbers.push_back(static_cast<int>(rows.Find(column, row)->GetNumber()));
    }
    return numbers;
}

int Ascending(const CUGCell& a, const CUGCell& b)
{
    return static_cast<int>(a.GetNumber() - b.GetNumber());
}

int Descending(const CUGCell& a, const CUGCell& b)
{
    return Ascending(b, a);
}

/// Every row in front of the first greater one.
template <class Order>
std::vector<int> Inserted(const CGridModel& rows, Order order)
{
    std::vector<int> sorted;
    for (int row = 0; row < rows.GetRowCount(); ++row) {
        const auto place = std::find_if(sorted.begin(), sorted.end(), [&](int other) {
            return order(*rows.Find(0, other), *rows.Find(0, row)) > 0;
        });
        sorted.insert(place, row);
    }
    return sorted;
}

TEST(GridCell, NumberIsWhatTheRoundedTextSays)
{
    struct
    {
        double number;
        int decimals;
        const wchar_t* text;
        double read;
    } const cases[] = {{22.5, 0, L"22", 22.0},
                       {2.66, 1, L"2.7", 2.7},
                       {0.0, 0, L"0", 0.0},
                       {-3.25, 1, L"-3.2", -3.2}};
    CUGCell cell;
    for (const auto& c : cases) {
        cell.SetDecimals(c.decimals);
        cell.SetNumber(c.number);
        EXPECT_EQ(cell.GetText(), c.text);
        EXPECT_EQ(cell.GetNumber(), c.read);
        EXPECT_EQ(cell.GetDataType(), GridDataType::number);
    }
    cell.SetText(L"C 22");
    EXPECT_EQ(cell.GetDataType(), GridDataType::text);
    EXPECT_EQ(cell.GetNumber(), 0.0);
}

TEST(GridCells, CellsOutsideAreNull)
{
    const auto rows = RowsOf({5});
    EXPECT_NE(rows->Find(1, -1), nullptr);
    EXPECT_NE(rows->Find(1, 0), nullptr);
    for (const auto& [column, row] : {std::pair(1, 1), {2, -1}, {-1, 0}, {0, -2}}) {
        EXPECT_EQ(rows->Find(column, row), nullptr);
        EXPECT_FALSE(rows->SetCell(column, row, {}));
    }
    EXPECT_EQ(CGridModel().Find(0, -1), nullptr);
}

/// Every row, of whatever came and went before, holds its own cells and a new one none.
TEST(GridCells, RowsComeAndGoAsInAPlainList)
{
    std::mt19937 random(3);
    const auto rows = RowsOf({});
    std::vector<int> wanted;
    for (int step = 0; step < 5000; ++step) {
        const std::size_t count = wanted.size();
        const auto what = random() % 8;
        if (what < 4) {
            Add(*rows, step, 0);
            wanted.push_back(step);
        } else if (what < 6) {
            ASSERT_EQ(rows->DeleteRow(0), count > 0);
            wanted.erase(wanted.begin(), wanted.begin() + (count > 0 ? 1 : 0));
        } else if (what == 6) {
            const auto row = static_cast<std::ptrdiff_t>(random() % (count + 1));
            ASSERT_EQ(rows->DeleteRow(static_cast<int>(row)), row < std::ssize(wanted));
            wanted.erase(wanted.begin() + row,
                         wanted.begin() + std::min(row + 1, std::ssize(wanted)));
        } else if (random() % 50 == 0) {
            while (rows->DeleteRow(0)) {
            }
            wanted.clear();
        }
        ASSERT_EQ(ColumnOf(*rows, 0), wanted) << "step " << step;
    }
    EXPECT_FALSE(rows->DeleteRow(-1));
}

TEST(GridCells, ARowComesWithTheCellsGiven)
{
    const auto rows = RowsOf({7});
    rows->DeleteRow(0);
    std::array<CUGCell, 3> cells;
    for (CUGCell& cell : cells) {
        cell.SetText(L"5");
    }
    for (const std::size_t given : {0U, 1U, 3U}) {
        rows->AppendRow(std::span(cells).first(given));
        for (const int column : {0, 1}) {
            const CUGCell* const cell = rows->Find(column, rows->GetRowCount() - 1);
            EXPECT_EQ(*cell, static_cast<std::size_t>(column) < given ? cells[0] : CUGCell());
        }
    }
}

/// What views are told must fit what they then read, or they read beyond the rows.
TEST(GridCells, ViewsKnowTheRowsOfBeforeUntilASuspensionEnds)
{
    const auto rows = RowsOf({3, 1, 2});
    const QAbstractItemModelTester tester(rows.get(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(rows->rowCount(), 0);
    rows->Suspend(false);
    EXPECT_EQ(rows->rowCount(), 3);
    rows->Sort(0, Ascending);
    EXPECT_EQ(rows->data(rows->index(0, 0), Qt::DisplayRole).toString(), "1");
    rows->Suspend(true);
    while (rows->DeleteRow(0)) {
    }
    EXPECT_EQ(rows->rowCount(), 3);
    EXPECT_FALSE(rows->data(rows->index(2, 0), Qt::DisplayRole).isValid());
    rows->Suspend(false);
    Add(*rows, 4, 0);
    EXPECT_EQ(rows->rowCount(), 1);
    rows->SetColumnCount(1);
    EXPECT_EQ(std::pair(rows->rowCount(), rows->columnCount()), std::pair(0, 1));
}

TEST(GridCells, SortsAsAPlainInsertionDoes)
{
    std::mt19937 random(7);
    for (const int count : {0, 1, 2, 99, 100, 101, 200, 201, 757}) {
        for (const int different : {1, 5, 10000}) {
            std::vector<int> keys(static_cast<std::size_t>(count));
            std::generate(keys.begin(), keys.end(), [&] {
                return static_cast<int>(random() % static_cast<unsigned>(different));
            });
            for (const auto order : {Ascending, Descending}) {
                const auto rows = RowsOf(keys);
                const std::vector<int> wanted = Inserted(*rows, order);
                rows->Sort(0, order);
                ASSERT_EQ(ColumnOf(*rows, 1), wanted) << count << " rows of " << different;
            }
        }
    }
}

TEST(GridCells, WalksSortedRowsInJumps)
{
    std::vector<int> keys(1000);
    std::iota(keys.begin(), keys.end(), 0);
    int asked = 0;
    RowsOf(keys)->Sort(0, [&](const CUGCell& a, const CUGCell& b) {
        ++asked;
        return Ascending(a, b);
    });
    // Up to ten jumps and one step back for each row.
    EXPECT_LE(asked, 11 * 1000);
}

TEST(GridCells, SortThatThrowsChangesNothing)
{
    const auto rows = RowsOf({3, 2, 1});
    const auto fails = [](const CUGCell&, const CUGCell&) -> int {
        throw std::runtime_error("no order");
    };
    EXPECT_THROW(rows->Sort(0, fails), std::runtime_error);
    EXPECT_EQ(ColumnOf(*rows, 0), (std::vector{3, 2, 1}));
}

} // namespace
