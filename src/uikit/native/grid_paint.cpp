#include "uikit/native/grid_paint.h"

#include "uikit/native/access.h"
#include "uikit/native/contrast.h"

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

namespace {

constexpr std::size_t kMostWidths = 20000;
constexpr double kNotNumeric = std::numeric_limits<double>::quiet_NaN();

Qt::Alignment AlignmentOf(GridAlign align)
{
    switch (align) {
    case GridAlign::center:
        return Qt::AlignCenter;
    case GridAlign::right:
        return Qt::AlignRight | Qt::AlignVCenter;
    case GridAlign::left:
        break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

QColor Mix(const QColor& a, const QColor& b, double part)
{
    const auto mix = [part](int from, int to) { return from + qRound((to - from) * part); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

bool HasArrow(const CUGCell& cell)
{
    return cell.GetCellType() == kGridSortArrowType;
}

} // namespace

CGridPaint::CGridPaint(const CGridModel& cells, const QFont& font) : m_cells(cells), m_metrics(font)
{
    SetFont(font);
}

void CGridPaint::SetFont(const QFont& font)
{
    m_font = font;
    m_metrics = QFontMetricsF(font);
    m_rowHeight = qCeil(m_metrics.height() * 1.25);
    m_padding = qRound(m_metrics.height() / 4.0);
    m_arrowRoom = qRound(m_metrics.height() * 0.8);
    m_widths.clear();
    m_numeric.fill(kNotNumeric);
    // Digits are of one width and do not kern in the fonts of user interfaces.
    for (const char16_t c : std::u16string_view(u"0123456789.-")) {
        m_numeric[c] = m_metrics.horizontalAdvance(QChar(c));
    }
}

void CGridPaint::SetBack(const QColor& back, bool highlight)
{
    m_back = back;
    m_highlight = highlight;
}

/// No number for a text with other characters than numbers have.
double CGridPaint::NumericWidth(std::wstring_view text) const
{
    double width = 0.0;
    for (const wchar_t c : text) {
        const std::size_t code = std::char_traits<wchar_t>::to_int_type(c);
        if (code >= m_numeric.size()) {
            return kNotNumeric;
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
        widest = std::max(widest, ShapedWidth(text.substr(begin, end - begin)));
        begin = end + 1;
    }
    return widest;
}

double CGridPaint::ShapedWidth(std::wstring_view line)
{
    const auto known = m_widths.find(line);
    if (known != m_widths.end()) {
        return known->second;
    }
    if (m_widths.size() >= kMostWidths) {
        m_widths.clear();
    }
    const CString text(line);
    return m_widths[text] = m_metrics.horizontalAdvance(ToNative(text));
}

/// What a cell keeps free of its text. An arrow has its room on both sides of a centred text, which
/// so stays in the middle.
QMargins CGridPaint::MarginsOf(const CUGCell& cell) const
{
    if (!HasArrow(cell)) {
        return {m_padding, 0, m_padding, 0};
    }
    const bool centered = cell.GetAlignment() == GridAlign::center;
    return {centered ? m_arrowRoom : m_padding, 0, m_arrowRoom, 0};
}

int CGridPaint::CellWidth(const CUGCell& cell)
{
    double widest = NumericWidth(cell.GetText());
    if (std::isnan(widest)) {
        widest = WidestLine(cell.GetText());
    }
    if (widest == 0.0 && !HasArrow(cell)) {
        return 0;
    }
    const QMargins margins = MarginsOf(cell);
    return qCeil(widest) + margins.left() + margins.right();
}

void CGridPaint::DrawCell(QPainter& painter, const QRect& rect, int column, int row) const
{
    const CUGCell* cell = m_cells.Find(column, row);
    if (cell == nullptr) {
        return;
    }
    painter.setFont(m_font);
    if (HasArrow(*cell)) {
        DrawArrow(painter, rect, cell->GetTypeFlag());
    }
    const QRect room = rect.marginsRemoved(MarginsOf(*cell));
    QStringList lines = ToNative(cell->GetText()).split(u'\n');
    for (QString& line : lines) {
        if (m_metrics.horizontalAdvance(line) > room.width()) {
            line = m_metrics.elidedText(line, Qt::ElideRight, room.width());
        }
    }
    painter.drawText(room, static_cast<int>(AlignmentOf(cell->GetAlignment())), lines.join(u'\n'));
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

void CGridPaint::paint(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const
{
    const QPalette& colors = option.palette;
    const QColor highlight = colors.color(QPalette::Active, QPalette::Highlight);
    const bool current = m_highlight && (option.state & QStyle::State_Selected) != 0;
    // The choice stays plain to see while the user is elsewhere in the dialog.
    const bool strong = current && option.widget->hasFocus();
    const QColor back = strong ? highlight : current ? Mix(m_back, highlight, 0.3) : m_back;
    const QRect rect = option.rect;
    painter->fillRect(rect, back);
    painter->setPen(current ? Mix(back, highlight, 0.4) : m_back.darker(109));
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
    if (!current) {
        painter->drawLine(rect.topRight(), rect.bottomRight());
    }
    painter->setPen(strong ? colors.color(QPalette::Active, QPalette::HighlightedText)
                           : ReadableInk(colors.color(QPalette::Active, QPalette::Text), back));
    DrawCell(*painter, rect.adjusted(0, 0, -1, -1), index.column(), index.row());
}
