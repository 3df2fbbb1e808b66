#pragma once

#include "platform/export.h"

/// Words for the silence of the functions that answer without a dialog. Their results stay plain
/// numbers and untouched records; a host that wants to know why nothing was found defines the
/// function below, and the module tells it in a sentence. No host has to: the function is looked
/// for at run time, and without it nothing is composed.
///
/// It is looked for once a process, at the first call that finds nothing: in the library (or the
/// program) that holds the host's GetVEDir, in that of FindHersteller, and then among all names
/// that the program and its libraries offer to each other. A program has to be linked with its
/// names open for that, as for every function of the host that it defines (ENABLE_EXPORTS in
/// CMake).
///
/// It is called on the caller's thread before the function returns, once for each radiator product,
/// measure or valve that was not found, and never by a call that found all that it was asked for: a
/// host that keeps the last text empties it before each call. It throws nothing and calls no
/// function of the module. `reason` is a HostDiagnosis; the text is Italian in UTF-8 and holds
/// until the function returns.
extern "C" HOST_API void RadselDiagnosis(int reason, const char* text);

using HostDiagnosisFunction = void (*)(int reason, const char* text);
inline constexpr char kHostDiagnosisFunction[] = "RadselDiagnosis";

/// The reason that goes with a text. A number keeps its meaning; later versions may add some, so
/// that a host goes by the text where it does not know the number.
enum class HostDiagnosis : int
{
    /// The call came without a record, or the libraries of the host do not fit the module, which
    /// the first call told in a message.
    noCall = 1,
    /// Hersteller names no maker of the catalogue. The text tells those that there are; so do those
    /// of unknownKind and unknownProduct.
    unknownMaker = 2,
    /// The maker is known, but ReadVdiFile failed, or has left nothing below him.
    unreadMaker = 3,
    unknownKind = 4,
    unknownProduct = 5,
    /// The product has no rows at all.
    noRows = 6,
    /// No row of the product lies within the ranges. The text tells which range leaves out how many
    /// rows, and the nearest row: the one that misses the ranges by the fewest millimetres, and of
    /// several the one whose output is nearest to the required one; a single section, which is
    /// never chosen, only where there is nothing else.
    noRowInRange = 7,
    /// Rows lie within the ranges, but the nearest output is 100,000 W off, or the temperatures
    /// give none (supply and return are the same, or the supply lies far below room and return), or
    /// the required output is no number.
    noNearOutput = 8,
    /// GetHK_Inhalt: the product has no row of exactly these measures among its first 2000. The
    /// text tells the nearest.
    unknownMeasures = 9,
    /// HKGetMinTiefe, HKGetMaxTiefe: the product has rows, but its list of depths is empty.
    noDepths = 10,
    /// VDI3805GetVentil(Daten): the first key has no maker, or fewer than 30 characters of number.
    noValveKey = 11,
    /// The maker has no valve file, or it cannot be opened, is too large or refused as a whole.
    unreadValveFile = 12,
    /// The valve file has no article of that number.
    unknownValve = 13,
    /// The article is there, but the data set that it refers to is not in its group.
    noValveData = 14,
};
