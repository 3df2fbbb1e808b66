#pragma once

#include "platform/text.h"

/// Looks a dialog up in "winsett.txt" of the working place, whose lines tell which dialogs offer
/// help: "id|flag|". True if there is an entry, and then `erlaubt` is its flag.
bool HilfeErlaubt(unsigned dialogId, bool& erlaubt);
