#pragma once

#include <QObject>

class QMenu;
class QWidget;

namespace workbench {

/// Help and what the program tells about itself.
class CHelpCommands : public QObject
{
    Q_OBJECT

public:
    /// `window` outlives the commands and is the parent of dialogs.
    explicit CHelpCommands(QWidget& window);

    /// Adds an action for every help page that is installed; F1 opens the window's own.
    void AddPages(QMenu& menu);

    void About();

private:
    QWidget& m_window;
};

} // namespace workbench
