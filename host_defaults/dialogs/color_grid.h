#pragma once

#include "platform/export.h"

#include <QColor>
#include <QWidget>

#include <functional>

class QPainter;

namespace host_defaults {

/// The toolkit's form of a colour index.
HOST_API QColor ColorOf(int index);

/// Paints a colour with a thin edge that sets it off against any ground.
HOST_API void PaintSwatch(QPainter& painter, const QRectF& place, int index);

/// The 255 colours as a table of swatches: the nine fixed ones and the greys in the top row, below
/// them a column a hue. One of them is selected, with the mouse or the arrow keys.
class CColorGrid : public QWidget
{
public:
    explicit CColorGrid(QWidget* parent = nullptr);

    /// The selected colour index, 0 if there is none.
    int GetSelected() const { return m_selected; }

    /// Selects an index; one that is no colour clears the selection. Tells OnSelected of a change.
    void Select(int index);

    /// Called with the newly selected index.
    std::function<void(int)> OnSelected;
    /// Called when the user has chosen with a double click.
    std::function<void()> OnChosen;

    /// Where the swatch of an index lies in the widget.
    QRect PlaceOf(int index) const;

    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// Index of the swatch at a point, 0 if there is none.
    int IndexAt(const QPoint& point) const;

    int m_selected = 0;
};

} // namespace host_defaults
