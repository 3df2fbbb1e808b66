#include "workbench/window/prompts.h"

#include "workbench/building/qt_text.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace workbench {

namespace {

std::optional<CString> Chosen(const QString& path)
{
    return path.isEmpty() ? std::nullopt : std::optional(FromQt(path));
}

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
        return Chosen(QFileDialog::getOpenFileName(parent, title, ToQt(proposal), filter));
    };
    prompts.saveFile = [](QWidget* parent, const QString& title, const QString& filter,
                          const CString& proposal) {
        return Chosen(QFileDialog::getSaveFileName(parent, title, ToQt(proposal), filter));
    };
    prompts.openFolder = [](QWidget* parent, const QString& title, const QString& /*filter*/,
                            const CString& proposal) {
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
