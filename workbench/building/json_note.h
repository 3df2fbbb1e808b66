#pragma once

#include "platform/text.h"

namespace workbench {

class CJsonFields;
class CJsonWriter;

/// The "note" of a building, a floor or a room as JSON; empty without one. Notes of the objects
/// within it, but for floors and rooms, which have their own, join it in a list: they stay in the
/// file that is written next.
CString NoteOf(const CJsonFields& fields);

/// Writes it back, a list with a line an item; nothing for an empty one.
void WriteNote(CJsonWriter& writer, const CString& note);

} // namespace workbench
