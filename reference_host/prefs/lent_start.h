#pragma once

#include "frame/vdi6030_start.h"
#include "platform/export.h"

#include <optional>

namespace reference_host {

/// Lends start values to this process until they are taken back: ReadDefFile_VDI6030START() gives
/// them in place of those that are stored. What the module writes meanwhile changes them, and of
/// the stored ones those fields only that differ from what was lent.
HOST_API void LendStart(const VDI6030START& start);

/// They as they are now; nothing if none are lent.
HOST_API std::optional<VDI6030START> GetLentStart();

/// Takes them back.
HOST_API void EndLentStart();

} // namespace reference_host
