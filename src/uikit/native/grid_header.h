#pragma once

#include <QHeaderView>

class CGridView;

/// The headings of a grid, at its top or at its side. What the user may size it asks the grid.
class CGridHeader : public QHeaderView
{
public:
    CGridHeader(Qt::Orientation orientation, CGridView& view);

    /// Height of headings at the top, width of those at the side.
    void SetThickness(int thickness);
    int GetThickness() const { return m_thickness; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;

private:
    bool IsTop() const { return orientation() == Qt::Horizontal; }
    bool MaySize(int section);
    void AskWhatMayBeSized(const QPoint& at);
    bool IsOnSizingEdge(const QPoint& at);
    void DragThickness(int thickness);

    CGridView& m_view;
    int m_thickness = 0;
    bool m_dragging = false;
};
