#include "workbench/window/room_label.h"

#include "workbench/toolkit/qt_text.h"
#include "workbench/window/coverage_look.h"
#include "workbench/window/fitted_text.h"
#include "workbench/window/plan_texts.h"

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

/// Heights of the texts in metres of the plan; in pixels they stay within what can be read.
constexpr double kNameHeight = 0.24;
constexpr double kFigureHeight = 0.19;
constexpr int kLeastName = 8;
constexpr int kMostName = 22;
constexpr int kLeastFigure = 8;
constexpr int kMostFigure = 17;

/// In multiples of the font's size.
constexpr double kLineHeight = 1.3;
constexpr double kNameLine = 1.45;
constexpr double kColumnGap = 0.6;
/// From the middle of a line to its base line.
constexpr double kBaseLine = 0.36;

const QColor kNameColor(28, 34, 42);
const QColor kWhatColor(88, 97, 108);

int PixelsFor(double metres, double scale, int least, int most)
{
    return std::clamp(static_cast<int>(std::lround(metres * scale)), least, most);
}

} // namespace

CRoomLabel::CRoomLabel(const CRoom& room, Coverage coverage)
    : m_strName(ToQt(room.strName)), m_figures{
                                         {{"Fabbisogno", WattText(room.bedarf), kNameColor},
                                          {"Coperto", WattText(CoveredOf(room)), kNameColor},
                                          {"Resto", WattText(RemainderOf(room)), InkOf(coverage)}}}
{
}

const std::vector<CRoomLabel::CText>& CRoomLabel::Arrange(const QSizeF& area, double corner,
                                                          double scale) const
{
    if (area == m_area && corner == m_dCorner && scale == m_dScale) {
        return m_texts;
    }
    m_area = area;
    m_dCorner = corner;
    m_dScale = scale;
    m_texts.clear();
    for (int pixels = PixelsFor(kFigureHeight, scale, kLeastFigure, kMostFigure);
         pixels >= kLeastFigure; --pixels) {
        if (AddAll(scale, pixels)) {
            return m_texts;
        }
    }
    const int most = PixelsFor(kNameHeight, scale, kLeastName, kMostName);
    if (const auto name = FitText(m_strName, FreeWidth(most), most, kLeastName, true)) {
        AddText(name->strText, name->font, kNameColor, -name->dWidth / 2, 0.0);
    }
    return m_texts;
}

void CRoomLabel::Paint(QPainter& painter, const QPointF& middle, const QSizeF& area, double corner,
                       double scale) const
{
    for (const CText& text : Arrange(area, corner, scale)) {
        painter.setFont(text.font);
        painter.setPen(text.farbe);
        painter.drawText(middle + text.punkt, text.strText);
    }
}

double CRoomLabel::FreeWidth(double height) const
{
    if (height > m_area.height()) {
        return 0.0;
    }
    return height > m_area.height() - 2 * m_dCorner ? m_area.width() - 2 * m_dCorner
                                                    : m_area.width();
}

bool CRoomLabel::AddAll(double scale, int figurePixels) const
{
    const int most = PixelsFor(kNameHeight, scale, kLeastName, kMostName);
    const double figures = kLineHeight * figurePixels * static_cast<double>(m_figures.size());
    const double free = FreeWidth(kNameLine * most + figures);
    const double width = FiguresWidth(figurePixels);
    const auto name = FitText(m_strName, free, most, kLeastName, true);
    if (!name || width > free) {
        return false;
    }
    const double nameLine = kNameLine * name->font.pixelSize();
    const double top = -(nameLine + figures) / 2;
    AddText(name->strText, name->font, kNameColor, -name->dWidth / 2, top + nameLine / 2);
    AddFigures(top + nameLine, width, figurePixels);
    return true;
}

double CRoomLabel::FiguresWidth(int pixels) const
{
    double what = 0.0;
    double watt = 0.0;
    for (const CFigure& figure : m_figures) {
        what = std::max(what, WidthOf(figure.strWhat, PlanFont(pixels, false)));
        watt = std::max(watt, WidthOf(figure.strWatt, PlanFont(pixels, true)));
    }
    return what + kColumnGap * pixels + watt;
}

void CRoomLabel::AddFigures(double top, double width, int pixels) const
{
    const QFont strong = PlanFont(pixels, true);
    double middle = top + kLineHeight * pixels / 2;
    for (const CFigure& figure : m_figures) {
        AddText(figure.strWhat, PlanFont(pixels, false), kWhatColor, -width / 2, middle);
        AddText(figure.strWatt, strong, figure.farbe, width / 2 - WidthOf(figure.strWatt, strong),
                middle);
        middle += kLineHeight * pixels;
    }
}

void CRoomLabel::AddText(const QString& text, const QFont& font, const QColor& color, double left,
                         double middle) const
{
    m_texts.push_back(
        {text, font, color, {left, middle + kBaseLine * font.pixelSize()}, WidthOf(text, font)});
}

} // namespace workbench
