#pragma once

#include "platform/line_block.h"
#include "platform/line_text.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

/// What the reader makes of a line.
enum class VentilSatz : std::uint8_t
{
    unbekannt,
    kopf,
    hauptgruppe,
    gruppe,
    daten,
    zusatz,
    artikel,
    antrieb,
    bauform,
    werkstoff
};

/// A known record type by its place in the reader's table; 0 stands for all others.
using VentilSatzart = std::uint8_t;

/// Field 0 decides, and only as a whole.
VentilSatzart BestimmeSatzart(const CLineText& zeile);

VentilSatz SatzVon(VentilSatzart art);

/// Field 0 of a known record; good for ever.
std::wstring_view NameVon(VentilSatzart art);

/// Takes the fields of a line one after the other, with the rules of SplitFields().
class CSatzFelder
{
public:
    explicit CSatzFelder(const CLineText& zeile) : m_zeile(zeile) {}

    /// From field 1 on, since what field 0 is is known.
    CSatzFelder(const CLineText& zeile, VentilSatzart art);

    /// Nothing behind the last one.
    std::optional<CLineText> Naechstes();

private:
    CLineText m_zeile;
    std::size_t m_beginn = 0;
};

/// A field by its number; nothing if the line ends before it.
std::optional<CLineText> SucheFeld(const CLineText& zeile, std::size_t feld);

std::size_t ZaehleFelder(const CLineText& zeile);

/// The lines of one valve file and what kinds of record they are, as far as they have been read.
class CVentilZeilen
{
public:
    CVentilZeilen() = default;
    explicit CVentilZeilen(std::shared_ptr<const CLineBlock> zeilen);

    int Anzahl() const { return m_zeilen == nullptr ? 0 : m_zeilen->GetCount(); }

    /// The line number is one more than the index.
    CLineText Zeile(int index) const { return m_zeilen->GetLine(index); }

    /// Tells the kind of the next line.
    void NimmArt(VentilSatzart art) { m_arten.push_back(art); }
    VentilSatzart Art(int index) const { return m_arten[static_cast<std::size_t>(index)]; }

    /// The next record of a kind from a line on; there must be one.
    int Suche(VentilSatz satz, int index) const;

private:
    std::shared_ptr<const CLineBlock> m_zeilen;
    std::vector<VentilSatzart> m_arten;
};
