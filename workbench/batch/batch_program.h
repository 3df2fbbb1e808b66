#pragma once

#include "workbench/batch/commands.h"

namespace workbench {

/// The program that runs where there are no windows.
const CProgram& GetBatchProgram();

} // namespace workbench
