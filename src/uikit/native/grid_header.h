#pragma once

#include <QHeaderView>

class CGridView;

/// The headings of a grid.
class CGridHeader : public QHeaderView
{
public:
    explicit CGridHeader(CGridView& view);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;

private:
    CGridView& m_view;
};
