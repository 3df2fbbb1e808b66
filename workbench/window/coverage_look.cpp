#include "workbench/window/coverage_look.h"

#include "workbench/toolkit/qt_text.h"

#include <QPainterPath>

namespace workbench {

namespace {

/// Signs are drawn in a square of this side.
constexpr double kSignGrid = 16.0;
constexpr double kSignStroke = 2.4;

QPen InkPen(Coverage coverage)
{
    return {InkOf(coverage), kSignStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// An arrow that points beyond both sides.
void PaintWidth(QPainter& painter)
{
    painter.drawLine(QPointF(2.0, 8.0), QPointF(14.0, 8.0));
    const QPointF left[] = {{5.4, 4.2}, {1.6, 8.0}, {5.4, 11.8}};
    const QPointF right[] = {{10.6, 4.2}, {14.4, 8.0}, {10.6, 11.8}};
    painter.drawPolyline(left, 3);
    painter.drawPolyline(right, 3);
}

void PaintWarning(QPainter& painter)
{
    const QPointF corners[] = {{8.0, 1.5}, {15.2, 14.5}, {0.8, 14.5}};
    painter.setPen(QPen(InkOf(Coverage::lacking), 1.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(InkOf(Coverage::lacking));
    painter.drawPolygon(corners, 3);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRect(QRectF(7.1, 5.4, 1.8, 4.8));
    painter.drawRect(QRectF(7.1, 11.2, 1.8, 1.9));
}

} // namespace

QColor FillOf(Coverage coverage)
{
    switch (coverage) {
    case Coverage::covered:
        return {222, 240, 228};
    case Coverage::lacking:
        return {250, 219, 210};
    case Coverage::empty:
        return {252, 240, 206};
    case Coverage::tooLarge:
        return {243, 220, 243};
    case Coverage::oversized:
        return {218, 230, 250};
    case Coverage::notNeeded:
        break;
    }
    return {234, 236, 239};
}

QColor InkOf(Coverage coverage)
{
    switch (coverage) {
    case Coverage::covered:
        return {22, 112, 72};
    case Coverage::lacking:
        return {178, 34, 20};
    case Coverage::empty:
        return {150, 98, 0};
    case Coverage::tooLarge:
        return {132, 28, 132};
    case Coverage::oversized:
        return {32, 78, 160};
    case Coverage::notNeeded:
        break;
    }
    return {104, 112, 122};
}

QColor InkOn(const QColor& ground, Coverage coverage)
{
    constexpr int kDark = 128;
    return ground.lightness() < kDark ? FillOf(coverage) : InkOf(coverage);
}

QString TextOf(Coverage coverage)
{
    QString text = ToQt(GetCoverageText(coverage));
    text[0] = text[0].toUpper();
    return text;
}

void PaintSign(QPainter& painter, Coverage coverage, const QRectF& square)
{
    painter.save();
    painter.translate(square.topLeft());
    painter.scale(square.width() / kSignGrid, square.height() / kSignGrid);
    painter.setPen(InkPen(coverage));
    painter.setBrush(Qt::NoBrush);
    switch (coverage) {
    case Coverage::covered: {
        const QPointF tick[] = {{2.0, 8.6}, {6.2, 12.8}, {14.0, 3.4}};
        painter.drawPolyline(tick, 3);
        break;
    }
    case Coverage::lacking:
        PaintWarning(painter);
        break;
    case Coverage::empty:
        painter.drawEllipse(QRectF(2.2, 2.2, 11.6, 11.6));
        break;
    case Coverage::tooLarge:
        PaintWidth(painter);
        break;
    case Coverage::oversized:
        painter.drawLine(QPointF(8.0, 2.5), QPointF(8.0, 13.5));
        painter.drawLine(QPointF(2.5, 8.0), QPointF(13.5, 8.0));
        break;
    case Coverage::notNeeded:
        painter.drawLine(QPointF(2.5, 8.0), QPointF(13.5, 8.0));
        break;
    }
    painter.restore();
}

} // namespace workbench
