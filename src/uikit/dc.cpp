#include "uikit/dc.h"

#include "uikit/native/access.h"
#include "uikit/native/canvas_widget.h"
#include "uikit/native/surface.h"

#include <QFontMetrics>
#include <QLinearGradient>

CNativeSurface::CNativeSurface(QSize imageSize)
    : image(imageSize.expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied), target(&image),
      size(imageSize)
{
    image.fill(Qt::transparent);
    painter.begin(target);
}

CNativeSurface::CNativeSurface(QImage* canvas, QWidget* canvasOwner)
    : target(canvas), owner(canvasOwner)
{
    if (canvas != nullptr && !canvas->isNull()) {
        size = canvas->deviceIndependentSize().toSize();
        painter.begin(canvas);
        painter.setFont(canvasOwner->font());
    }
}

CNativeSurface::CNativeSurface(QWidget* painting) : size(painting->size())
{
    painter.begin(painting);
}

CNativeSurface::~CNativeSurface()
{
    if (painter.isActive()) {
        painter.end();
    }
    if (owner) {
        owner->update();
    }
}

CPaintDC::CPaintDC(QWidget* painting) : CDC(std::make_unique<CNativeSurface>(painting)) {}

namespace {

std::unique_ptr<CNativeSurface> CanvasSurface(const CWnd& canvas)
{
    auto* widget = CNativeAccess::As<CCanvasWidget>(canvas);
    return std::make_unique<CNativeSurface>(widget != nullptr ? widget->Image() : nullptr, widget);
}

} // namespace

CDC::CDC(std::unique_ptr<CNativeSurface> surface) : m_surface(std::move(surface)) {}
CDC::~CDC() = default;

CClientDC::CClientDC(const CWnd& canvas) : CDC(CanvasSurface(canvas)) {}

CMemoryDC::CMemoryDC(CSize size) : CDC(std::make_unique<CNativeSurface>(QSize(size.cx, size.cy))) {}

bool CMemoryDC::IsReady() const
{
    return m_surface->painter.isActive();
}

CSize CDC::GetSize() const
{
    return {m_surface->size.width(), m_surface->size.height()};
}

void CDC::SetPen(COLORREF color, int width)
{
    QPen pen(ToNative(color), width);
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    m_surface->painter.setPen(pen);
}

void CDC::Line(CPoint from, CPoint to)
{
    m_surface->painter.drawLine(from.x, from.y, to.x, to.y);
}

void CDC::Polyline(const std::vector<CPoint>& points)
{
    QList<QPoint> native;
    for (const CPoint& p : points) {
        native.append({p.x, p.y});
    }
    m_surface->painter.drawPolyline(native.constData(), static_cast<int>(native.size()));
}

void CDC::Rectangle(const CRect& rect)
{
    m_surface->painter.setBrush(Qt::NoBrush);
    m_surface->painter.drawRect(ToNative(rect).adjusted(0, 0, -1, -1));
}

void CDC::FillRect(const CRect& rect, COLORREF color)
{
    m_surface->painter.fillRect(ToNative(rect), ToNative(color));
}

void CDC::FillGradient(const CRect& rect, COLORREF top, COLORREF bottom)
{
    QLinearGradient gradient(0, rect.top, 0, rect.bottom);
    gradient.setColorAt(0, ToNative(top));
    gradient.setColorAt(1, ToNative(bottom));
    m_surface->painter.fillRect(ToNative(rect), gradient);
}

void CDC::DrawFocusRect(const CRect& rect)
{
    QPen pen(Qt::black, 1, Qt::DotLine);
    m_surface->painter.save();
    m_surface->painter.setPen(pen);
    m_surface->painter.setBrush(Qt::NoBrush);
    m_surface->painter.drawRect(ToNative(rect).adjusted(0, 0, -1, -1));
    m_surface->painter.restore();
}

void CDC::TextOut(CPoint at, const CString& text, const CFont& font, COLORREF color, int escapement)
{
    QPainter& painter = m_surface->painter;
    if (!painter.isActive()) {
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(ToNative(font));
    painter.setPen(ToNative(color));
    painter.translate(at.x, at.y);
    painter.rotate(-escapement / 10.0);
    painter.drawText(0, painter.fontMetrics().ascent(), ToNative(text));
    painter.restore();
}

void CDC::DrawBitmap(CPoint at, const CBitmap& bitmap)
{
    m_surface->painter.drawImage(at.x, at.y, ToNative(bitmap));
}

void CDC::BitBlt(CPoint at, const CDC& source)
{
    const CNativeSurface& from = *source.m_surface;
    if (from.target != nullptr) {
        m_surface->painter.drawImage(at.x, at.y, *from.target);
    }
}

void CDC::ExcludeClipRect(const CRect& rect)
{
    QPainter& painter = m_surface->painter;
    const QRegion whole =
        painter.hasClipping() ? painter.clipRegion() : QRegion(QRect(QPoint(), m_surface->size));
    painter.setClipRegion(whole - QRegion(ToNative(rect)));
}
