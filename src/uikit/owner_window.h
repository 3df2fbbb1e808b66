#pragma once

#include <cstdint>

/// Makes a window that is not the toolkit's the owner of every dialog and message that opens while
/// no window of the toolkit is active: the window system keeps them above it. The window has this
/// number in the window system; 0 stands for none. Where windows have no such numbers nothing
/// changes.
void SetOwnerWindow(std::uint64_t window);
