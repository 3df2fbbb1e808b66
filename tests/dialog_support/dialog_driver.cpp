#include "tests/dialog_support/dialog_driver.h"

#include "uikit/native/access.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <stdexcept>

namespace {

template <class T>
T& As(QWidget& widget, const char* kind)
{
    auto* typed = qobject_cast<T*>(&widget);
    if (typed == nullptr) {
        throw std::logic_error("control " + std::to_string(GetControlId(widget)) + " is no " +
                               kind);
    }
    return *typed;
}

QTreeWidgetItem& ChildOf(QTreeWidgetItem& parent, const CString& text)
{
    for (int i = 0; i < parent.childCount(); ++i) {
        if (parent.child(i)->text(0) == ToNative(text)) {
            return *parent.child(i);
        }
    }
    throw std::logic_error("no tree item " + ToNative(text).toStdString());
}

void ClickItem(QTreeWidget& tree, QTreeWidgetItem& item)
{
    tree.scrollToItem(&item);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier,
                      tree.visualItemRect(&item).center());
}

void AddLines(const QTreeWidgetItem& parent, const CString& indent, std::vector<CString>& lines)
{
    for (int i = 0; i < parent.childCount(); ++i) {
        lines.push_back(indent + FromNative(parent.child(i)->text(0)));
        AddLines(*parent.child(i), indent + L" ", lines);
    }
}

} // namespace

QWidget& CDialogUser::Widget(int id) const
{
    QWidget* widget = CNativeAccess::Widget(m_dialog.GetDlgItem(id));
    if (widget == nullptr) {
        throw std::logic_error("no control " + std::to_string(id));
    }
    return *widget;
}

void CDialogUser::Click(int id) const
{
    QTest::mouseClick(&Widget(id), Qt::LeftButton);
}

void CDialogUser::Focus(int id) const
{
    Widget(id).setFocus(Qt::TabFocusReason);
}

void CDialogUser::Type(int id, const CString& text) const
{
    auto& edit = As<QLineEdit>(Widget(id), "edit");
    edit.setFocus(Qt::TabFocusReason);
    edit.selectAll();
    if (text.empty()) {
        QTest::keyClick(&edit, Qt::Key_Delete);
    }
    QTest::keyClicks(&edit, ToNative(text));
}

void CDialogUser::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QWidget* window = CNativeAccess::Widget(m_dialog);
    QWidget* focus = window->focusWidget();
    QTest::keyClick(focus != nullptr ? focus : window, key, modifiers);
}

void CDialogUser::Choose(int id, int index) const
{
    auto& combo = As<QComboBox>(Widget(id), "combo box");
    combo.setCurrentIndex(index);
    emit combo.activated(index);
}

void CDialogUser::Choose(int id, const CString& text) const
{
    auto& combo = As<QComboBox>(Widget(id), "combo box");
    const int index = combo.findText(ToNative(text));
    if (index < 0) {
        throw std::logic_error("no list item " + ToNative(text).toStdString());
    }
    Choose(id, index);
}

void CDialogUser::ChooseInTree(int id, const std::vector<CString>& path) const
{
    auto& tree = As<QTreeWidget>(Widget(id), "tree");
    // Clicks that come while an item slides open are lost.
    tree.setAnimated(false);
    QTreeWidgetItem* item = tree.invisibleRootItem();
    for (const CString& text : path) {
        if (item != tree.invisibleRootItem() && !item->isExpanded()) {
            tree.scrollToItem(item);
            const QPoint place = tree.visualItemRect(item).center();
            QTest::mouseDClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, place);
        }
        item = &ChildOf(*item, text);
    }
    ClickItem(tree, *item);
}

void CDialogUser::ChooseOpacity(int id, const std::vector<Qt::Key>& keys) const
{
    QTimer::singleShot(0, [keys] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        ASSERT_EQ(menu->actions().last()->text(), "Transparency...");
        QTimer::singleShot(0, [keys] {
            QWidget* choice = QApplication::activeModalWidget();
            for (const Qt::Key key : keys) {
                QTest::keyClick(choice->focusWidget(), key);
            }
        });
        QTest::keyClick(menu, Qt::Key_Up);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    Focus(id);
    Press(Qt::Key_Space, Qt::AltModifier);
}

void CDialogUser::Step(int id, int delta) const
{
    QTest::keyClick(&Widget(id), delta < 1 ? Qt::Key_Down : Qt::Key_Up);
}

CString CDialogUser::Text(int id) const
{
    return m_dialog.GetDlgItem(id).GetWindowText();
}

std::vector<CString> CDialogUser::Texts(const std::vector<int>& ids) const
{
    std::vector<CString> texts;
    for (const int id : ids) {
        texts.push_back(Text(id));
    }
    return texts;
}

bool CDialogUser::IsEnabled(int id) const
{
    return Widget(id).isEnabled();
}

bool CDialogUser::IsChecked(int id) const
{
    return As<QAbstractButton>(Widget(id), "button").isChecked();
}

std::vector<CString> CDialogUser::Items(int id) const
{
    const auto& combo = As<QComboBox>(Widget(id), "combo box");
    std::vector<CString> items;
    for (int i = 0; i < combo.count(); ++i) {
        items.push_back(FromNative(combo.itemText(i)));
    }
    return items;
}

int CDialogUser::Chosen(int id) const
{
    return As<QComboBox>(Widget(id), "combo box").currentIndex();
}

std::vector<CString> CDialogUser::ChosenInTree(int id) const
{
    std::vector<CString> path;
    const auto chosen = As<QTreeWidget>(Widget(id), "tree").selectedItems();
    for (auto* item = chosen.isEmpty() ? nullptr : chosen.first(); item != nullptr;
         item = item->parent()) {
        path.insert(path.begin(), FromNative(item->text(0)));
    }
    return path;
}

std::vector<CString> CDialogUser::TreeLines(int id) const
{
    std::vector<CString> lines;
    AddLines(*As<QTreeWidget>(Widget(id), "tree").invisibleRootItem(), L"", lines);
    return lines;
}

CDialogDriver::CDialogDriver()
    : m_observerBefore(SetDialogObserver([this](CDialog& dialog) { Run(dialog); })),
      m_handlerBefore(SetMessageHandler(
          [this](const MessageBoxText& message) { m_messages.push_back(message); }))
{
}

CDialogDriver::~CDialogDriver()
{
    SetDialogObserver(m_observerBefore);
    SetMessageHandler(m_handlerBefore);
    for (const auto& [id, scripts] : m_scripts) {
        EXPECT_TRUE(scripts.empty()) << "dialog " << id << " never opened";
    }
}

void CDialogDriver::WhenOpens(int templateId, Script script)
{
    m_scripts[templateId].push_back(std::move(script));
}

void CDialogDriver::Run(CDialog& dialog)
{
    auto& scripts = m_scripts[dialog.GetTemplateId()];
    if (scripts.empty()) {
        ADD_FAILURE() << "dialog " << dialog.GetTemplateId() << " opened unasked";
        dialog.EndDialog(kIdCancel);
        return;
    }
    const Script script = scripts.front();
    scripts.pop_front();
    CDialogUser user(dialog);
    // Focus only moves, with the events of that, in a window that is active.
    EXPECT_TRUE(QTest::qWaitForWindowActive(CNativeAccess::Widget(dialog)));
    try {
        script(user);
    } catch (const std::logic_error& error) {
        ADD_FAILURE() << error.what();
    }
    if (!dialog.HasEnded()) {
        ADD_FAILURE() << "dialog " << dialog.GetTemplateId() << " was left open";
        dialog.EndDialog(kIdCancel);
    }
}
