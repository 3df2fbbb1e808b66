#pragma once

#include "platform/text.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// All bytes of a file, or nothing if it has more than `largest`: a wrong file must not fill the
/// memory. Raises CFileException if the file cannot be read.
std::optional<std::string>
ReadWholeFile(const CString& path,
              std::uint64_t largest = std::numeric_limits<std::uint64_t>::max());

/// Writes a file of these bytes. Whatever happens meanwhile, it holds what it held or all of them.
/// Raises CFileException.
void WriteWholeFile(const CString& path, std::string_view bytes);

/// The same bytes as numbers. Good as long as the text lives.
std::span<const std::uint8_t> BytesOf(std::string_view text);
