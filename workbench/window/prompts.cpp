#include "workbench/window/prompts.h"

#include "workbench/toolkit/qt_text.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>

namespace workbench {

namespace {

std::optional<CString> Chosen(const QString& path)
{
    return path.isEmpty() ? std::nullopt : std::optional(FromQt(path));
}

/// As long as it lives, the toolkit's own file dialogs, which it has where the desktop has none,
/// open with columns as wide as their texts: otherwise they are made for one size of the font.
class CWholeColumns : public QObject
{
public:
    CWholeColumns() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<QFileDialog*>(object) != nullptr) {
            for (const auto* const files : object->findChildren<QTreeView*>()) {
                files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
            }
        }
        return false;
    }
};

CPrompts::Answer Ask(QWidget* parent, const QString& text, const QString& yes, const QString& no,
                     bool cancellable)
{
    QMessageBox box(QMessageBox::Question, "radsel", {}, QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    const auto* const yesButton = box.addButton(yes, QMessageBox::AcceptRole);
    auto* const noButton = box.addButton(no, QMessageBox::DestructiveRole);
    if (cancellable) {
        box.setEscapeButton(box.addButton("Annulla", QMessageBox::RejectRole));
    } else {
        box.setEscapeButton(noButton);
    }
    box.exec();
    if (box.clickedButton() == yesButton) {
        return CPrompts::Answer::yes;
    }
    return box.clickedButton() == noButton ? CPrompts::Answer::no : CPrompts::Answer::cancel;
}

} // namespace

CPrompts MakePrompts()
{
    CPrompts prompts;
    prompts.openFile = [](QWidget* parent, const QString& title, const QString& filter,
                          const CString& proposal) {
        const CWholeColumns columns;
        return Chosen(QFileDialog::getOpenFileName(parent, title, ToQt(proposal), filter));
    };
    prompts.saveFile = [](QWidget* parent, const QString& title, const QString& filter,
                          const CString& proposal) {
        const CWholeColumns columns;
        return Chosen(QFileDialog::getSaveFileName(parent, title, ToQt(proposal), filter));
    };
    prompts.openFolder = [](QWidget* parent, const QString& title, const QString& /*filter*/,
                            const CString& proposal) {
        const CWholeColumns columns;
        return Chosen(QFileDialog::getExistingDirectory(parent, title, ToQt(proposal)));
    };
    prompts.ask = Ask;
    prompts.tell = [](QWidget* parent, const QString& text, CPrompts::Tone tone) {
        const auto icon =
            tone == CPrompts::Tone::error ? QMessageBox::Critical : QMessageBox::Information;
        QMessageBox box(icon, "radsel", {}, QMessageBox::Ok, parent);
        box.setTextFormat(Qt::PlainText);
        box.setText(text);
        box.exec();
    };
    return prompts;
}

} // namespace workbench
