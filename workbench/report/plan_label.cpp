#include "workbench/report/plan_label.h"

#include "workbench/building/qt_text.h"
#include "workbench/report/plan_legend.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace workbench {

namespace {

/// Sizes of texts in points. Below the least one nobody reads it.
constexpr double kNamePoints = 8.0;
constexpr double kFigurePoints = 6.5;
constexpr double kLeastPoints = 4.0;
constexpr double kNumberPoints = 5.0;

/// Height of a line in millimetres a point.
constexpr double kPointHeight = 0.46;

/// Between a room's walls and its texts.
constexpr double kEdge = 0.6;

QString Watt(double value)
{
    const double whole = std::round(value);
    return (whole < 0.0 ? QStringLiteral("\u2212") : QString()) +
           QString::number(std::fabs(whole), 'f', 0) + " W";
}

/// Writes the texts of one room.
class CRoomLabelPainter
{
public:
    CRoomLabelPainter(CReportSheet& sheet, const CRoom& room, Coverage coverage)
        : m_sheet(sheet), m_room(room), m_coverage(coverage)
    {
    }

    void Paint(const QRectF& free)
    {
        if (PaintFigures(free)) {
            return;
        }
        QPainter& painter = m_sheet.GetPainter();
        painter.save();
        painter.translate(free.center() * CReportSheet::kUnits);
        const bool isUpright = free.height() > free.width();
        if (isUpright) {
            painter.rotate(-90.0);
        }
        const QSizeF size = isUpright ? free.size().transposed() : free.size();
        const QRectF along({-size.width() / 2, -size.height() / 2}, size);
        const double line = kLeastPoints * kPointHeight;
        if ((!isUpright || !PaintFigures(along)) && line <= size.height()) {
            PaintName({along.left(), -line / 2, along.width(), line}, ToQt(m_room.strName),
                      kLeastPoints);
        }
        painter.restore();
    }

private:
    /// False, with nothing painted, if there is no space.
    bool PaintFigures(const QRectF& free)
    {
        const QString name = ToQt(m_room.strName);
        const QString figures[] = {"Fabbisogno " + Watt(m_room.bedarf),
                                   "Coperto " + Watt(CoveredOf(m_room)),
                                   "Resto " + Watt(RemainderOf(m_room))};
        for (double shrink = 1.0; shrink * kFigurePoints >= kLeastPoints; shrink *= 0.92) {
            const double line = shrink * kFigurePoints * kPointHeight;
            const double title = shrink * kNamePoints * kPointHeight;
            const CTextLook look{shrink * kFigurePoints, false, kInk, Qt::AlignHCenter};
            if (title + 3 * line <= free.height() && WidestOf(figures, look) <= free.width()) {
                const double top = free.center().y() - (title + 3 * line) / 2;
                PaintName({free.left(), top, free.width(), title}, name, shrink * kNamePoints);
                PaintLines({free.left(), top + title, free.width(), line}, figures, look,
                           PrintInkOf(m_coverage));
                return true;
            }
        }
        return false;
    }

    /// Lines of text from the given one downwards, the last in its own colour.
    void PaintLines(QRectF line, std::span<const QString> texts, CTextLook look, const QColor& last)
    {
        for (const QString& text : texts) {
            if (&text == &texts.back()) {
                look.farbe = last;
                look.bFett = true;
            }
            m_sheet.Text(line, text, look);
            line.translate(0.0, line.height());
        }
    }

    double WidestOf(std::span<const QString> texts, const CTextLook& look) const
    {
        double widest = 0.0;
        for (const QString& text : texts) {
            widest = std::max(widest, m_sheet.WidthOf(text, look));
        }
        return widest;
    }

    /// In a smaller font where that saves it from being cut; not at all if next to nothing is left.
    void PaintName(const QRectF& line, const QString& name, double points)
    {
        CTextLook look{points, true, kInk, Qt::AlignHCenter};
        const double width = m_sheet.WidthOf(name, look);
        if (width > line.width()) {
            look.dPunkte = std::max(points * line.width() / width, kLeastPoints);
        }
        constexpr int kLeastCharacters = 4;
        if (m_sheet.WidthOf(name.left(kLeastCharacters), look) <= line.width()) {
            m_sheet.Text(line, name, look);
        }
    }

    CReportSheet& m_sheet;
    const CRoom& m_room;
    Coverage m_coverage;
};

} // namespace

void PaintRoomLabel(CReportSheet& sheet, const QRectF& space, const CRoom& room, Coverage coverage)
{
    CRoomLabelPainter(sheet, room, coverage).Paint(space.adjusted(kEdge, kEdge, -kEdge, -kEdge));
}

void PaintRadiatorNumber(CReportSheet& sheet, const QString& number, double output, double space,
                         double away)
{
    const CTextLook look{kNumberPoints, true, kInk, Qt::AlignHCenter};
    for (const QString& text : {number + QStringLiteral(" · ") + Watt(output), number}) {
        if (sheet.WidthOf(text, look) <= space) {
            sheet.Text({-space / 2, away - kNumberHeight / 2, space, kNumberHeight}, text, look);
            return;
        }
    }
}

} // namespace workbench
