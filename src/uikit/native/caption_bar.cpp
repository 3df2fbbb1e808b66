#include "uikit/native/caption_bar.h"

#include "uikit/application.h"
#include "uikit/native/contrast.h"
#include "uikit/native/dialog_window.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>
#include <QWindow>

namespace {

constexpr int kHeightAtTemplateSize = 25;
constexpr int kTitleIndent = 10;

/// A flat button of the caption bar, red under the mouse if it closes.
class CCaptionButton : public QToolButton
{
public:
    /// The command whose picture it shows.
    CCaptionButton(QWidget* parent, unsigned command) : QToolButton(parent), m_command(command)
    {
        setFocusPolicy(Qt::NoFocus);
        setAttribute(Qt::WA_Hover);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const bool closes = m_command == systemClose;
        QColor ink = palette().color(QPalette::WindowText);
        if (underMouse()) {
            const QColor back =
                closes ? QColor(0xC4, 0x2B, 0x1C) : palette().color(QPalette::Midlight);
            painter.fillRect(rect(), back);
            ink = closes ? QColor(Qt::white) : ReadableInk(ink, back);
        }
        constexpr int kHalf = 4;
        const QPointF c = QRectF(rect()).center();
        painter.setRenderHint(QPainter::Antialiasing, closes);
        painter.setPen(QPen(ink, closes ? 1.3 : 1.0));
        switch (m_command) {
        case systemClose:
            painter.drawLine(c - QPointF(kHalf, kHalf), c + QPointF(kHalf, kHalf));
            painter.drawLine(c + QPointF(-kHalf, kHalf), c + QPointF(kHalf, -kHalf));
            break;
        case systemMaximize:
            painter.drawRect(QRectF(c.x() - kHalf, c.y() - kHalf, 2 * kHalf, 2 * kHalf).toRect());
            break;
        default:
            painter.drawLine(c - QPointF(kHalf, 0), c + QPointF(kHalf, 0));
        }
    }

private:
    unsigned m_command;
};

/// Dark palettes made by hand may leave the light role as light as it was.
QColor BackOf(const QPalette& palette)
{
    const QColor light = palette.color(QPalette::Light);
    const QColor ink = palette.color(QPalette::Active, QPalette::WindowText);
    return IsReadable(ink, light) ? light : palette.color(QPalette::Window);
}

} // namespace

CCaptionBar::CCaptionBar(CDialogWindow& window, unsigned frame)
    : QWidget(&window), m_window(window), m_maximizable((frame & frameMaximizeBox) != 0)
{
    AddButton("Chiudi", systemClose);
    if (m_maximizable) {
        AddButton("Ingrandisci", systemMaximize);
    }
    if ((frame & frameMinimizeBox) != 0) {
        AddButton("Riduci a icona", systemMinimize);
    }
    connect(&window, &QWidget::windowTitleChanged, this, qOverload<>(&QWidget::update));
}

void CCaptionBar::AddButton(const char* name, unsigned command)
{
    auto* button = new CCaptionButton(this, command);
    button->setAccessibleName(name);
    button->setToolTip(name);
    connect(button, &QToolButton::clicked, this, [this, command] {
        command == systemMaximize ? ToggleMaximized() : m_window.DoSystemCommand(command);
    });
    m_buttons.append(button);
}

void CCaptionBar::ToggleMaximized()
{
    m_window.DoSystemCommand(m_window.isMaximized() ? systemRestore : systemMaximize);
}

int CCaptionBar::Height()
{
    return qRound(kHeightAtTemplateSize * qMax(1.0, GetDialogScale()));
}

int CCaptionBar::ButtonWidth()
{
    return Height() * 5 / 4;
}

/// The help icon stands beside the buttons.
int CCaptionBar::WidthBesideTitle() const
{
    return kTitleIndent + ButtonWidth() * static_cast<int>(m_buttons.size() + 2);
}

int CCaptionBar::WidthForTitle() const
{
    return WidthBesideTitle() + fontMetrics().horizontalAdvance(m_window.windowTitle());
}

QRect CCaptionBar::TitleArea() const
{
    return {kTitleIndent, 0, width() - WidthBesideTitle(), height()};
}

void CCaptionBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    int right = width();
    for (QToolButton* button : m_buttons) {
        right -= ButtonWidth();
        button->setGeometry(right, 0, ButtonWidth(), height());
    }
}

void CCaptionBar::paintEvent(QPaintEvent* /*event*/)
{
    {
        QPainter painter(this);
        painter.fillRect(rect(), BackOf(palette()));
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawLine(0, height() - 1, width(), height() - 1);
        painter.setPen(
            palette().color(m_window.isActiveWindow() ? QPalette::Active : QPalette::Disabled,
                            QPalette::WindowText));
        const QRect area = TitleArea();
        painter.drawText(
            area, Qt::AlignLeft | Qt::AlignVCenter,
            fontMetrics().elidedText(m_window.windowTitle(), Qt::ElideRight, area.width()));
    }
    m_window.PaintBesideTitle();
}

void CCaptionBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    m_window.PressFrame(event->globalPosition().toPoint());
    if (!isVisible() || m_window.isMaximized()) {
        return;
    }
    m_dragOffset = event->globalPosition().toPoint() - m_window.pos();
    m_dragging = true;
}

/// The window system moves the window where it can, so that its edges snap as everywhere else.
void CCaptionBar::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_dragging) {
        return;
    }
    if (m_window.windowHandle() != nullptr && m_window.windowHandle()->startSystemMove()) {
        m_dragging = false;
        return;
    }
    m_window.move(event->globalPosition().toPoint() - m_dragOffset);
}

void CCaptionBar::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    m_dragging = false;
}

void CCaptionBar::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_maximizable) {
        ToggleMaximized();
    }
}

void CCaptionBar::contextMenuEvent(QContextMenuEvent* event)
{
    m_window.ShowSystemMenu(event->globalPos());
}
