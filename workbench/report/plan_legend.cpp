#include "workbench/report/plan_legend.h"

#include "workbench/toolkit/qt_text.h"

#include <QPainterPath>
#include <QTransform>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace workbench {

namespace {

struct CCoverageLook
{
    Coverage coverage;
    QColor fill;
    QColor ink;
};

const CCoverageLook kLooks[] = {
    {Coverage::covered, {236, 247, 239}, {18, 104, 66}},
    {Coverage::lacking, {252, 228, 219}, {176, 34, 20}},
    {Coverage::empty, {254, 246, 219}, {146, 94, 0}},
    {Coverage::notNeeded, {243, 244, 246}, {98, 106, 116}},
    {Coverage::tooLarge, {246, 228, 246}, {132, 28, 132}},
    {Coverage::oversized, {226, 236, 251}, {32, 78, 160}},
};

/// Every plan tells these colours; the others only where a room has them, on a line below.
constexpr std::size_t kAlwaysTold = 4;
constexpr double kLegendLine = 4.0;

const CCoverageLook& LookOf(Coverage coverage)
{
    return *std::ranges::find(kLooks, coverage, &CCoverageLook::coverage);
}

/// Longest bar of a scale in millimetres.
constexpr double kLongestBar = 60.0;

} // namespace

QColor PrintFillOf(Coverage coverage)
{
    return LookOf(coverage).fill;
}

QColor PrintInkOf(Coverage coverage)
{
    return LookOf(coverage).ink;
}

std::vector<double> ScaleBarMarks(int scale)
{
    // Lengths whose parts are round as well.
    struct CBar
    {
        double part;
        int count;
    };
    constexpr CBar bars[] = {{0.1, 5}, {0.5, 2},  {0.5, 4},  {1.0, 5},  {2.0, 5},
                             {5.0, 4}, {10.0, 5}, {20.0, 5}, {50.0, 4}, {100.0, 5}};
    const CBar* fitting = std::begin(bars);
    for (const CBar& bar : bars) {
        if (1000.0 * bar.part * bar.count / scale <= kLongestBar) {
            fitting = &bar;
        }
    }
    std::vector<double> marks;
    for (int i = 0; i <= fitting->count; ++i) {
        marks.push_back(i * fitting->part);
    }
    return marks;
}

void PaintScaleBar(CReportSheet& sheet, const QPointF& corner, int scale)
{
    constexpr double kHeight = 1.6;
    const std::vector<double> marks = ScaleBarMarks(scale);
    const double part = 1000.0 * marks[1] / scale;
    const CTextLook look{6.0, false, kInk, Qt::AlignHCenter};
    for (std::size_t i = 0; i < marks.size(); ++i) {
        const double left = corner.x() + 1000.0 * marks[i] / scale;
        const bool isLast = i + 1 == marks.size();
        const QString metres = QString::number(marks[i]).replace('.', ',');
        sheet.Text({left - 10.0, corner.y() + 1.0, 20.0, 2.6}, isLast ? metres + " m" : metres,
                   look);
        if (!isLast) {
            const QRectF box(left, corner.y() + 4.0, part, kHeight);
            sheet.Fill(box, i % 2 == 0 ? kInk : QColor(Qt::white));
            sheet.Frame(box, 0.15, kInk);
        }
    }
    sheet.Text({corner.x() + 1000.0 * marks.back() / scale + 8.0, corner.y() + 3.0, 30.0, 3.6},
               "Scala 1:" + QString::number(scale), {8.0, true, kInk, Qt::AlignLeft});
}

void PaintLegend(CReportSheet& sheet, const QPointF& corner, const std::set<Coverage>& shown)
{
    const CTextLook look{6.5, false, kInk, Qt::AlignLeft};
    const auto paint = [&](const CCoverageLook& entry, QPointF& place) {
        const QString text = ToQt(GetCoverageText(entry.coverage));
        const double width = sheet.WidthOf(text, look) + 1.0;
        sheet.Text({place.x() - width, place.y() + 3.2, width, 3.0}, text, look);
        const QRectF box(place.x() - width - 5.5, place.y() + 3.3, 4.2, 2.8);
        sheet.Fill(box, entry.fill);
        sheet.Frame(box, 0.12, entry.ink);
        place.rx() -= width + 10.0;
    };
    QPointF first = corner;
    QPointF second = corner + QPointF(0.0, kLegendLine);
    for (std::size_t i = std::size(kLooks); i-- > 0;) {
        if (i < kAlwaysTold) {
            paint(kLooks[i], first);
        } else if (shown.contains(kLooks[i].coverage)) {
            paint(kLooks[i], second);
        }
    }
}

void PaintNorth(CReportSheet& sheet, const QPointF& tip)
{
    QPainterPath arrow(tip);
    arrow.lineTo(tip + QPointF(2.2, 8.0));
    arrow.lineTo(tip + QPointF(0.0, 6.4));
    arrow.lineTo(tip + QPointF(-2.2, 8.0));
    arrow.closeSubpath();
    sheet.GetPainter().fillPath(
        QTransform::fromScale(CReportSheet::kUnits, CReportSheet::kUnits).map(arrow), kInk);
    sheet.Text({tip.x() - 5.0, tip.y() + 8.4, 10.0, 3.4}, "N", {8.0, true, kInk, Qt::AlignHCenter});
}

} // namespace workbench
