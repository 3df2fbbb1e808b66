#pragma once

#include "c_interface/radsel_c.h"
#include "c_interface/records/call_fault.h"

#include <functional>

namespace c_interface {

/// Runs the work of one exported function: one thread at a time, no exception leaves, and what went
/// wrong can be asked for afterwards. The work returns the result; it keeps the reason of a result
/// below 0 by itself.
int Guarded(const std::function<int()>& work) noexcept;

/// True inside a callback or an open dialog of another call of this thread.
bool IsNested();

/// Ends a call whose pointer must not be null.
void Require(const void* pointer, const char* name);

} // namespace c_interface
