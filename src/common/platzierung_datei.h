#pragma once

#include "platform/geometry.h"
#include "platform/text.h"

/// The file that keeps the placement of dialogs, a line a key: "key|left|right|top|bottom|alpha|",
/// the window's place on the screen in pixels and its opacity. It lies in the folder of the working
/// place under the name that the host gives. A file that cannot be read or written is passed over
/// without a message, and one that cannot be written stays as it was.

/// Looks a key up, case counting. True if the file has a line for it, and then `rect` is its place;
/// `alpha`, which may be null, is set if the line has one. A file that cannot be opened makes
/// `rect` empty and alpha 255.
bool LesePlatzierung(const CString& schluessel, CRect& rect, int* alpha);

/// Keeps a placement under its key; the lines of other keys stay, also those that another process
/// writes meanwhile. Where there is no file yet, this only makes an empty one, without a line; a
/// file that is there and cannot be opened for now stays as it is.
void SchreibePlatzierung(const CString& schluessel, const CRect& rect, int alpha);
