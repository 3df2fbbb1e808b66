#include "workbench/report/plan_pdf.h"

#include "platform/whole_file.h"
#include "workbench/report/plan_picture.h"
#include "workbench/report/plan_tables.h"
#include "workbench/toolkit/qt_text.h"

#include <QBuffer>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>

#include <functional>
#include <memory>

namespace workbench {

namespace {

constexpr double kMargin = 15.0;
constexpr double kHeadHeight = 14.0;

/// The title's part on the first page: where its facts begin, a line of them, what stands between
/// those of the project and those of the plant, and what follows.
constexpr double kFactsTop = 34.0;
constexpr double kFactHeight = 6.4;
constexpr double kFactsGap = 4.0;
constexpr double kTitleGap = 5.0;

/// The list of contents stands beside the facts of the plant.
constexpr double kContentsWidth = 95.0;
constexpr double kContentHeight = 5.6;
constexpr double kPageFoot = 8.0;

/// A plan at this scale or a larger one needs no larger paper.
constexpr int kSmallPaperScale = 100;

const QColor kGrey(98, 106, 116);
const QColor kAccent(176, 58, 20);

QString DayText(const QDate& date)
{
    return date.toString("dd/MM/yyyy");
}

/// The day of the project, or that of the report where the building names none.
QDate DateOf(const CProject& project, const QDate& date)
{
    const QDate own = QDate::fromString(ToQt(project.strDate), Qt::ISODate);
    return own.isValid() ? own : date;
}

/// A page on which nothing is painted, to measure texts with before there is one.
class CMeasuringPage
{
public:
    CMeasuringPage() : m_image(1, 1, QImage::Format_RGB32)
    {
        constexpr int dotsPerMetre = CReportSheet::kDotsPerInch * 10000 / 254;
        m_image.setDotsPerMeterX(dotsPerMetre);
        m_image.setDotsPerMeterY(dotsPerMetre);
        m_painter.begin(&m_image);
    }

    CReportSheet Sheet() { return CReportSheet(m_painter); }

private:
    QImage m_image;
    QPainter m_painter;
};

/// All pages of the report, laid out before the first is painted, so that each knows how many there
/// are.
class CPlanReport
{
public:
    CPlanReport(const CBuilding& building, const CDxfDrawing& radiators,
                const CBlockLibrary* valves, const QDate& date)
        : m_building(building), m_schedule(SchedulePlan(building)),
          m_strDate(DayText(DateOf(building.project, date)))
    {
        for (std::size_t i = 0; i < building.floors.size(); ++i) {
            m_pictures.emplace_back(building, i, radiators, valves);
        }
        ChoosePaper();
        AddTables({MakeTotalsTable(m_schedule)}, TitleHeight());
        for (std::size_t i = 0; i < m_pictures.size(); ++i) {
            m_contents.emplace_back("Pianta: " + ToQt(building.floors[i].strName), m_pages.size());
            m_pages.push_back([this, i](CReportSheet& sheet) { PaintFloor(sheet, i); });
        }
        AddTables({MakeScheduleTable(m_schedule), MakeOpenRoomsTable(m_schedule),
                   MakeMissizedTable(m_schedule), MakeRadiatorOrderTable(m_schedule),
                   MakeValveTable(m_schedule)},
                  0.0);
    }

    QByteArray Paint() const
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        {
            QPdfWriter writer(&buffer);
            writer.setResolution(CReportSheet::kDotsPerInch);
            writer.setPageLayout(QPageLayout(m_paper, QPageLayout::Landscape, {}));
            writer.setTitle(ToQt(m_building.strName));
            QPainter painter(&writer);
            CReportSheet sheet(painter);
            for (std::size_t i = 0; i < m_pages.size(); ++i) {
                if (i > 0) {
                    writer.newPage();
                }
                m_pages[i](sheet);
                PaintFoot(sheet, i);
            }
        }
        return buffer.data();
    }

    int GetPages() const { return static_cast<int>(m_pages.size()); }

private:
    using Page = std::function<void(CReportSheet&)>;

    using Facts = std::vector<std::pair<QString, QString>>;

    double PlantTop() const
    {
        return kFactsTop + kFactHeight * static_cast<double>(ProjectFacts().size()) + kFactsGap;
    }

    /// Of the title's part on the first page.
    double TitleHeight() const
    {
        return PlantTop() + kFactHeight * static_cast<double>(PlantFacts().size()) + kTitleGap;
    }

    /// The larger paper, if it shows any floor at a larger scale than the smaller one can.
    void ChoosePaper()
    {
        const std::vector<int> small = ScalesOn(QPageSize::A4);
        const std::vector<int> large = ScalesOn(QPageSize::A3);
        for (std::size_t i = 0; i < small.size(); ++i) {
            if (small[i] > kSmallPaperScale && large[i] < small[i]) {
                return;
            }
        }
        m_paper = QPageSize(QPageSize::A4);
    }

    /// Scales of the floors on that paper, which then is the report's.
    std::vector<int> ScalesOn(QPageSize::PageSizeId paper)
    {
        m_paper = QPageSize(paper);
        std::vector<int> scales;
        for (const CPlanPicture& picture : m_pictures) {
            scales.push_back(picture.GetScale(PlanArea().size()));
        }
        return scales;
    }

    /// What the margins leave.
    QRectF Area() const
    {
        const QSizeF upright = m_paper.size(QPageSize::Millimeter);
        return QRectF(0.0, 0.0, upright.height(), upright.width())
            .adjusted(kMargin, kMargin, -kMargin, -kMargin - kPageFoot);
    }

    QRectF PlanArea() const { return Area().adjusted(0.0, kHeadHeight, 0.0, 0.0); }

    /// Pages with tables, of which the first page of all leaves `above` to its title.
    void AddTables(std::vector<CReportTable> tables, double above)
    {
        const QRectF area = Area().adjusted(0.0, above, 0.0, 0.0);
        CMeasuringPage measuring;
        for (CReportTable& table : tables) {
            FitColumns(table, area.width(), measuring.Sheet());
        }
        const auto shared = std::make_shared<std::vector<CReportTable>>(std::move(tables));
        for (const std::vector<CTableLine>& lines : LayOutTables(*shared, area.height())) {
            const bool isTitle = m_pages.empty();
            AddContents(*shared, lines);
            m_pages.push_back([=, this](CReportSheet& sheet) {
                if (isTitle) {
                    PaintTitle(sheet);
                }
                for (const CTableLine& line : lines) {
                    PaintTableLine(sheet, area.topLeft(), (*shared)[line.nTable], line);
                }
            });
        }
    }

    /// Notes the page that comes next for the tables that begin on it.
    void AddContents(const std::vector<CReportTable>& tables, const std::vector<CTableLine>& lines)
    {
        for (const CTableLine& line : lines) {
            if (line.kind == CTableLine::Kind::title && !line.bSegue && !m_pages.empty()) {
                m_contents.emplace_back(tables[line.nTable].strTitel, m_pages.size());
            }
        }
    }

    void PaintTitle(CReportSheet& sheet) const
    {
        const QRectF area = Area();
        sheet.Fill({area.left(), area.top(), 3.0, 26.0}, kAccent);
        const QRectF text = area.adjusted(8.0, 0.0, 0.0, 0.0);
        sheet.Text({text.left(), text.top(), text.width(), 14.0}, ToQt(m_building.strName),
                   {30.0, true, kInk, Qt::AlignLeft});
        sheet.Text({text.left(), text.top() + 15.0, text.width(), 10.0},
                   "Progetto dei corpi scaldanti", {16.0, false, kGrey, Qt::AlignLeft});
        PaintFacts(sheet, text.adjusted(0.0, kFactsTop, 0.0, 0.0), ProjectFacts());
        const double left = area.right() - kContentsWidth;
        PaintFacts(sheet, text.adjusted(0.0, PlantTop(), left - text.right() - kTitleGap, 0.0),
                   PlantFacts());
        PaintContents(sheet, {left, text.top() + PlantTop()});
    }

    /// From the upper edge of the space downwards.
    static void PaintFacts(CReportSheet& sheet, const QRectF& space, const Facts& facts)
    {
        constexpr double names = 62.0;
        double top = space.top();
        for (const auto& [what, value] : facts) {
            sheet.Text({space.left(), top, names - 2.0, 6.0}, what,
                       {10.0, false, kGrey, Qt::AlignLeft});
            sheet.Text({space.left() + names, top, space.width() - names, 6.0}, value,
                       {10.0, true, kInk, Qt::AlignLeft});
            top += kFactHeight;
        }
    }

    /// Beside the facts of the plant.
    void PaintContents(CReportSheet& sheet, QPointF corner) const
    {
        const double height = kFactHeight * static_cast<double>(PlantFacts().size());
        for (const auto& [what, pages] :
             Contents(static_cast<std::size_t>(height / kContentHeight))) {
            const QRectF line(corner, QSizeF(kContentsWidth, kContentHeight));
            sheet.Text(line.adjusted(0.0, 0.0, -30.0, 0.0), what,
                       {9.0, false, kInk, Qt::AlignLeft});
            sheet.Text(line, pages, {9.0, false, kGrey, Qt::AlignRight});
            corner.ry() += kContentHeight;
        }
    }

    /// What begins on which page. Plans, which come first, share a line where there is no space for
    /// a line each.
    std::vector<std::pair<QString, QString>> Contents(std::size_t most) const
    {
        std::vector<std::pair<QString, QString>> lines;
        std::size_t next = 0;
        if (m_contents.size() > most && m_pictures.size() > 1) {
            const std::size_t first = m_contents.front().second + 1;
            lines.emplace_back(
                "Piante dei piani",
                QStringLiteral("pagine %1–%2").arg(first).arg(first + m_pictures.size() - 1));
            next = m_pictures.size();
        }
        for (; next < m_contents.size(); ++next) {
            lines.emplace_back(m_contents[next].first,
                               "pagina " + QString::number(m_contents[next].second + 1));
        }
        return lines;
    }

    /// As far as the building says something.
    Facts ProjectFacts() const
    {
        const CProject& project = m_building.project;
        Facts facts = {{"Committente", ToQt(project.strClient)},
                       {"Progettista", ToQt(project.strDesigner)},
                       {"Progetto n.", ToQt(project.strNumber)},
                       {"Data", m_strDate}};
        std::erase_if(facts, [](const auto& fact) { return fact.second.isEmpty(); });
        return facts;
    }

    Facts PlantFacts() const
    {
        const CScheduleTotals& totals = m_schedule.totals;
        return {
            {"Impianto", SystemText(m_building.system) + QStringLiteral(" °C (mandata/ritorno)")},
            {"Piani", QString::number(m_building.floors.size())},
            {"Locali", QString::number(totals.nRooms)},
            {"Corpi scaldanti", QString::number(totals.nHeizkoerper)},
            {"Fabbisogno", WattText(totals.bedarf)},
            {"Richiesto ai corpi scaldanti", WattText(totals.required)},
            {"Resa di progetto", WattText(totals.leistung)},
            {"Locali da sistemare",
             totals.nOpen == 0 ? QString("nessuno") : QString::number(totals.nOpen)}};
    }

    void PaintFloor(CReportSheet& sheet, std::size_t floor) const
    {
        const QRectF area = Area();
        const CScheduleTotals& totals = m_schedule.floors[floor].totals;
        sheet.Text({area.left(), area.top(), area.width() / 2, 8.0},
                   ToQt(m_building.floors[floor].strName), {16.0, true, kInk, Qt::AlignLeft});
        sheet.Text(
            {area.left(), area.top() + 7.5, area.width() - 20.0, 5.0},
            QString("Fabbisogno %1, richiesto %2, resa %3")
                .arg(WattText(totals.bedarf), WattText(totals.required), WattText(totals.leistung)),
            {8.0, false, kGrey, Qt::AlignLeft});
        const QRectF plan = PlanArea();
        m_pictures[floor].Paint(sheet, plan, m_pictures[floor].GetScale(plan.size()));
    }

    void PaintFoot(CReportSheet& sheet, std::size_t page) const
    {
        const QRectF area = Area();
        const QRectF foot(area.left(), area.bottom() + 3.0, area.width(), kPageFoot - 3.0);
        sheet.Line(foot.topLeft(), foot.topRight(), 0.15, kGrey);
        const CString& number = m_building.project.strNumber;
        const QRectF leftPart = foot.adjusted(0.0, 0.0, -foot.width() / 2 - 15.0, 0.0);
        sheet.Text(leftPart,
                   ToQt(m_building.strName) +
                       (number.empty() ? QString() : QStringLiteral(" · n. ") + ToQt(number)),
                   {7.5, false, kGrey, Qt::AlignLeft});
        sheet.Text(foot, m_strDate, {7.5, false, kGrey, Qt::AlignHCenter});
        sheet.Text(foot, QString("Pagina %1 di %2").arg(page + 1).arg(m_pages.size()),
                   {7.5, false, kGrey, Qt::AlignRight});
    }

    const CBuilding& m_building;
    CSchedule m_schedule;
    QString m_strDate;
    QPageSize m_paper{QPageSize::A4};
    std::vector<CPlanPicture> m_pictures;
    std::vector<Page> m_pages;
    /// What begins on which page, from 0.
    std::vector<std::pair<QString, std::size_t>> m_contents;
};

} // namespace

int WritePlanPdf(const CString& path, const CBuilding& building, const CDxfDrawing& radiators,
                 const CBlockLibrary* valves, const QDate& date)
{
    const CPlanReport report(building, radiators, valves, date);
    const QByteArray bytes = report.Paint();
    WriteWholeFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    return report.GetPages();
}

} // namespace workbench
