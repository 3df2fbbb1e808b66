#pragma once

#include <QWidget>

#include <functional>

/// Runs `steps` on the next modal dialog as soon as it waits for the user. The dialog must be open
/// or be opened before control goes back to the caller of the test; the steps must end it.
void OnNextDialog(std::function<void(QWidget&)> steps);

/// Presses and releases a key at what has the focus in the dialog.
void PressKey(QWidget& dialog, Qt::Key key);

/// Types a text, key by key.
void TypeText(QWidget& dialog, const QString& text);

/// The one child of that kind, by its place among its kind.
template <class Widget>
Widget& Child(QWidget& dialog, int place = 0)
{
    return *dialog.findChildren<Widget*>().at(place);
}
