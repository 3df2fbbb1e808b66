#include "workbench/report/plan_pdf.h"

#include "platform/exception.h"
#include "tests/src/platform/thrown.h"
#include "tests/support/file_size_limit.h"
#include "tests/workbench/plan/plan_fixture.h"
#include "workbench/report/plan_tables.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <filesystem>

namespace workbench {

namespace {

class PlanPdfTest : public CPlanFixture
{
protected:
    /// Other tests of the program may need an application that shows windows.
    static void SetUpTestSuite()
    {
        static int count = 3;
        static char name[] = "test", option[] = "-platform", platform[] = "offscreen";
        static char* arguments[] = {name, option, platform, nullptr};
        if (QCoreApplication::instance() == nullptr) {
            new QApplication(count, arguments);
        }
    }

    int Write() const
    {
        return WritePlanPdf(m_folder.Path("pianta.pdf"), m_building, {}, nullptr,
                            QDate(2026, 3, 1));
    }

    static int CountOf(const std::string& text, const std::string& wanted)
    {
        int count = 0;
        for (std::size_t at = text.find(wanted); at != std::string::npos;
             at = text.find(wanted, at + 1)) {
            ++count;
        }
        return count;
    }
};

CReportTable TableOf(std::size_t groups, std::size_t rows)
{
    CReportTable table{"T", {{"A", 10.0}}, {}};
    for (std::size_t i = 0; i < groups; ++i) {
        table.rows.push_back({{"G"}, RowLook::group});
        table.rows.insert(table.rows.end(), rows, {{"x"}, RowLook::plain});
    }
    return table;
}

} // namespace

TEST_F(PlanPdfTest, HasATitleAPlanAFloorAndAsManyTablePagesAsTheRoomsTake)
{
    m_building.strName = L"Casa";
    // Title, two plans, the schedule with the open rooms.
    EXPECT_EQ(Write(), 4);
    for (int i = 0; i < 200; ++i) {
        Add(1, Room(L"Camera " + std::to_wstring(i), 500.0));
    }
    const int pages = Write();
    EXPECT_GT(pages, 10);
    const std::string bytes = m_folder.ReadBytes("pianta.pdf");
    EXPECT_TRUE(bytes.starts_with("%PDF-"));
    EXPECT_EQ(CountOf(bytes, "/Type /Page\n"), pages);
    EXPECT_EQ(CountOf(bytes, "/Subtype /Image"), 0);
}

TEST_F(PlanPdfTest, AFailingWriteKeepsTheOldFileAndNamesIt)
{
    m_folder.WriteBytes("pianta.pdf", "vecchio");
    const CString message = MessageOf<CFileException>([this] {
        const CFileSizeLimit limit(1000);
        Write();
    });
    EXPECT_NE(message.find(L"pianta.pdf"), CString::npos);
    EXPECT_EQ(m_folder.ReadBytes("pianta.pdf"), "vecchio");
    const auto isPdf = [](const auto& entry) {
        return entry.path().string().find("pianta") != std::string::npos;
    };
    EXPECT_EQ(std::ranges::count_if(std::filesystem::directory_iterator(m_folder.Root()), isPdf),
              1);
}

TEST_F(PlanPdfTest, NoHeadingIsCutAndNoRowIsShort)
{
    CRoom lacking = Room(L"Debole", 1500.0);
    lacking.heizkoerper = {Radiator(800.0), Radiator(100.0)};
    lacking.heizkoerper[0].ventile.ruecklauf = CValveKey{L"Nessuno", CString(36, L'1')};
    Add(0, lacking);
    CRoom strong = Room(L"Forte", 500.0);
    strong.heizkoerper = {Radiator(1000.0)};
    Add(0, strong);
    const CSchedule schedule = SchedulePlan(m_building);
    QImage page(1, 1, QImage::Format_RGB32);
    page.setDotsPerMeterX(CReportSheet::kDotsPerInch * 10000 / 254);
    page.setDotsPerMeterY(CReportSheet::kDotsPerInch * 10000 / 254);
    QPainter painter(&page);
    const CReportSheet sheet(painter);
    for (CReportTable table :
         {MakeTotalsTable(schedule), MakeScheduleTable(schedule), MakeOpenRoomsTable(schedule),
          MakeMissizedTable(schedule), MakeValveTable(schedule)}) {
        // The narrower paper, less its margins.
        FitColumns(table, 267.0);
        EXPECT_TRUE(FindCutHeadings(sheet, table).empty())
            << table.strTitel.toStdString() << ": "
            << FindCutHeadings(sheet, table).front().toStdString();
        EXPECT_FALSE(table.rows.empty());
        for (const CReportRow& row : table.rows) {
            if (row.look != RowLook::group) {
                EXPECT_EQ(row.zellen.size(), table.columns.size()) << table.strTitel.toStdString();
            }
        }
    }
}

TEST(ReportTable, EveryPageRepeatsTitleHeadingsAndGroup)
{
    const std::vector<CReportTable> tables = {TableOf(1, 50), TableOf(0, 0), TableOf(1, 1)};
    const auto pages = LayOutTables(tables, 100.0);
    ASSERT_GT(pages.size(), 2u);
    std::size_t rows = 0;
    for (const std::vector<CTableLine>& page : pages) {
        ASSERT_GE(page.size(), 4u);
        const bool isFirst = &page == &pages.front();
        EXPECT_EQ(page[0].kind, CTableLine::Kind::title);
        EXPECT_EQ(page[1].kind, CTableLine::Kind::headings);
        EXPECT_EQ(page[2].nRow, 0u);
        EXPECT_EQ(page[2].bSegue, !isFirst);
        EXPECT_LT(page.back().dTop, 100.0);
        rows += static_cast<std::size_t>(std::ranges::count_if(page, [](const CTableLine& line) {
            return line.kind == CTableLine::Kind::row && !line.bSegue;
        }));
    }
    EXPECT_EQ(rows, 51u + 2u);
}

TEST(ReportTable, NoGroupIsHeadedAtTheFootOfAPage)
{
    const std::vector<CReportTable> tables = {TableOf(30, 2)};
    for (double height = 40.0; height < 60.0; height += 0.7) {
        for (const std::vector<CTableLine>& page : LayOutTables(tables, height)) {
            EXPECT_NE(tables[0].rows[page.back().nRow].look, RowLook::group) << height;
        }
    }
}

} // namespace workbench
