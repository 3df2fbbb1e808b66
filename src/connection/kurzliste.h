#pragma once

#include "connection/anschluss_zustand.h"
#include "platform/text.h"

/// The short list of connection types in the file "Vent.txt" of the heating folder: a line
/// "[name]", then the flow point text behind a "V" and the return point text behind an "R", type
/// after type.

/// Adds the names of the file to the list of names and its entries to the short list. True if the
/// file could be opened and held at least one line. An entry with a text that cannot be read is
/// left out, its name stays, so that later names and entries no longer line up. A pair that begins
/// on the last line raises CInvalidArgException, which tells the file and the line.
bool LeseVentTxt(CAnschlussZustand& zustand, CAnschlussAnsicht& ansicht);

/// Appends an entry to the short list; false, with nothing appended, if one of the texts gives
/// fewer than three numbers.
bool NeuerEintrag(Anschlussliste& liste, const CString& name, const CString& vorlauf,
                  const CString& ruecklauf);

/// Stores the working record in the short list under the name typed: as a new entry or in place of
/// the selected one. Does nothing without a selected name; a selected name without an entry raises
/// CInvalidArgException. The list is then written to a file named by its own last line in the
/// current folder: the office's "Vent.txt" is never changed from here, and what a designer stores
/// holds until the dialog closes. A file that cannot be created is not reported.
void SchreibeVentTxt(CAnschlussZustand& zustand, CAnschlussAnsicht& ansicht);
