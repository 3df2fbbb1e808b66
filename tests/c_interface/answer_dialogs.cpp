// Answers every dialog of the process as a user without wishes would: takes the first entry of
// lists in which nothing is chosen, then "OK". Linked beside a program that cannot do it itself.

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

namespace {

/// True once the dialog is ready: one with a grid selects its best row a moment after it shows.
bool IsReady(const QWidget& dialog)
{
    const auto* grid = dialog.findChild<QTableView*>();
    return dialog.isVisible() &&
           (grid == nullptr || grid->model() == nullptr || grid->model()->rowCount() == 0 ||
            grid->selectionModel()->hasSelection());
}

/// Chooses in a list that waits for a choice; false if there is none.
bool ChooseFirst(const QWidget& dialog)
{
    for (QComboBox* list : dialog.findChildren<QComboBox*>()) {
        if (list->isEnabled() && list->currentIndex() < 0 && list->count() > 0) {
            list->setCurrentIndex(0);
            emit list->activated(0);
            return true;
        }
    }
    return false;
}

void Answer()
{
    const QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !IsReady(*dialog) || ChooseFirst(*dialog)) {
        return;
    }
    for (QPushButton* button : dialog->findChildren<QPushButton*>()) {
        if (button->text().remove('&') == "OK" && button->isEnabled()) {
            button->click();
            return;
        }
    }
}

void WatchDialogs()
{
    auto* const timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, timer, Answer);
    timer->start(20);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(WatchDialogs)
