#pragma once

#include "workbench/plan/coverage.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QString>

#include <array>
#include <vector>

namespace workbench {

/// What the plan writes into a room: its name, and below it what it needs, what of that is covered
/// and what remains.
class CRoomLabel
{
public:
    /// A text of the label. Pixels with y downwards, from the middle of the label.
    struct CText
    {
        QString strText;
        QFont font;
        QColor farbe;
        /// Where its base line begins.
        QPointF punkt;
        double dWidth = 0.0;
    };

    /// What remains has the colour of how the room stands.
    CRoomLabel(const CRoom& room, Coverage coverage);

    /// What there is space for in an area of that size in pixels, at `scale` pixels a metre: all of
    /// it, only the name, shortened if need be, or nothing. No text leaves the area or comes into
    /// the squares of side `corner` at its corners. The result stands until the next call.
    const std::vector<CText>& Arrange(const QSizeF& area, double corner, double scale) const;

    /// Paints it into an area of that size about `middle`, with a painter in pixels.
    void Paint(QPainter& painter, const QPointF& middle, const QSizeF& area, double corner,
               double scale) const;

private:
    struct CFigure
    {
        QString strWhat;
        QString strWatt;
        QColor farbe;
    };

    bool AddAll(double scale, int figurePixels) const;
    double FiguresWidth(int pixels) const;
    void AddFigures(double top, double width, int pixels) const;
    void AddText(const QString& text, const QFont& font, const QColor& color, double left,
                 double middle) const;
    double FreeWidth(double height) const;

    QString m_strName;
    std::array<CFigure, 3> m_figures;
    /// The last arrangement, and what it was made for: panning asks for the same one every time.
    mutable QSizeF m_area;
    mutable double m_dCorner = 0.0;
    mutable double m_dScale = 0.0;
    mutable std::vector<CText> m_texts;
};

} // namespace workbench
