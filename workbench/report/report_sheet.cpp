#include "workbench/report/report_sheet.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPen>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

/// Narrower than this in per cent a text is hard to read.
constexpr int kLeastStretch = 82;

constexpr double kPoint = 25.4 / 72.0;

QRectF InUnits(const QRectF& box)
{
    constexpr double units = CReportSheet::kUnits;
    return {box.x() * units, box.y() * units, box.width() * units, box.height() * units};
}

} // namespace

QFont CReportSheet::FontOf(const CTextLook& look) const
{
    QFont font(QStringList{"Liberation Sans", "Arial", "DejaVu Sans"});
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(look.dPunkte * kPoint * kUnits))));
    font.setBold(look.bFett);
    return font;
}

void CReportSheet::Text(const QRectF& box, const QString& text, const CTextLook& look)
{
    QFont font = FontOf(look);
    const QRectF place = InUnits(box);
    QString shown = text;
    const double width = QFontMetricsF(font, m_painter.device()).horizontalAdvance(text);
    if (width > place.width()) {
        const int stretch = static_cast<int>(100.0 * place.width() / width);
        font.setStretch(std::max(stretch, kLeastStretch));
        shown = QFontMetricsF(font, m_painter.device())
                    .elidedText(text, Qt::ElideRight, place.width() + 1.0);
    }
    m_painter.setFont(font);
    m_painter.setPen(look.farbe);
    m_painter.drawText(place,
                       static_cast<int>(look.ausrichtung | Qt::AlignVCenter) | Qt::TextSingleLine |
                           Qt::TextDontClip,
                       shown);
}

bool CReportSheet::Fits(double width, const QString& text, const CTextLook& look) const
{
    return WidthOf(text, look) * kLeastStretch <= width * 100.0;
}

double CReportSheet::WidthOf(const QString& text, const CTextLook& look) const
{
    return QFontMetricsF(FontOf(look), m_painter.device()).horizontalAdvance(text) / kUnits;
}

void CReportSheet::Line(const QPointF& from, const QPointF& to, double width, const QColor& color)
{
    m_painter.setPen(QPen(color, width * kUnits, Qt::SolidLine, Qt::FlatCap));
    m_painter.drawLine(from * kUnits, to * kUnits);
}

void CReportSheet::Fill(const QRectF& box, const QColor& color)
{
    m_painter.fillRect(InUnits(box), color);
}

void CReportSheet::Frame(const QRectF& box, double width, const QColor& color)
{
    m_painter.setPen(QPen(color, width * kUnits, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawRect(InUnits(box));
}

} // namespace workbench
