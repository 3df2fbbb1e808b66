#include "host_defaults/dialogs/color_grid.h"

#include "host/host_base.h"
#include "host_defaults/dialogs/color_table.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <optional>

namespace host_defaults {

namespace {

constexpr int kSwatch = 18;
constexpr int kStep = 20;
/// Room around the swatches for the mark of the selected one.
constexpr int kMargin = 4;
/// Sets the hues off against the row above them.
constexpr int kGapBelowFixed = 10;

/// Edges must show on black and on white alike, and so are a grey between the two.
const QColor kEdge(128, 128, 128, 150);

QPoint CornerOf(const CColorPlace& place)
{
    const int gap = place.row > 0 ? kGapBelowFixed : 0;
    return {kMargin + place.column * kStep, kMargin + place.row * kStep + gap};
}

std::optional<ColorMove> MoveOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return ColorMove::left;
    case Qt::Key_Right:
        return ColorMove::right;
    case Qt::Key_Up:
        return ColorMove::up;
    case Qt::Key_Down:
        return ColorMove::down;
    default:
        return std::nullopt;
    }
}

} // namespace

QColor ColorOf(int index)
{
    const COLORREF color = GetRGBFromColor(index);
    return {GetRValue(color), GetGValue(color), GetBValue(color)};
}

void PaintSwatch(QPainter& painter, const QRectF& place, int index)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kEdge, 1));
    painter.setBrush(ColorOf(index));
    painter.drawRoundedRect(place.adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    painter.restore();
}

CColorGrid::CColorGrid(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(CColorGrid::sizeHint());
}

QSize CColorGrid::sizeHint() const
{
    const QPoint last = CornerOf({kColorRows - 1, kColorColumns - 1});
    return {last.x() + kSwatch + kMargin, last.y() + kSwatch + kMargin};
}

QRect CColorGrid::PlaceOf(int index) const
{
    return {CornerOf(PlaceOfColor(index)), QSize(kSwatch, kSwatch)};
}

int CColorGrid::IndexAt(const QPoint& point) const
{
    for (int index = kFirstColorIndex; index <= kLastColorIndex; ++index) {
        if (PlaceOf(index).adjusted(-1, -1, 1, 1).contains(point)) {
            return index;
        }
    }
    return 0;
}

void CColorGrid::Select(int index)
{
    const bool isColor = index >= kFirstColorIndex && index <= kLastColorIndex;
    const int selected = isColor ? index : 0;
    if (selected == m_selected) {
        return;
    }
    m_selected = selected;
    update();
    if (OnSelected) {
        OnSelected(m_selected);
    }
}

bool CColorGrid::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* const help = static_cast<QHelpEvent*>(event);
    const int index = IndexAt(help->pos());
    if (index == 0) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(help->globalPos(), QStringLiteral("Colore %1").arg(index), this,
                           PlaceOf(index));
    }
    return true;
}

void CColorGrid::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    for (int index = kFirstColorIndex; index <= kLastColorIndex; ++index) {
        PaintSwatch(painter, PlaceOf(index), index);
    }
    if (m_selected == 0) {
        return;
    }
    // Two rings, of which one stands out whatever the ground and the colour.
    const QRectF place = PlaceOf(m_selected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Base), 1.5));
    painter.drawRoundedRect(place.adjusted(0.25, 0.25, -0.25, -0.25), 2, 2);
    painter.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Text), 2.5));
    painter.drawRoundedRect(place.adjusted(-1.75, -1.75, 1.75, 1.75), 4, 4);
}

void CColorGrid::mousePressEvent(QMouseEvent* event)
{
    const int index = IndexAt(event->pos());
    if (index != 0) {
        Select(index);
    }
}

void CColorGrid::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (IndexAt(event->pos()) != 0 && OnChosen) {
        OnChosen();
    }
}

void CColorGrid::keyPressEvent(QKeyEvent* event)
{
    const std::optional<ColorMove> move = MoveOf(event->key());
    if (!move) {
        QWidget::keyPressEvent(event);
        return;
    }
    Select(NeighbourOf(m_selected, *move));
}

} // namespace host_defaults
