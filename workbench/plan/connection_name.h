#pragma once

#include "frame/conn_values.h"

namespace workbench {

/// True if two connections have the same points, however they are called.
bool HasSamePoints(const ConnValues& a, const ConnValues& b);

/// The name under which the short list of the data root has these points: that of `anschluss` if it
/// is one of several; empty if the list has them not, or cannot be read.
CString NameOfPoints(const ConnValues& anschluss);

} // namespace workbench
