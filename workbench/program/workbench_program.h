#pragma once

#include "workbench/batch/commands.h"

namespace workbench {

/// The program that has every command.
const CProgram& GetWorkbench();

} // namespace workbench
