#include "workbench/report/plan_pdf.h"

#include "platform/exception.h"
#include "tests/src/platform/thrown.h"
#include "tests/support/file_size_limit.h"
#include "tests/workbench/plan/plan_fixture.h"
#include "workbench/report/plan_label.h"
#include "workbench/report/plan_legend.h"
#include "workbench/report/plan_tables.h"

#include <QApplication>
#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cmath>
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

/// Notes the texts that are painted on it.
class CTextNotes : public QPaintDevice
{
public:
    QStringList Texts() const { return m_engine.texts; }

    QPaintEngine* paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return CReportSheet::kDotsPerInch;
        case PdmWidth:
        case PdmHeight:
        case PdmWidthMM:
        case PdmHeightMM:
        case PdmNumColors:
        case PdmDepth:
            return 1;
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    class CEngine : public QPaintEngine
    {
    public:
        CEngine() : QPaintEngine(AllFeatures) {}
        bool begin(QPaintDevice* /*device*/) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState& /*state*/) override {}
        void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
        Type type() const override { return User; }
        void drawTextItem(const QPointF& /*at*/, const QTextItem& item) override
        {
            texts += item.text();
        }

        QStringList texts;
    };

    mutable CEngine m_engine;
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
    for (CReportTable table : {MakeTotalsTable(schedule), MakeScheduleTable(schedule),
                               MakeOpenRoomsTable(schedule), MakeMissizedTable(schedule),
                               MakeRadiatorOrderTable(schedule), MakeValveTable(schedule)}) {
        // The narrower paper, less its margins.
        FitColumns(table, 267.0, sheet);
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

TEST_F(PlanPdfTest, ANameIsWholeWhereThereIsRoomForIt)
{
    const CRoom room = Room(L"Camera matrimoniale degli ospiti", 1000.0);
    const auto label = [&](const QSizeF& space) {
        CTextNotes notes;
        QPainter painter(&notes);
        CReportSheet sheet(painter);
        PaintRoomLabel(sheet, {{}, space}, room, Coverage::empty);
        painter.end();
        return notes.Texts().join(' ').toStdString();
    };
    const std::string name = "Camera matrimoniale degli ospiti";
    const std::string figures = " Fabbisogno 1000 W Coperto 0 W Resto 1000 W";
    EXPECT_EQ(label({60.0, 40.0}), name + figures);
    EXPECT_EQ(label({17.0, 22.0}), name + figures) << "in three lines";
    EXPECT_EQ(label({22.0, 17.0}), name + figures);
    EXPECT_EQ(label({15.0, 8.0}), name) << "the figures have no room";
    EXPECT_NE(label({9.0, 4.0}).find("…"), std::string::npos);
    EXPECT_EQ(label({2.0, 2.0}), "");
}

TEST(PlanLegend, TheScaleBarHasRoundNumbers)
{
    for (const int scale : {20, 50, 100, 200, 250, 500, 1000, 2000, 5000}) {
        const std::vector<double> marks = ScaleBarMarks(scale);
        ASSERT_GT(marks.size(), 1u);
        const double length = 1000.0 * marks.back() / scale;
        EXPECT_TRUE(length > 20.0 && length <= 60.0) << scale << ": " << length;
        const double leading = marks[1] / std::pow(10.0, std::floor(std::log10(marks[1])));
        EXPECT_TRUE(leading == 1.0 || leading == 2.0 || leading == 5.0) << scale << ": " << leading;
        for (std::size_t i = 0; i < marks.size(); ++i) {
            EXPECT_DOUBLE_EQ(marks[i], static_cast<double>(i) * marks[1]);
        }
    }
}

TEST_F(PlanPdfTest, ColumnsOfLongTextsTakeOfWhatOthersHaveToSpare)
{
    CTextNotes notes;
    QPainter painter(&notes);
    const CReportSheet sheet(painter);
    const QString text = "Lindenbrück, Sockelkonvektor zweireihig";
    CReportTable table{"T", {{"A", 60.0}, {"B", 20.0}, {"C", 20.0}}, {{{"a", text, "c"}}}};
    FitColumns(table, 100.0, sheet);
    EXPECT_GT(table.columns[1].dBreite, sheet.WidthOf(text, {7.0}));
    double all = 0.0;
    for (const CReportColumn& column : table.columns) {
        EXPECT_GT(column.dBreite, 5.0);
        all += column.dBreite;
    }
    EXPECT_DOUBLE_EQ(all, 100.0);
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
