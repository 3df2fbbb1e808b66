#pragma once

#include <QObject>

class QWidget;

namespace workbench {

/// As long as it lives, modal dialogs that would open over a widget open beside it on the right, so
/// that they do not hide what changes in it.
class CBesideWindow : public QObject
{
public:
    /// The widget outlives the object.
    explicit CBesideWindow(const QWidget& widget);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    const QWidget& m_widget;
};

} // namespace workbench
