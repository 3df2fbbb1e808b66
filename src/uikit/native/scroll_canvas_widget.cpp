#include "uikit/native/scroll_canvas_widget.h"

#include <QPainter>
#include <QScrollBar>

#include <utility>

CScrollCanvasWidget::CScrollCanvasWidget(QWidget* parent, Decide decide)
    : QAbstractScrollArea(parent), m_decide(std::move(decide))
{
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setFocusPolicy(Qt::NoFocus);
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        SetBar(orientation, 0, 0);
        Follow(orientation);
    }
}

QScrollBar& CScrollCanvasWidget::Bar(Qt::Orientation orientation) const
{
    return orientation == Qt::Horizontal ? *horizontalScrollBar() : *verticalScrollBar();
}

void CScrollCanvasWidget::Follow(Qt::Orientation orientation)
{
    QScrollBar& bar = Bar(orientation);
    connect(&bar, &QScrollBar::actionTriggered, this, [this, orientation, &bar](int action) {
        if (m_decide) {
            bar.setSliderPosition(m_decide(orientation,
                                           static_cast<QAbstractSlider::SliderAction>(action),
                                           bar.sliderPosition()));
        }
    });
}

void CScrollCanvasWidget::Detach()
{
    m_decide = nullptr;
}

void CScrollCanvasWidget::SetBar(Qt::Orientation orientation, int size, int page)
{
    QScrollBar& bar = Bar(orientation);
    bar.setRange(0, qMax(size - page, 0));
    bar.setPageStep(page);
    bar.setValue(0);
    const auto policy = size > 0 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff;
    if (orientation == Qt::Horizontal) {
        setHorizontalScrollBarPolicy(policy);
    } else {
        setVerticalScrollBarPolicy(policy);
    }
}

QImage* CScrollCanvasWidget::MakePicture(const QSize& size)
{
    if (m_picture.size() != size) {
        m_picture = QImage(size, QImage::Format_ARGB32_Premultiplied);
    }
    return &m_picture;
}

void CScrollCanvasWidget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(viewport()).drawImage(0, 0, m_picture);
}

void CScrollCanvasWidget::scrollContentsBy(int /*dx*/, int /*dy*/) {}
