#pragma once

#include "platform/array.h"
#include "platform/file.h"
#include "platform/line_block.h"
#include "platform/text.h"

#include <cstdint>
#include <string_view>
#include <vector>

/// Line files of the module: 8-bit text in code page 1252, or UTF-16 little-endian behind its byte
/// order mark. A pair of line-end characters of either kind and in either order counts as one end:
/// an empty line survives between CR LF pairs and vanishes between bare line feeds. A last line
/// without a line end is dropped, unless it is 8-bit text that ends in a blank, which then counts
/// as the line end. The formats built on these files depend on both.

/// Appends the lines of an open file to `lines` and returns the count then in the array. With a
/// limit other than -1 reading a wide file stops as soon as the array holds exactly that many; an
/// 8-bit file is always read whole. `rest` takes the last line that is dropped, for files that are
/// written again. Exceptions of the file pass through.
int ReadTextLines(CFile& file, CStringArray& lines, int limit, CString* rest = nullptr);

/// The lines that ReadTextLines() appends without a limit, as one block: those of 8-bit text in the
/// bytes in which they stand in the file. Raises std::length_error beyond what a block holds.
/// Exceptions of the file pass through.
CLineBlock ReadLineBlock(CFile& file);

/// Opens the file with `flags` and does what ReadTextLines() does. 0 if it cannot be opened or is
/// larger than a list may be.
int ReadTextFile(const CString& path, CStringArray& lines, unsigned flags, int limit);

/// The first line that ReadTextFile() would give, reading no chunk beyond the one in which it ends.
/// False, with `line` left alone, if the file cannot be opened, has more bytes than `largest` or no
/// line. Exceptions of the file pass through.
bool ReadFirstLine(const CString& path, CString& line, std::uint64_t largest);

/// Writes the lines as UTF-16 with CR LF behind each, and the byte order mark where the writing
/// starts at position 0. `cut` empties the file first, `append` goes to its end. False if the file
/// cannot be opened with `flags`.
bool WriteTextFile(const CString& path, const CStringArray& lines, bool cut, bool append,
                   unsigned flags);

/// Appends the fields of `text` to `fields` and returns the count then in the array. Empty fields
/// count, except behind the last separator; a run of blanks or tabs separates once; text behind a
/// line feed is ignored unless that is the separator.
int SplitString(CStringArray& fields, const CString& text, wchar_t separator);

/// The same fields as views into `text`, appended to `fields`; they hold as long as the text does.
void SplitFields(std::vector<std::wstring_view>& fields, std::wstring_view text, wchar_t separator);
