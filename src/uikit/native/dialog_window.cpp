#include "uikit/native/dialog_window.h"

#include "uikit/application.h"
#include "uikit/native/access.h"
#include "uikit/native/canvas_widget.h"
#include "uikit/native/caption_bar.h"
#include "uikit/native/caption_room.h"
#include "uikit/native/colors.h"
#include "uikit/native/combo_widget.h"
#include "uikit/native/contrast.h"
#include "uikit/native/control_factory.h"
#include "uikit/native/small_widgets.h"
#include "uikit/native/surface.h"
#include "uikit/native/tree_widget.h"

#include <QButtonGroup>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QWindow>

#include <algorithm>

namespace {

/// Width of the strip at which a window is sized.
constexpr int kSizingBorder = 5;

bool IsSystemMenuKey(const QKeyEvent& event)
{
    return event.modifiers() == Qt::AltModifier && event.key() == Qt::Key_Space;
}

bool IsPlain(const QKeyEvent& event)
{
    return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

bool IsEnter(const QKeyEvent& event)
{
    return IsPlain(event) && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter);
}

/// True for an edit or combo box whose focus goes to another control.
bool LosesFocus(const QWidget& control, Qt::FocusReason reason)
{
    return reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason &&
           (qobject_cast<const QLineEdit*>(&control) != nullptr ||
            qobject_cast<const QComboBox*>(&control) != nullptr);
}

bool IsClick(const QWidget& control, const QMouseEvent& release)
{
    return control.isEnabled() && release.button() == Qt::LeftButton &&
           control.rect().contains(release.pos());
}

} // namespace

/// The area below the caption bar.
class CClientArea : public QWidget
{
public:
    explicit CClientArea(CDialogWindow& window) : QWidget(&window), m_window(window) {}

protected:
    void paintEvent(QPaintEvent* event) override
    {
        m_window.PaintClient(!IsBelowControls(event->region()));
    }

private:
    /// A control that paints itself anew has the toolkit paint what lies below it first.
    bool IsBelowControls(QRegion region) const
    {
        for (const QObject* child : children()) {
            const auto* control = qobject_cast<const QWidget*>(child);
            if (control != nullptr && control->isVisible()) {
                region -= control->geometry();
            }
        }
        return region.isEmpty();
    }

    CDialogWindow& m_window;
};

CDialogWindow* WindowOf(const CDialog& dialog)
{
    return CNativeAccess::As<CDialogWindow>(dialog);
}

CDialogWindow::CDialogWindow(CDialog& dialog, QWidget* owner)
    : QWidget(owner, Qt::Dialog | Qt::FramelessWindowHint), m_dialog(dialog),
      m_font(dialog.GetTemplate().font), m_baseUnits(GetDialogBaseUnits(GetDialogFont()))
{
    setWindowModality(Qt::ApplicationModal);
    setFont(GetDialogFont());
    m_caption = new CCaptionBar(*this, dialog.GetTemplate().frame);
    m_client = new CClientArea(*this);
    m_scroll = new QScrollArea(this);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->viewport()->setAutoFillBackground(false);
    m_scroll->setWidget(m_client);
    m_client->setAutoFillBackground(false);
    setMouseTracking(dialog.IsResizable());
    // The pointer of the sizing border would stay while the mouse is inside.
    m_caption->setCursor(Qt::ArrowCursor);
    m_scroll->setCursor(Qt::ArrowCursor);
}

CDialogWindow::~CDialogWindow() = default;

void CDialogWindow::PaintBesideTitle()
{
    m_dialog.Guard([this] {
        CPaintDC dc(m_caption);
        m_dialog.OnNcPaint(dc);
    });
}

void CDialogWindow::PressFrame(const QPoint& screen)
{
    m_dialog.Guard([&] { m_dialog.OnNcLButtonDown({screen.x(), screen.y()}); });
}

QRect CDialogWindow::MapUnits(const CRect& units) const
{
    const auto across = [&](int x) { return qRound(x * m_baseUnits.width() / 4.0); };
    const auto down = [&](int y) { return qRound(y * m_baseUnits.height() / 8.0); };
    const QPoint corner(across(units.left), down(units.top));
    return {corner, QSize(across(units.right) - corner.x(), down(units.bottom) - corner.y())};
}

void CDialogWindow::Fill(const DialogTemplate& dialogTemplate)
{
    const auto place = [this](const ControlTemplate& control) {
        return MapUnits({control.x, control.y, control.x + control.cx, control.y + control.cy});
    };
    std::vector<QWidget*> widgets;
    const int title = m_caption->WidthForTitle() - 2 * Border();
    double width = std::max(m_baseUnits.width(), 4.0 * title / dialogTemplate.cx);
    for (const ControlTemplate& control : dialogTemplate.controls) {
        widgets.push_back(Add(control, place(control)));
        width = std::max(width, BaseWidthForCaption(control, *widgets.back()));
    }
    if (width > m_baseUnits.width()) {
        m_baseUnits.setWidth(width);
        for (std::size_t i = 0; i < widgets.size(); ++i) {
            widgets[i]->setGeometry(place(dialogTemplate.controls[i]));
        }
    }
    SetClientSize(MapUnits({0, 0, dialogTemplate.cx, dialogTemplate.cy}).size());
}

QWidget* CDialogWindow::Find(int id) const
{
    const auto found = m_controls.find(id);
    return found == m_controls.end() ? nullptr : found->second.data();
}

QWidget* CDialogWindow::Add(const ControlTemplate& control, const QRect& pixels)
{
    QWidget* widget = MakeControl(control, *m_client);
    widget->setGeometry(pixels);
    widget->installEventFilter(this);
    SetControlId(*widget, control.id);
    if (control.id != kNoId) {
        m_controls[control.id] = widget;
    }
    if ((control.style & styleNotify) != 0) {
        m_notifying.insert(widget);
    }
    if (auto* radio = qobject_cast<QRadioButton*>(widget)) {
        if ((control.style & styleGroup) != 0 || m_lastGroup == nullptr) {
            m_lastGroup = new QButtonGroup(this);
        }
        m_lastGroup->addButton(radio);
    }
    Connect(*widget, control);
    return widget;
}

void CDialogWindow::Connect(QWidget& widget, const ControlTemplate& control)
{
    const int id = control.id;
    const auto tells = [this, id](ControlEvent event) {
        return [this, id, event] { Tell(id, event); };
    };
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        connect(button, &QAbstractButton::clicked, this, tells(ControlEvent::clicked));
    } else if (auto* edit = qobject_cast<QLineEdit*>(&widget)) {
        connect(edit, &QLineEdit::textChanged, this, tells(ControlEvent::textChanged));
    } else if (auto* combo = qobject_cast<CComboWidget*>(&widget)) {
        connect(combo, &QComboBox::activated, this, tells(ControlEvent::selectionEnded));
        if (combo->isEditable()) {
            connect(combo->lineEdit(), &QLineEdit::textEdited, this,
                    tells(ControlEvent::editChanged));
        }
    } else if (auto* spin = qobject_cast<CSpinWidget*>(&widget)) {
        connect(spin, &CSpinWidget::Stepped, this, [this, id](int delta) {
            CNotify notify{id, ControlEvent::step, delta};
            m_dialog.Raise(notify);
        });
    } else if (auto* tree = qobject_cast<CTreeWidget*>(&widget)) {
        connect(tree, &CTreeWidget::ChoiceChanged, this, [this, id](QTreeWidgetItem* item) {
            CNotify notify{id, ControlEvent::treeSelectionChanged};
            notify.item = reinterpret_cast<HTREEITEM>(item);
            m_dialog.Raise(notify);
        });
        tree->SetMayExpand([this, id](QTreeWidgetItem* item) {
            CNotify notify{id, ControlEvent::treeItemExpanding};
            notify.item = reinterpret_cast<HTREEITEM>(item);
            m_dialog.Raise(notify);
            return notify.result == 0;
        });
    }
}

std::vector<QRadioButton*> CDialogWindow::RadioGroup(int firstId) const
{
    std::vector<QRadioButton*> group;
    const auto* first = qobject_cast<QRadioButton*>(Find(firstId));
    if (first == nullptr || first->group() == nullptr) {
        return group;
    }
    for (QAbstractButton* button : first->group()->buttons()) {
        group.push_back(qobject_cast<QRadioButton*>(button));
    }
    return group;
}

void CDialogWindow::Tell(int id, ControlEvent event)
{
    CNotify notify{id, event};
    m_dialog.Raise(notify);
}

void CDialogWindow::StartTimer(int id, int milliseconds)
{
    StopTimer(id);
    auto* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [this, id] {
        if (!m_dialog.HasEnded()) {
            m_dialog.Guard([&] { m_dialog.OnTimer(id); });
        }
    });
    timer->start(milliseconds);
    m_timers[id] = timer;
}

void CDialogWindow::StopTimer(int id)
{
    const auto found = m_timers.find(id);
    if (found != m_timers.end()) {
        found->second->stop();
        found->second->deleteLater();
        m_timers.erase(found);
    }
}

void CDialogWindow::ApplyColors()
{
    m_dialog.Guard([this] {
        const ControlColors dialog = m_dialog.OnCtlColor(ColorKind::dialog);
        if (dialog.brush) {
            QPalette colors = m_client->palette();
            SetBack(colors, QPalette::Window, ToNative(*dialog.brush));
            m_client->setPalette(colors);
        }
        for (const auto& [id, widget] : m_controls) {
            if (widget) {
                ApplyControlColors(*widget,
                                   [this](ColorKind kind) { return m_dialog.OnCtlColor(kind); });
            }
        }
    });
}

void CDialogWindow::FocusFirst()
{
    for (QWidget* widget = nextInFocusChain(); widget != nullptr && widget != this;
         widget = widget->nextInFocusChain()) {
        const bool takesTab = (widget->focusPolicy() & Qt::TabFocus) != 0;
        if (takesTab && widget->isEnabled() && !widget->isHidden()) {
            widget->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

void CDialogWindow::ShowSystemMenu(const QPoint& screen)
{
    QMenu menu(this);
    const auto add = [&](const QString& text, unsigned id, bool enabled) {
        QAction* action = menu.addAction(text);
        action->setEnabled(enabled);
        action->setData(id);
    };
    const unsigned frame = m_dialog.GetTemplate().frame;
    if ((frame & (frameMinimizeBox | frameMaximizeBox)) != 0) {
        add("&Ripristina", systemRestore, isMaximized());
        add("Riduci a &icona", systemMinimize, (frame & frameMinimizeBox) != 0);
        add("In&grandisci", systemMaximize, (frame & frameMaximizeBox) != 0 && !isMaximized());
    }
    add("&Chiudi\tAlt+F4", systemClose, true);
    for (const CMenu::Entry& entry : m_dialog.GetSystemMenu().GetEntries()) {
        if (entry.id == 0) {
            menu.addSeparator();
        } else {
            add(ToNative(entry.text), entry.id, true);
        }
    }
    if (const QAction* chosen = menu.exec(screen)) {
        const unsigned id = chosen->data().toUInt();
        m_dialog.Guard([&] { m_dialog.OnSysCommand(id); });
    }
}

void CDialogWindow::NextControl()
{
    focusNextPrevChild(true);
}

void CDialogWindow::DoSystemCommand(unsigned id)
{
    switch (id) {
    case systemRestore:
        showNormal();
        break;
    case systemMinimize:
        showMinimized();
        break;
    case systemMaximize:
        showMaximized();
        break;
    case systemClose:
        Tell(kIdCancel, ControlEvent::clicked);
        break;
    default:
        break;
    }
}

void CDialogWindow::RunLoop()
{
    // Showing may have ended the dialog.
    if (m_dialog.HasEnded()) {
        return;
    }
    QEventLoop loop;
    m_loop = &loop;
    loop.exec();
    m_loop = nullptr;
}

void CDialogWindow::Leave()
{
    if (m_loop != nullptr) {
        m_loop->quit();
    }
}

void CDialogWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    LayOut();
    const SizeKind kind = isMinimized()   ? SizeKind::minimized
                          : isMaximized() ? SizeKind::maximized
                                          : SizeKind::normal;
    m_dialog.Guard([&] { m_dialog.OnSize(kind); });
}

void CDialogWindow::moveEvent(QMoveEvent* event)
{
    QWidget::moveEvent(event);
    if (!isMinimized()) {
        m_dialog.Guard([this] { m_dialog.OnMove(); });
    }
}

void CDialogWindow::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_client->palette().window());
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void CDialogWindow::PaintClient(bool dialogShows)
{
    m_dialog.Guard([this] {
        CPaintDC dc(m_client);
        m_dialog.OnEraseBackground(dc);
    });
    if (dialogShows) {
        m_dialog.Guard([this] { m_dialog.OnPaint(); });
    }
}

void CDialogWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    Tell(kIdCancel, ControlEvent::clicked);
}

/// Enter presses the button that has the focus, or else the default one if it may be pressed.
void CDialogWindow::PressDefault()
{
    if (auto* focused = qobject_cast<QPushButton*>(focusWidget())) {
        focused->click();
        return;
    }
    const auto* standard = qobject_cast<QAbstractButton*>(Find(kIdOk));
    if (standard == nullptr || standard->isEnabled()) {
        Tell(kIdOk, ControlEvent::clicked);
    }
}

/// Sees what happens to controls before they do. They would take the key of the system menu for a
/// blank, and on some desktops Enter for a press of a check box or the opening of a list. A list
/// that is open is a window of its own and keeps its keys.
bool CDialogWindow::eventFilter(QObject* object, QEvent* event)
{
    const auto& control = static_cast<const QWidget&>(*object);
    switch (event->type()) {
    case QEvent::KeyPress:
        if (IsSystemMenuKey(*static_cast<QKeyEvent*>(event)) ||
            IsEnter(*static_cast<QKeyEvent*>(event))) {
            keyPressEvent(static_cast<QKeyEvent*>(event));
            return true;
        }
        break;
    case QEvent::FocusIn:
        m_scroll->ensureWidgetVisible(static_cast<QWidget*>(object), 0, 0);
        break;
    case QEvent::FocusOut:
        if (LosesFocus(control, static_cast<QFocusEvent*>(event)->reason())) {
            Tell(GetControlId(control), ControlEvent::focusLost);
        }
        break;
    case QEvent::MouseButtonRelease:
        if (m_notifying.contains(&control) && IsClick(control, *static_cast<QMouseEvent*>(event))) {
            Tell(GetControlId(control), ControlEvent::clicked);
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(object, event);
}

void CDialogWindow::keyPressEvent(QKeyEvent* event)
{
    const bool plain = IsPlain(*event);
    const bool closes = event->modifiers() == Qt::AltModifier && event->key() == Qt::Key_F4;
    if (IsEnter(*event)) {
        PressDefault();
    } else if (closes || (plain && event->key() == Qt::Key_Escape)) {
        Tell(kIdCancel, ControlEvent::clicked);
    } else if (plain && event->key() == Qt::Key_F1) {
        m_dialog.Guard([this] { m_dialog.OnHelp(); });
    } else if (IsSystemMenuKey(*event)) {
        ShowSystemMenu(mapToGlobal(QPoint(0, CCaptionBar::Height())));
    } else {
        QWidget::keyPressEvent(event);
    }
}

int CDialogWindow::Border() const
{
    return m_dialog.IsResizable() ? kSizingBorder : 1;
}

Qt::Edges CDialogWindow::EdgesAt(const QPoint& place) const
{
    Qt::Edges edges;
    if (!m_dialog.IsResizable() || isMaximized()) {
        return edges;
    }
    constexpr int kCorner = 3 * kSizingBorder;
    const bool nearTop = place.y() < kCorner;
    const bool nearBottom = place.y() >= height() - kCorner;
    const bool onSide = place.x() < kSizingBorder || place.x() >= width() - kSizingBorder;
    const bool onBottom = place.y() >= height() - kSizingBorder;
    edges.setFlag(Qt::LeftEdge, place.x() < (onBottom ? kCorner : kSizingBorder));
    edges.setFlag(Qt::RightEdge, place.x() >= width() - (onBottom ? kCorner : kSizingBorder));
    edges.setFlag(Qt::BottomEdge, onBottom || (onSide && nearBottom));
    edges.setFlag(Qt::TopEdge, onSide && nearTop);
    // What has one size only has no edge to pull at, and a corner pulls at the other one.
    if (minimumWidth() == maximumWidth()) {
        edges &= ~(Qt::LeftEdge | Qt::RightEdge);
    }
    if (minimumHeight() == maximumHeight()) {
        edges &= ~(Qt::TopEdge | Qt::BottomEdge);
    }
    return edges;
}

void CDialogWindow::mousePressEvent(QMouseEvent* event)
{
    ApplyMinMax(WholeSize());
    const Qt::Edges edges = EdgesAt(event->pos());
    if (event->button() == Qt::LeftButton && edges) {
        windowHandle()->startSystemResize(edges);
    }
}

void CDialogWindow::mouseMoveEvent(QMouseEvent* event)
{
    ApplyMinMax(WholeSize());
    const Qt::Edges edges = EdgesAt(event->pos());
    const bool falling =
        edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge);
    const bool across = edges == Qt::LeftEdge || edges == Qt::RightEdge;
    const bool down = edges == Qt::TopEdge || edges == Qt::BottomEdge;
    setCursor(!edges    ? Qt::ArrowCursor
              : across  ? Qt::SizeHorCursor
              : down    ? Qt::SizeVerCursor
              : falling ? Qt::SizeFDiagCursor
                        : Qt::SizeBDiagCursor);
}

void CDialogWindow::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    unsetCursor();
}

void CDialogWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_shownPlace) {
        m_shownPlace = pos();
    }
}

void CDialogWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && m_caption != nullptr) {
        m_caption->update();
    }
}
