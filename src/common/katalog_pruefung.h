#pragma once

#include "frame/handover.h"
#include "platform/text.h"

#include <vector>

/// What in a host's catalogue the module stumbles over without a word. A catalogue without any of
/// it gives every answer that its rows hold.

/// What of a product is at fault.
enum class KatalogFeld
{
    produkt,
    hoehen,
    tiefen,
    name,
    hoehe,
    tiefe,
    laenge,
    leistung,
    elemente,
    inhalt
};

/// The rule that is broken.
enum class KatalogRegel
{
    /// The chain of rows leads back into itself: a filter pass would never end.
    endlos,
    /// The product has no rows, or more than a filter pass takes.
    anzahl,
    /// A list of sizes does not rise, or differs from the sizes of the rows.
    liste,
    /// A size, an output, a content or a number of sections that is no number or makes no sense.
    wert,
    /// A measure that the questions for whole millimetres cannot name.
    ganzzahl,
    /// Lengths that do not rise within a series, or a series whose end cannot be told.
    reihenfolge,
    /// Rows that cannot be told from each other.
    doppelt,
    /// Rows that no silent selection chooses.
    unerreichbar
};

struct CKatalogMangel
{
    /// Index of the row in the chain, -1 for the product as a whole.
    int nRow;
    KatalogFeld feld;
    KatalogRegel regel;
    /// A sentence for the user, without the place.
    CString strText;
};

/// The faults of a product in the order of its rows, those of the product as a whole first. One
/// that many rows have because they share a value is told with the first of them.
std::vector<CKatalogMangel> PruefeProdukt(const HK_VDI3805_PRODUKT& produkt);

/// Rows of a product that a filter pass takes at most, which keeps the filling of a grid bounded;
/// the list is cut in catalogue order.
inline constexpr int kMaxKatalogZeilen = 2000;
