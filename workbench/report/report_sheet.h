#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace workbench {

/// Of texts and of what is drawn as strongly.
inline const QColor kInk(30, 36, 44);

/// How a text of a report looks.
struct CTextLook
{
    /// Size of the font in points.
    double dPunkte = 8.0;
    bool bFett = false;
    QColor farbe = Qt::black;
    Qt::Alignment ausrichtung = Qt::AlignLeft;
};

/// A sheet of a report, to be painted in millimetres from its upper left corner.
class CReportSheet
{
public:
    /// Units of the painter a millimetre: the device has to have 2540 dots an inch.
    static constexpr double kUnits = 100.0;
    static constexpr int kDotsPerInch = 2540;

    explicit CReportSheet(QPainter& painter) : m_painter(painter) {}

    /// The painter itself, in its own units.
    QPainter& GetPainter() { return m_painter; }

    /// Writes a text into the middle of the height of a box. One that is too wide is set closer,
    /// and where that is not enough ends in "…".
    void Text(const QRectF& box, const QString& text, const CTextLook& look);

    /// True if Text() writes a text into a box of this width whole.
    bool Fits(double width, const QString& text, const CTextLook& look) const;

    /// Width of the text in millimetres.
    double WidthOf(const QString& text, const CTextLook& look) const;

    void Line(const QPointF& from, const QPointF& to, double width, const QColor& color);
    void Fill(const QRectF& box, const QColor& color);
    void Frame(const QRectF& box, double width, const QColor& color);

private:
    QFont FontOf(const CTextLook& look) const;

    QPainter& m_painter;
};

} // namespace workbench
