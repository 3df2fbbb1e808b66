#pragma once

#include "platform/text.h"

#include <system_error>

/// The errno that a failure of the system comes to, 0 for none. Systems number their failures
/// otherwise than the C library does; those that it has no number for get one beyond its own, which
/// ReasonOf() tells as the system does.
int ErrnoOf(const std::error_code& error);

/// Why something failed, for the user; the same words on every system.
CString ReasonOf(const std::error_code& error);
CString ReasonOf(int osError);

/// The errno that stands for a failure for which the C library has no number. Where failures of the
/// system are errnos anyway it is the number itself.
int ErrnoOfSystem(int systemError);

/// What ErrnoOfSystem() adds where it adds something: errnos of this and more are told by the
/// system.
inline constexpr int kFirstErrnoOfSystem = 1 << 24;

/// Why a call of the system failed, in its own words, by its own number.
CString SystemReasonOf(int systemError);

/// Whether an errno says that there is no room left on the disk, or not for this user or file.
bool IsDiskFull(int osError);
