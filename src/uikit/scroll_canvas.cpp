#include "uikit/scroll_canvas.h"

#include "uikit/dialog_template.h"
#include "uikit/native/access.h"
#include "uikit/native/dialog_window.h"
#include "uikit/native/scroll_canvas_widget.h"
#include "uikit/native/surface.h"

#include <QStyle>

#include <memory>

namespace {

using SliderAction = QAbstractSlider::SliderAction;

Qt::Orientation ToNative(ScrollAxis axis)
{
    return axis == ScrollAxis::horizontal ? Qt::Horizontal : Qt::Vertical;
}

ScrollAction FromNative(SliderAction action)
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
    case QAbstractSlider::SliderMove:
    case QAbstractSlider::SliderNoAction:
        break;
    }
    return ScrollAction::thumb;
}

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
    return CNativeAccess::As<CScrollCanvasWidget>(*this);
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
    auto* widget = new CScrollCanvasWidget(
        owner, [this](Qt::Orientation orientation, SliderAction action, int position) {
            const auto axis =
                orientation == Qt::Horizontal ? ScrollAxis::horizontal : ScrollAxis::vertical;
            return OnScroll(axis, FromNative(action), position);
        });
    widget->setGeometry(ToNative(rect));
    widget->setVisible((style & styleHidden) == 0);
    CNativeAccess::Attach(*this, widget);
    return true;
}

void CScrollCanvas::SetScrollBar(ScrollAxis axis, int size, int page)
{
    if (CScrollCanvasWidget* widget = Widget()) {
        widget->SetBar(ToNative(axis), size, page);
    }
}

void CScrollCanvas::Show(const CMemoryDC& surface)
{
    if (CScrollCanvasWidget* widget = Widget()) {
        CPictureDC(*widget, surface.GetSize()).BitBlt({0, 0}, surface);
    }
}
