#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>

#include <stdexcept>

namespace workbench {

/// A dialog of the module in the hands of a user: what he does, by control id. The module shows
/// nothing of its inside, so that controls are found as widgets.
class CModuleUser
{
public:
    explicit CModuleUser(QWidget& dialog) : m_dialog(dialog) {}

    template <class T>
    T& Control(int id) const
    {
        for (T* const widget : m_dialog.findChildren<T*>()) {
            if (widget->property("radselId").toInt() == id) {
                return *widget;
            }
        }
        throw std::logic_error("no control " + std::to_string(id));
    }

    void Click(int id) const { Control<QAbstractButton>(id).click(); }

    void Choose(int id, const QString& text) const
    {
        auto& combo = Control<QComboBox>(id);
        ASSERT_GE(combo.findText(text), 0) << text.toStdString();
        combo.setCurrentText(text);
        emit combo.activated(combo.currentIndex());
    }

    void Type(int id, const QString& text) const { Control<QLineEdit>(id).setText(text); }

    QString Text(int id) const { return Control<QLineEdit>(id).text(); }
    QString Chosen(int id) const { return Control<QComboBox>(id).currentText(); }

    void Ok() const { Click(1); }
    void Cancel() const { Click(2); }

private:
    QWidget& m_dialog;
};

} // namespace workbench
