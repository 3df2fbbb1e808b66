#include "uikit/native/grid_paint.h"

#include "uikit/native/access.h"

#include <QApplication>
#include <QStyle>
#include <QStyleOptionButton>
#include <QtMath>

#include <algorithm>

namespace {

constexpr std::size_t kMostWidths = 20000;

Qt::Alignment AlignmentOf(GridAlign align)
{
    switch (align) {
    case GridAlign::center:
        return Qt::AlignHCenter | Qt::AlignVCenter;
    case GridAlign::right:
        return Qt::AlignRight | Qt::AlignVCenter;
    case GridAlign::left:
        break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

void DrawButton(QPainter& painter, const QRect& rect, const QString& text)
{
    QStyleOptionButton option;
    option.rect = rect.adjusted(1, 1, -1, -1);
    option.text = text;
    option.state = QStyle::State_Enabled | QStyle::State_Raised;
    QApplication::style()->drawControl(QStyle::CE_PushButton, &option, &painter);
}

} // namespace

CGridPaint::CGridPaint(const QFont& font)
    : m_font(font), m_metrics(font), m_rowHeight(qCeil(m_metrics.height() * 1.25)),
      m_padding(qRound(m_metrics.height() / 4.0)), m_arrowRoom(qRound(m_metrics.height() * 0.8))
{
    m_numeric.fill(-1.0);
    // Digits are of one width and do not kern in the fonts of user interfaces.
    for (const char16_t c : std::u16string_view(u"0123456789.-")) {
        m_numeric[c] = m_metrics.horizontalAdvance(QChar(c));
    }
}

/// Below 0 for a text with other characters than numbers have.
double CGridPaint::NumericWidth(std::wstring_view text) const
{
    double width = 0.0;
    for (const wchar_t c : text) {
        const auto code = static_cast<std::size_t>(c);
        if (code >= m_numeric.size() || m_numeric[code] < 0.0) {
            return -1.0;
        }
        width += m_numeric[code];
    }
    return width;
}

double CGridPaint::WidestLine(std::wstring_view text)
{
    double widest = 0.0;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find(L'\n', begin), text.size());
        widest = std::max(widest, ShapedWidth(CString(text.substr(begin, end - begin))));
        begin = end + 1;
    }
    return widest;
}

double CGridPaint::ShapedWidth(const CString& line)
{
    if (m_widths.size() > kMostWidths) {
        m_widths.clear();
    }
    const auto [entry, isNew] = m_widths.try_emplace(line, 0.0);
    if (isNew) {
        entry->second = m_metrics.horizontalAdvance(ToNative(line));
    }
    return entry->second;
}

/// What a cell keeps free of its text. An arrow has its room on both sides of a centred text, which
/// so stays in the middle.
QMargins CGridPaint::MarginsOf(const CUGCell& cell, GridCellKind kind) const
{
    if (kind != GridCellKind::sortArrow) {
        return {m_padding, 0, m_padding, 0};
    }
    const bool centered = cell.GetAlignment() == GridAlign::center;
    return {centered ? m_arrowRoom : m_padding, 0, m_arrowRoom, 0};
}

int CGridPaint::CellWidth(const CUGCell& cell, GridCellKind kind)
{
    double widest = NumericWidth(cell.GetText());
    if (widest < 0.0) {
        widest = WidestLine(cell.GetText());
    }
    if (widest == 0.0 && kind != GridCellKind::sortArrow) {
        return 0;
    }
    const QMargins margins = MarginsOf(cell, kind);
    return qCeil(widest) + margins.left() + margins.right();
}

void CGridPaint::DrawCell(QPainter& painter, const QRect& rect, const CUGCell& cell,
                          GridCellKind kind) const
{
    painter.setFont(m_font);
    const QString text = ToNative(cell.GetText());
    if (kind == GridCellKind::button) {
        DrawButton(painter, rect, text);
        return;
    }
    if (kind == GridCellKind::sortArrow) {
        DrawArrow(painter, rect, cell.GetTypeFlag());
    }
    const QRect room = rect.marginsRemoved(MarginsOf(cell, kind));
    QStringList lines = text.split(u'\n');
    for (QString& line : lines) {
        if (m_metrics.horizontalAdvance(line) > room.width()) {
            line = m_metrics.elidedText(line, Qt::ElideRight, room.width());
        }
    }
    painter.drawText(room, static_cast<int>(AlignmentOf(cell.GetAlignment())), lines.join(u'\n'));
}

void CGridPaint::DrawArrow(QPainter& painter, const QRect& rect, int flag) const
{
    const double half = m_metrics.height() / 4.0;
    const double rise = flag == kSortArrowDescending ? -half / 2 : half / 2;
    const QPointF center(rect.right() + 1 - m_arrowRoom / 2.0, rect.center().y() + 0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(120, 128, 140));
    painter.drawPolygon(QPolygonF(
        {center + QPointF(-half, rise), center + QPointF(half, rise), center + QPointF(0, -rise)}));
    painter.restore();
}
