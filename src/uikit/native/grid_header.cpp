#include "uikit/native/grid_header.h"

#include "uikit/native/contrast.h"
#include "uikit/native/grid_view.h"

#include <QPainter>

CGridHeader::CGridHeader(CGridView& view) : QHeaderView(Qt::Horizontal, &view), m_view(view)
{
    setSectionsClickable(true);
    setHighlightSections(false);
    setMinimumSectionSize(kGridMinColumnWidth);
    const auto click = [&view](int column, bool down) {
        view.Raise([=](CUGCtrl& grid) { grid.OnHeadingClick(column, -1, down); });
    };
    connect(this, &QHeaderView::sectionPressed, this, [click](int at) { click(at, true); });
    connect(this, &QHeaderView::sectionClicked, this, [click](int at) { click(at, false); });
}

void CGridHeader::paintEvent(QPaintEvent* /*event*/)
{
    const QColor back = m_view.BackColor(GridSection::topHeading);
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), back);
    const QColor between = back.darker(115);
    const int bottom = viewport()->height() - 1;
    for (int column = 0; column < count(); ++column) {
        const QRect rect(sectionViewportPosition(column), 0, sectionSize(column), bottom);
        painter.setPen(between);
        painter.drawLine(rect.right(), rect.top() + 4, rect.right(), rect.bottom() - 4);
        painter.setPen(ReadableInk(palette().color(QPalette::Text), back));
        m_view.Paint().DrawCell(painter, rect.adjusted(0, 0, -1, 0), column, -1);
    }
    painter.setPen(back.darker(140));
    painter.drawLine(0, bottom, viewport()->width(), bottom);
}

/// Quick clicks are clicks, each of which turns the sort around.
void CGridHeader::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

/// Headings show no selection, so that they need no painting when it moves.
QRegion CGridHeader::visualRegionForSelection(const QItemSelection& /*selection*/) const
{
    return {};
}
