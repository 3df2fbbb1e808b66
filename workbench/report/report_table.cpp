#include "workbench/report/report_table.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace workbench {

namespace {

constexpr double kTableTitleHeight = 9.0;
constexpr double kHeadingsHeight = 6.5;
constexpr double kRowHeight = 4.8;
constexpr double kTableGap = 6.0;
constexpr double kPadding = 1.2;
constexpr double kRuleWidth = 0.25;

constexpr double kTitlePoints = 12.0;
constexpr double kPoints = 7.0;

const QColor kHeadingFill(225, 230, 236);
const QColor kGroupFill(240, 243, 246);
const QColor kWarningFill(252, 236, 226);
const QColor kWarningInk(166, 40, 16);
const QColor kRule(190, 197, 205);

double HeightOf(CTableLine::Kind kind)
{
    switch (kind) {
    case CTableLine::Kind::title:
        return kTableTitleHeight;
    case CTableLine::Kind::headings:
        return kHeadingsHeight;
    case CTableLine::Kind::row:
        break;
    }
    return kRowHeight;
}

/// Puts lines one below the other and opens pages.
class CTableLayout
{
public:
    CTableLayout(const std::vector<CReportTable>& tables, double height)
        : m_tables(tables), m_dHeight(height)
    {
    }

    std::vector<std::vector<CTableLine>> Run()
    {
        for (std::size_t i = 0; i < m_tables.size(); ++i) {
            if (!m_tables[i].rows.empty()) {
                AddTable(i);
            }
        }
        return std::move(m_pages);
    }

private:
    void AddTable(std::size_t table)
    {
        m_dTop += kTableGap;
        if (m_pages.empty() || !HasSpace(kTableTitleHeight + kHeadingsHeight + 3.0 * kRowHeight)) {
            OpenPage();
        }
        AddHead(table, false);
        std::optional<std::size_t> group;
        const std::vector<CReportRow>& rows = m_tables[table].rows;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const bool isGroup = rows[i].look == RowLook::group;
            if (!HasSpace((isGroup ? 2.0 : 1.0) * kRowHeight)) {
                OpenPage();
                AddHead(table, true);
                if (group && !isGroup) {
                    Add(CTableLine::Kind::row, table, *group, true);
                }
            }
            group = isGroup ? i : group;
            Add(CTableLine::Kind::row, table, i, false);
        }
    }

    void AddHead(std::size_t table, bool again)
    {
        Add(CTableLine::Kind::title, table, 0, again);
        Add(CTableLine::Kind::headings, table, 0, again);
    }

    bool HasSpace(double height) const { return m_dTop + height <= m_dHeight; }

    void OpenPage()
    {
        m_pages.emplace_back();
        m_dTop = 0.0;
    }

    void Add(CTableLine::Kind kind, std::size_t table, std::size_t row, bool again)
    {
        m_pages.back().push_back({kind, table, row, again, m_dTop});
        m_dTop += HeightOf(kind);
    }

    const std::vector<CReportTable>& m_tables;
    double m_dHeight;
    double m_dTop = 0.0;
    std::vector<std::vector<CTableLine>> m_pages;
};

double WidthOf(const CReportTable& table)
{
    double width = 0.0;
    for (const CReportColumn& column : table.columns) {
        width += column.dBreite;
    }
    return width;
}

CTextLook HeadingLook()
{
    return {kPoints, true, kInk, {}};
}

/// Millimetres that every column takes for its heading and its texts, none of them pressed.
std::vector<double> NeedsOf(const CReportTable& table, const CReportSheet& sheet)
{
    std::vector<double> needs;
    for (const CReportColumn& column : table.columns) {
        needs.push_back(sheet.WidthOf(column.strTitel, HeadingLook()));
    }
    for (const CReportRow& row : table.rows) {
        if (row.look == RowLook::group) {
            continue;
        }
        const CTextLook look{kPoints, row.look == RowLook::total, kInk, {}};
        for (std::size_t i = 0; i < needs.size(); ++i) {
            needs[i] = std::max(needs[i], sheet.WidthOf(row.zellen.at(i), look));
        }
    }
    for (double& need : needs) {
        need += 2.0 * kPadding;
    }
    return needs;
}

void PaintCells(CReportSheet& sheet, QRectF row, const CReportTable& table,
                const std::vector<QString>& cells, CTextLook look)
{
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const CReportColumn& column = table.columns[i];
        row.setWidth(column.dBreite);
        look.ausrichtung = column.bRechts ? Qt::AlignRight : Qt::AlignLeft;
        sheet.Text(row.adjusted(kPadding, 0.0, -kPadding, 0.0), cells.at(i), look);
        row.translate(column.dBreite, 0.0);
    }
}

void PaintHeadings(CReportSheet& sheet, const QRectF& row, const CReportTable& table)
{
    sheet.Fill(row, kHeadingFill);
    std::vector<QString> titles;
    for (const CReportColumn& column : table.columns) {
        titles.push_back(column.strTitel);
    }
    PaintCells(sheet, row, table, titles, HeadingLook());
    sheet.Line(row.bottomLeft(), row.bottomRight(), kRuleWidth, kInk);
}

void PaintRow(CReportSheet& sheet, const QRectF& row, const CReportTable& table,
              const CReportRow& content, bool again)
{
    switch (content.look) {
    case RowLook::group:
        sheet.Fill(row.adjusted(0.0, kRuleWidth / 2, 0.0, 0.0), kGroupFill);
        sheet.Text(row.adjusted(kPadding, 0.0, -kPadding, 0.0),
                   content.zellen.front() + (again ? " (segue)" : ""), {kPoints, true, kInk, {}});
        break;
    case RowLook::total:
        sheet.Line(row.topLeft(), row.topRight(), kRuleWidth, kInk);
        PaintCells(sheet, row, table, content.zellen, {kPoints, true, kInk, {}});
        break;
    case RowLook::warning:
        sheet.Fill(row.adjusted(0.0, kRuleWidth / 2, 0.0, 0.0), kWarningFill);
        PaintCells(sheet, row, table, content.zellen, {kPoints, false, kWarningInk, {}});
        break;
    case RowLook::plain:
        PaintCells(sheet, row, table, content.zellen, {kPoints, false, kInk, {}});
        break;
    }
    sheet.Line(row.bottomLeft(), row.bottomRight(), 0.08, kRule);
}

} // namespace

void FitColumns(CReportTable& table, double width, const CReportSheet& sheet)
{
    const double factor = width / WidthOf(table);
    for (CReportColumn& column : table.columns) {
        column.dBreite *= factor;
    }
    const std::vector<double> needs = NeedsOf(table, sheet);
    double spare = 0.0;
    double lack = 0.0;
    for (std::size_t i = 0; i < needs.size(); ++i) {
        const double left = table.columns[i].dBreite - needs[i];
        (left > 0.0 ? spare : lack) += std::fabs(left);
    }
    const double moved = std::min(spare, lack);
    for (std::size_t i = 0; i < needs.size() && moved > 0.0; ++i) {
        const double left = table.columns[i].dBreite - needs[i];
        table.columns[i].dBreite -= left * moved / (left > 0.0 ? spare : lack);
    }
}

std::vector<QString> FindCutHeadings(const CReportSheet& sheet, const CReportTable& table)
{
    std::vector<QString> cut;
    for (const CReportColumn& column : table.columns) {
        if (!sheet.Fits(column.dBreite - 2.0 * kPadding, column.strTitel, HeadingLook())) {
            cut.push_back(column.strTitel);
        }
    }
    return cut;
}

std::vector<std::vector<CTableLine>> LayOutTables(const std::vector<CReportTable>& tables,
                                                  double height)
{
    return CTableLayout(tables, height).Run();
}

void PaintTableLine(CReportSheet& sheet, const QPointF& corner, const CReportTable& table,
                    const CTableLine& line)
{
    const QRectF row(corner.x(), corner.y() + line.dTop, WidthOf(table), HeightOf(line.kind));
    switch (line.kind) {
    case CTableLine::Kind::title:
        sheet.Text(row, table.strTitel + (line.bSegue ? " (segue)" : ""),
                   {kTitlePoints, true, kInk, Qt::AlignLeft});
        break;
    case CTableLine::Kind::headings:
        PaintHeadings(sheet, row, table);
        break;
    case CTableLine::Kind::row:
        PaintRow(sheet, row, table, table.rows[line.nRow], line.bSegue);
        break;
    }
}

} // namespace workbench
