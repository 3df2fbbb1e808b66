#pragma once

#include <QIcon>

namespace workbench {

enum class CommandIcon
{
    none,
    open,
    save,
    undo,
    redo,
    radiator,
    connection,
    sizeAll,
    project,
};

/// The sign of a command, drawn in the colours of the palette in force, sharp at every size.
QIcon IconOf(CommandIcon icon);

/// The program's own icon.
QIcon ProgramIcon();

} // namespace workbench
