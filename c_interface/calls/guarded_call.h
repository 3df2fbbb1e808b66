#pragma once

#include "c_interface/radsel_c.h"
#include "c_interface/records/call_fault.h"

#include <functional>

namespace c_interface {

/// Runs the work of one exported function: one thread at a time, no exception leaves, and what went
/// wrong can be asked for afterwards. The work returns the result; it keeps the reason of a result
/// RADSEL_NOTHING by itself.
int RunGuarded(const std::function<int()>& work) noexcept;

/// The same without a copy of the work, which could run out of memory where nobody catches it.
template <class Work>
int Guarded(const Work& work) noexcept
{
    return RunGuarded(std::cref(work));
}

/// True inside a callback or an open dialog of another call of this thread.
bool IsNested();

/// Ends a call whose pointer must not be null.
void Require(const void* pointer, const char* name);

} // namespace c_interface
