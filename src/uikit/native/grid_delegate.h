#pragma once

#include <QStyledItemDelegate>

class CGridView;

/// Paints the cells of a grid.
class CGridDelegate : public QStyledItemDelegate
{
public:
    explicit CGridDelegate(CGridView& view);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    CGridView& m_view;
};
