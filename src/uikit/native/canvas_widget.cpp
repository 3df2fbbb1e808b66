#include "uikit/native/canvas_widget.h"

#include "uikit/dialog_template.h"
#include "uikit/native/contrast.h"

#include <QEvent>
#include <QPainter>

CCanvasWidget::CCanvasWidget(QWidget* parent, unsigned style)
    : QFrame(parent), m_pales((style & stylePales) != 0), m_paper((style & stylePaper) != 0)
{
    if ((style & styleSunken) != 0) {
        setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    }
    // The dialog draws on canvases while it paints itself; a transparent child would make it paint
    // itself again, without end.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QColor CCanvasWidget::Back() const
{
    const QColor around = palette().color(QPalette::Window);
    return m_paper && !IsReadable(Qt::black, around) ? QColor(Qt::white) : around;
}

QImage* CCanvasWidget::Image()
{
    const QSize wanted = contentsRect().size() * devicePixelRatio();
    if (m_image.size() != wanted) {
        m_image = QImage(wanted, QImage::Format_ARGB32_Premultiplied);
        m_image.setDevicePixelRatio(devicePixelRatio());
        m_image.fill(Back());
    }
    return &m_image;
}

void CCanvasWidget::Erase()
{
    Image()->fill(Back());
    update();
}

void CCanvasWidget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), Back());
    if (m_pales && !isEnabled()) {
        painter.setOpacity(0.4);
    }
    painter.drawImage(contentsRect().topLeft(), *Image());
    painter.setOpacity(1);
    drawFrame(&painter);
}

void CCanvasWidget::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    Erase();
}

void CCanvasWidget::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        Erase();
    }
}
