#pragma once

#include <QFrame>
#include <QImage>

/// A surface whose picture stays until it is erased: what is drawn on Image() shows at the next
/// painting, whenever it was drawn.
class CCanvasWidget : public QFrame
{
    Q_OBJECT

public:
    /// `style` holds values of ControlStyle.
    CCanvasWidget(QWidget* parent, unsigned style);

    /// The picture, of the size of the area inside the frame.
    QImage* Image();
    void Erase();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QColor Back() const;

    bool m_pales;
    bool m_paper;
    QImage m_image;
};
