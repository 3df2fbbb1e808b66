#include "uikit/scroll_canvas.h"

#include "uikit/dialog_template.h"
#include "uikit/native/access.h"
#include "uikit/native/dialog_window.h"
#include "uikit/native/surface.h"

#include <QAbstractScrollArea>
#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>

#include <functional>
#include <memory>
#include <utility>

namespace {

ScrollAction ActionOf(int action)
{
    switch (action) {
    case QAbstractSlider::SliderSingleStepSub:
        return ScrollAction::lineBack;
    case QAbstractSlider::SliderSingleStepAdd:
        return ScrollAction::lineForward;
    case QAbstractSlider::SliderPageStepSub:
        return ScrollAction::pageBack;
    case QAbstractSlider::SliderPageStepAdd:
        return ScrollAction::pageForward;
    case QAbstractSlider::SliderToMinimum:
        return ScrollAction::toStart;
    case QAbstractSlider::SliderToMaximum:
        return ScrollAction::toEnd;
    default:
        return ScrollAction::thumb;
    }
}

} // namespace

/// Shows a picture, and scroll bars whose positions a function decides.
class CScrollCanvasWidget : public QAbstractScrollArea
{
public:
    using Decide = std::function<int(ScrollAxis, ScrollAction, int)>;

    CScrollCanvasWidget(QWidget* parent, Decide decide)
        : QAbstractScrollArea(parent), m_decide(std::move(decide))
    {
        setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        setFocusPolicy(Qt::NoFocus);
        for (const ScrollAxis axis : {ScrollAxis::horizontal, ScrollAxis::vertical}) {
            SetBar(axis, 0, 0);
            QScrollBar* bar = Bar(axis);
            connect(bar, &QScrollBar::actionTriggered, this, [this, axis, bar](int action) {
                Ask(axis, ActionOf(action), bar->sliderPosition());
            });
            // "Scroll here" of a bar's menu moves it without an action.
            connect(bar, &QScrollBar::valueChanged, this, [this, axis](int value) {
                if (value != Decided(axis)) {
                    Ask(axis, ScrollAction::thumb, value);
                }
            });
        }
    }

    /// From now on the bars ask nobody what the user may do with them.
    void Detach() { m_decide = nullptr; }

    void SetBar(ScrollAxis axis, int size, int page)
    {
        Decided(axis) = 0;
        Bar(axis)->setValue(0);
        Bar(axis)->setRange(0, qMax(size - page, 0));
        Bar(axis)->setPageStep(page);
        const auto policy = size > 0 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff;
        if (axis == ScrollAxis::horizontal) {
            setHorizontalScrollBarPolicy(policy);
        } else {
            setVerticalScrollBarPolicy(policy);
        }
    }

    /// The picture, made new if it has another size.
    QImage* MakePicture(const QSize& size)
    {
        if (m_picture.size() != size) {
            m_picture = QImage(size, QImage::Format_ARGB32_Premultiplied);
        }
        return &m_picture;
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter(viewport()).drawImage(0, 0, m_picture);
    }
    /// The picture is drawn anew instead.
    void scrollContentsBy(int /*dx*/, int /*dy*/) override {}

private:
    QScrollBar* Bar(ScrollAxis axis) const
    {
        return axis == ScrollAxis::horizontal ? horizontalScrollBar() : verticalScrollBar();
    }

    int& Decided(ScrollAxis axis) { return axis == ScrollAxis::horizontal ? m_across : m_down; }

    void Ask(ScrollAxis axis, ScrollAction action, int position)
    {
        if (m_decide) {
            Decided(axis) = m_decide(axis, action, position);
            Bar(axis)->setSliderPosition(Decided(axis));
        }
    }

    Decide m_decide;
    // Where the bars were last told to stand.
    int m_across = 0;
    int m_down = 0;
    QImage m_picture;
};

namespace {

/// Draws on the picture that the widget shows.
class CPictureDC : public CDC
{
public:
    CPictureDC(CScrollCanvasWidget& widget, CSize size)
        : CDC(std::make_unique<CNativeSurface>(widget.MakePicture({size.cx, size.cy}),
                                               widget.viewport()))
    {
    }
};

/// Controls of a dialog stand below its caption bar.
QWidget* ParentFor(const CWnd& parent)
{
    const auto* dialog = CNativeAccess::As<CDialogWindow>(parent);
    return dialog != nullptr ? &dialog->Client() : CNativeAccess::Widget(parent);
}

} // namespace

CScrollCanvas::~CScrollCanvas()
{
    if (CScrollCanvasWidget* widget = Widget()) {
        widget->Detach();
    }
}

CScrollCanvasWidget* CScrollCanvas::Widget() const
{
    return static_cast<CScrollCanvasWidget*>(CNativeAccess::Widget(*this));
}

int CScrollCanvas::GetScrollBarWidth() const
{
    const QWidget* widget = CNativeAccess::Widget(*this);
    return widget != nullptr ? widget->style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
}

bool CScrollCanvas::CreateCanvas(unsigned style, const CRect& rect, const CWnd& parent)
{
    QWidget* owner = ParentFor(parent);
    if (owner == nullptr || IsWindow()) {
        return false;
    }
    auto* widget =
        new CScrollCanvasWidget(owner, [this](ScrollAxis axis, ScrollAction action, int position) {
            return OnScroll(axis, action, position);
        });
    widget->setGeometry(ToNative(rect));
    widget->setVisible((style & styleHidden) == 0);
    CNativeAccess::Attach(*this, widget);
    return true;
}

void CScrollCanvas::SetScrollBar(ScrollAxis axis, int size, int page)
{
    if (CScrollCanvasWidget* widget = Widget()) {
        widget->SetBar(axis, size, page);
    }
}

void CScrollCanvas::Show(const CMemoryDC& surface)
{
    if (CScrollCanvasWidget* widget = Widget()) {
        CPictureDC(*widget, surface.GetSize()).BitBlt({0, 0}, surface);
    }
}
