#include "tests/journeys/finder/finder.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGraphicsView>
#include <QRadioButton>
#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <optional>

namespace {

/// A thing on the screen.
struct CFound
{
    QWidget* widget = nullptr;
    QPoint place;
    QStringList states;
    QString text;
};

QString NameOf(const QWidget& widget)
{
    const QString id = widget.property("radselId").toString();
    return !id.isEmpty() ? id : widget.objectName();
}

QString TextOf(const QWidget& widget)
{
    if (widget.isWindow()) {
        return widget.windowTitle();
    }
    const auto* const list = qobject_cast<const QComboBox*>(&widget);
    return list != nullptr ? list->currentText() : widget.property("text").toString();
}

bool IsCalled(const QWidget& widget, const QString& name)
{
    const auto* const button = qobject_cast<const QAbstractButton*>(&widget);
    return NameOf(widget) == name || (button != nullptr && button->text().remove('&') == name);
}

/// The window that takes the input, or would if the program had the keys.
QWidget* InputWindow()
{
    if (QWidget* const modal = QApplication::activeModalWidget()) {
        return modal;
    }
    if (QWidget* const active = QApplication::activeWindow()) {
        return active;
    }
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

/// The control with the keys, or what it is a part of that has a name.
QWidget* NamedFocus()
{
    QWidget* widget = QApplication::focusWidget();
    while (widget != nullptr && NameOf(*widget).isEmpty() && !widget->isWindow()) {
        widget = widget->parentWidget();
    }
    return widget;
}

QWidget* WidgetCalled(const QString& name)
{
    QWidget* const window = InputWindow();
    if (name == "window" || window == nullptr) {
        return window;
    }
    if (name == "focus") {
        return NamedFocus();
    }
    QWidget* hidden = nullptr;
    for (QWidget* const widget : window->findChildren<QWidget*>()) {
        if (IsCalled(*widget, name)) {
            if (widget->isVisible()) {
                return widget;
            }
            hidden = widget;
        }
    }
    return hidden;
}

/// What of a control is sure to take a click: boxes take none beside their text.
QPoint Middle(const QWidget& widget)
{
    const bool box = qobject_cast<const QCheckBox*>(&widget) != nullptr ||
                     qobject_cast<const QRadioButton*>(&widget) != nullptr;
    return box ? QPoint(widget.height() / 2, widget.height() / 2) : widget.rect().center();
}

/// The control with its states, to be clicked at a place of its own.
CFound At(QWidget& widget, const QPoint& place)
{
    CFound found{&widget, widget.mapToGlobal(place), {}, TextOf(widget)};
    const QWidget* const there = QApplication::widgetAt(found.place);
    if (there != nullptr && (there == &widget || widget.isAncestorOf(there))) {
        found.states += "visible";
    }
    found.states += widget.isEnabled() ? "enabled" : "disabled";
    const QWidget* const focus = QApplication::focusWidget();
    if (focus != nullptr && (focus == &widget || widget.isAncestorOf(focus))) {
        found.states += "focused";
    }
    if (widget.isActiveWindow()) {
        found.states += "active";
    }
    if (widget.property("checked").toBool()) {
        found.states += "checked";
    }
    return found;
}

QModelIndex Item(const QAbstractItemModel& items, const QModelIndex& parent, const QString& item)
{
    const int row = item.toInt();
    if (row > 0) {
        return items.index(row - 1, 0, parent);
    }
    for (int i = 0; i < items.rowCount(parent); ++i) {
        for (int column = 0; column < items.columnCount(parent); ++column) {
            const QModelIndex index = items.index(i, column, parent);
            if (index.data().toString() == item) {
                return index;
            }
        }
    }
    return {};
}

/// The list, tree or table that a control is, opens or frames.
QAbstractItemView* ViewOf(QWidget& widget)
{
    if (auto* const list = qobject_cast<QComboBox*>(&widget)) {
        return list->view();
    }
    auto* const view = qobject_cast<QAbstractItemView*>(&widget);
    return view != nullptr ? view : widget.findChild<QAbstractItemView*>();
}

std::optional<CFound> FindItem(QWidget& widget, const QStringList& path)
{
    QAbstractItemView* const view = ViewOf(widget);
    // Asked for its items before it is shown, a list would lay them out for another size.
    if (view == nullptr || !view->isVisible()) {
        return {};
    }
    QModelIndex index;
    for (const QString& item : path) {
        index = Item(*view->model(), index, item);
        if (!index.isValid()) {
            return {};
        }
    }
    const QRect place = view->visualRect(index) & view->viewport()->rect();
    CFound found = At(*view, view->viewport()->mapTo(view, place.center()));
    if (place.isEmpty()) {
        found.states.removeAll("visible");
    }
    if (view->selectionModel()->isSelected(index)) {
        found.states += "checked";
    }
    found.text = index.data().toString();
    return found;
}

std::optional<CFound> FindPlace(QWidget& widget, const QString& place)
{
    const auto* const view = qobject_cast<QGraphicsView*>(&widget);
    const QStringList units = place.split(',');
    if (view == nullptr || units.size() != 2) {
        return {};
    }
    const QPoint pixel = view->mapFromScene(units[0].toDouble(), units[1].toDouble());
    return At(widget, view->viewport()->mapTo(view, pixel));
}

std::optional<CFound> Find(const QString& question)
{
    QStringList path = question.split(" > ");
    const QStringList place = path.takeFirst().split(" @ ");
    QWidget* const widget = WidgetCalled(place.first());
    if (widget == nullptr) {
        return {};
    }
    if (place.size() == 2) {
        return FindPlace(*widget, place.last());
    }
    return path.isEmpty() ? At(*widget, Middle(*widget)) : FindItem(*widget, path);
}

QString Describe(const CFound& found)
{
    return QString("%1|%2|%3|,%4,|%5|%6")
        .arg(found.widget->window()->winId())
        .arg(found.place.x())
        .arg(found.place.y())
        .arg(found.states.join(','), NameOf(*found.widget), QString(found.text).replace('\n', ' '));
}

bool OpenPipe(QFile& pipe, const QString& path)
{
    // Open for both ends, a pipe neither waits for the journey nor ends with it.
    const int file = open(QFile::encodeName(path).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    return file >= 0 && pipe.open(file, QIODevice::ReadWrite | QIODevice::Unbuffered,
                                  QFileDevice::AutoCloseHandle);
}

} // namespace

CFinder::CFinder(const QString& folder)
{
    if (!OpenPipe(m_ask, folder + "/ask") || !OpenPipe(m_answer, folder + "/answer")) {
        qFatal("no pipes of a journey in %s", qPrintable(folder));
    }
    auto* const notifier = new QSocketNotifier(m_ask.handle(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { Answer(); });
}

void CFinder::Answer()
{
    // The journey writes a line at once and waits for its answer.
    QByteArray line(4096, '\0');
    const auto length = read(m_ask.handle(), line.data(), static_cast<std::size_t>(line.size()));
    line.truncate(std::max<qsizetype>(length, 0));
    for (const QByteArray& question : line.split('\n')) {
        const QString text = QString::fromUtf8(question);
        const QString serial = text.section(' ', 0, 0);
        if (!serial.isEmpty()) {
            const std::optional<CFound> found = Find(text.section(' ', 1));
            const QString answer = found ? Describe(*found) : "|||||";
            m_answer.write((serial + '|' + answer + '\n').toUtf8());
        }
    }
}
