#include "valve/ventil_satz.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

namespace {

constexpr char kTrenner = ';';

/// A record type in one number, so that it is compared at once: its characters and its length.
using Kennung = std::uint64_t;
constexpr std::size_t kLaengsteArt = 6;

constexpr Kennung MitZeichen(Kennung kennung, wchar_t c)
{
    return kennung << 8 | (c > 0 && c < 0x80 ? static_cast<Kennung>(c) : 0);
}

constexpr Kennung MitLaenge(Kennung kennung, std::size_t laenge)
{
    return kennung << 8 | laenge;
}

struct BekannterSatz
{
    constexpr BekannterSatz(std::wstring_view type, VentilSatz kind) : name(type), satz(kind)
    {
        for (const wchar_t c : name) {
            kennung = MitZeichen(kennung, c);
        }
        kennung = MitLaenge(kennung, name.size());
    }

    std::wstring_view name;
    VentilSatz satz;
    Kennung kennung = 0;
};

/// Behind what stands for all others, the most frequent ones first.
constexpr BekannterSatz kBekannte[] = {
    {L"", VentilSatz::unbekannt},    {L"710.01", VentilSatz::daten},
    {L"800", VentilSatz::artikel},   {L"700", VentilSatz::daten},
    {L"720.01", VentilSatz::zusatz}, {L"720.02", VentilSatz::zusatz},
    {L"720.03", VentilSatz::zusatz}, {L"710.02", VentilSatz::daten},
    {L"710.03", VentilSatz::daten},  {L"710.04", VentilSatz::daten},
    {L"710.05", VentilSatz::daten},  {L"160", VentilSatz::antrieb},
    {L"200", VentilSatz::bauform},   {L"400", VentilSatz::werkstoff},
    {L"110", VentilSatz::gruppe},    {L"100", VentilSatz::hauptgruppe},
    {L"010", VentilSatz::kopf},
};

} // namespace

VentilSatzart BestimmeSatzart(const CLineText& zeile)
{
    const CLineText anfang = zeile.Part(0, std::min(zeile.GetSize(), kLaengsteArt + 1));
    const std::size_t laenge = anfang.FindEither(kTrenner, '\n', 0);
    if (laenge > kLaengsteArt) {
        return 0;
    }
    Kennung kennung = 0;
    for (std::size_t i = 0; i < laenge; ++i) {
        kennung = MitZeichen(kennung, anfang[i]);
    }
    kennung = MitLaenge(kennung, laenge);
    const auto* const bekannt = std::ranges::find(kBekannte, kennung, &BekannterSatz::kennung);
    return bekannt == std::end(kBekannte)
               ? VentilSatzart{0}
               : static_cast<VentilSatzart>(bekannt - std::begin(kBekannte));
}

VentilSatz SatzVon(VentilSatzart art)
{
    return kBekannte[art].satz;
}

std::wstring_view NameVon(VentilSatzart art)
{
    return kBekannte[art].name;
}

CSatzFelder::CSatzFelder(const CLineText& zeile, VentilSatzart art)
    : m_zeile(zeile), m_beginn(NameVon(art).size())
{
    if (m_beginn < zeile.GetSize() && zeile[m_beginn] == kTrenner) {
        ++m_beginn;
    }
}

std::optional<CLineText> CSatzFelder::Naechstes()
{
    if (m_beginn >= m_zeile.GetSize() || m_zeile[m_beginn] == L'\n') {
        return std::nullopt;
    }
    const std::size_t ende = m_zeile.FindEither(kTrenner, '\n', m_beginn);
    const CLineText feld = m_zeile.Part(m_beginn, ende);
    // What stands behind a line feed is no part of the record.
    m_beginn = ende < m_zeile.GetSize() && m_zeile[ende] == L'\n' ? ende : ende + 1;
    return feld;
}

std::optional<CLineText> SucheFeld(const CLineText& zeile, std::size_t feld)
{
    CSatzFelder felder(zeile);
    for (std::size_t i = 0; i < feld; ++i) {
        if (!felder.Naechstes()) {
            return std::nullopt;
        }
    }
    return felder.Naechstes();
}

std::size_t ZaehleFelder(const CLineText& zeile)
{
    CSatzFelder felder(zeile);
    std::size_t anzahl = 0;
    while (felder.Naechstes()) {
        ++anzahl;
    }
    return anzahl;
}

CVentilZeilen::CVentilZeilen(std::shared_ptr<const CLineBlock> zeilen) : m_zeilen(std::move(zeilen))
{
    m_arten.reserve(static_cast<std::size_t>(Anzahl()));
}

int CVentilZeilen::Suche(VentilSatz satz, int index) const
{
    while (kBekannte[Art(index)].satz != satz) {
        ++index;
    }
    return index;
}
