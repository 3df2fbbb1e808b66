#pragma once

#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QImage>

#include <functional>

/// Shows a picture, and scroll bars whose positions a function decides.
class CScrollCanvasWidget : public QAbstractScrollArea
{
    Q_OBJECT

public:
    /// Given the bar, the toolkit's action and the place of the thumb; returns the place wanted.
    using Decide = std::function<int(Qt::Orientation, QAbstractSlider::SliderAction, int)>;

    CScrollCanvasWidget(QWidget* parent, Decide decide);

    /// The bars keep still from now on.
    void Detach();
    void SetBar(Qt::Orientation orientation, int size, int page);
    /// The picture, made new if it has another size.
    QImage* MakePicture(const QSize& size);

protected:
    /// An event of the area beside the bars.
    void paintEvent(QPaintEvent* event) override;
    /// The picture is drawn anew instead.
    void scrollContentsBy(int dx, int dy) override;

private:
    QScrollBar& Bar(Qt::Orientation orientation) const;
    void Follow(Qt::Orientation orientation);

    Decide m_decide;
    QImage m_picture;
};
