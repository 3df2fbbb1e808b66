#include "uikit/native/grid_header.h"

#include "uikit/native/access.h"
#include "uikit/native/grid_view.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

/// Reach of the edge by which the whole heading is sized.
constexpr int kEdge = 3;

} // namespace

CGridHeader::CGridHeader(Qt::Orientation orientation, CGridView& view)
    : QHeaderView(orientation, &view), m_view(view)
{
    setSectionsClickable(IsTop());
    setHighlightSections(false);
    setMinimumSectionSize(kGridMinColumnWidth);
    setSectionResizeMode(QHeaderView::Fixed);
    const auto click = [&view](int column, bool down) {
        view.Raise([=](CUGCtrl& grid) { grid.OnHeadingClick(column, -1, down); });
    };
    if (IsTop()) {
        connect(this, &QHeaderView::sectionPressed, this, [click](int at) { click(at, true); });
        connect(this, &QHeaderView::sectionClicked, this, [click](int at) { click(at, false); });
    }
}

void CGridHeader::SetThickness(int thickness)
{
    m_thickness = thickness;
    setVisible(thickness > 0);
    if (IsTop()) {
        setFixedHeight(thickness);
    } else {
        setFixedWidth(thickness);
    }
    emit geometriesChanged();
}

void CGridHeader::paintEvent(QPaintEvent* event)
{
    if (!IsTop()) {
        QHeaderView::paintEvent(event);
        return;
    }
    const QColor back = m_view.BackColor(GridSection::topHeading);
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), back);
    const QColor between = back.darker(115);
    const int bottom = viewport()->height() - 1;
    for (int column = 0; column < count(); ++column) {
        const QRect rect(sectionViewportPosition(column), 0, sectionSize(column), bottom);
        painter.setPen(between);
        painter.drawLine(rect.right(), rect.top() + 4, rect.right(), rect.bottom() - 4);
        painter.setPen(palette().color(QPalette::Text));
        m_view.DrawCell(painter, rect.adjusted(0, 0, -1, 0), column, -1);
    }
    painter.setPen(back.darker(140));
    painter.drawLine(0, bottom, viewport()->width(), bottom);
}

bool CGridHeader::MaySize(int section)
{
    return m_view.Ask(false, [&](CUGCtrl& grid) {
        return IsTop() ? grid.OnMaySizeColumn(section) : grid.OnMaySizeRow(section);
    });
}

/// Brings the sections whose edge may be meant to what the grid allows.
void CGridHeader::AskWhatMayBeSized(const QPoint& at)
{
    const int under = logicalIndexAt(at);
    const int behind = under >= 0 ? under : count();
    for (const int section : {behind - 1, behind}) {
        if (section >= 0 && section < count()) {
            const ResizeMode mode = MaySize(section) ? Interactive : Fixed;
            if (sectionResizeMode(section) != mode) {
                setSectionResizeMode(section, mode);
            }
        }
    }
}

bool CGridHeader::IsOnSizingEdge(const QPoint& at)
{
    const int fromEdge = IsTop() ? height() - at.y() : width() - at.x();
    return fromEdge <= kEdge && m_view.Ask(false, [this](CUGCtrl& grid) {
        return IsTop() ? grid.OnMaySizeHeadingHeight() : grid.OnMaySizeSideHeading();
    });
}

void CGridHeader::DragThickness(int thickness)
{
    int wanted = qMax(thickness, kEdge);
    const bool accepted = m_view.Ask(false, [&](CUGCtrl& grid) {
        return IsTop() ? grid.OnHeadingHeightSizing(&wanted) : grid.OnSideHeadingSizing(&wanted);
    });
    if (accepted) {
        SetThickness(wanted);
    }
}

void CGridHeader::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && IsOnSizingEdge(event->pos())) {
        m_dragging = true;
        return;
    }
    AskWhatMayBeSized(event->pos());
    QHeaderView::mousePressEvent(event);
}

void CGridHeader::mouseMoveEvent(QMouseEvent* event)
{
    if (m_dragging) {
        DragThickness(IsTop() ? event->pos().y() : event->pos().x());
        return;
    }
    if (event->buttons() == Qt::NoButton) {
        if (IsOnSizingEdge(event->pos())) {
            setCursor(IsTop() ? Qt::SplitVCursor : Qt::SplitHCursor);
            return;
        }
        AskWhatMayBeSized(event->pos());
    }
    QHeaderView::mouseMoveEvent(event);
}

void CGridHeader::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_dragging) {
        QHeaderView::mouseReleaseEvent(event);
        return;
    }
    m_dragging = false;
    int size = GetThickness();
    const bool accepted = m_view.Ask(false, [&](CUGCtrl& grid) {
        return IsTop() ? grid.OnHeadingHeightSized(&size) : grid.OnSideHeadingSized(&size);
    });
    if (accepted) {
        SetThickness(size);
    }
}

/// Quick clicks are clicks, each of which turns the sort around.
void CGridHeader::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

bool CGridHeader::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QHeaderView::viewportEvent(event);
    }
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const int section = logicalIndexAt(help.pos());
    const int begin = sectionViewportPosition(section);
    const int size = sectionSize(section);
    if (IsTop()) {
        m_view.ShowToolTip({help.globalPos(), viewport(), QRect(begin, 0, size, height())}, section,
                           -1, GridSection::topHeading);
    } else {
        m_view.ShowToolTip({help.globalPos(), viewport(), QRect(0, begin, width(), size)}, -1,
                           section, GridSection::sideHeading);
    }
    return true;
}

/// The headings at the top show no selection, so that they need no painting when it moves.
QRegion CGridHeader::visualRegionForSelection(const QItemSelection& selection) const
{
    return IsTop() ? QRegion() : QHeaderView::visualRegionForSelection(selection);
}
