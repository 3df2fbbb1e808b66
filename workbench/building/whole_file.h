#pragma once

#include "platform/text.h"

#include <string_view>

namespace workbench {

/// Writes a file of these bytes. Whatever happens meanwhile, it holds what it held or all of them.
/// Raises CFileException.
void WriteWholeFile(const CString& path, std::string_view bytes);

} // namespace workbench
