#pragma once

#include "platform/file_fault.h"
#include "platform/text.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <variant>
#include <vector>

namespace reference_host {

/// What a catalogue file says, as plain values: millimetres, watts at EN 442 standard conditions,
/// litres. Each part tells the line of the file, from 1, at which its record stands.
/// docs/catalogue-format.md describes the file. Every number of a model is finite and within the
/// limits told there, so that whoever builds rows from it need check nothing again.

/// A length that the product is always made in. Output and content are stated as the series states
/// them: per metre, or of this unit.
struct CStandardLength
{
    double dLaenge = 0.0;
    double dLeistung = 0.0;
    double dInhalt = 0.0;
    int nLine = 0;
};

/// Lengths cut to measure: dVon, dVon + dStufe and so on, nAnzahl of them.
struct CCutToLength
{
    double dVon = 0.0;
    double dStufe = 0.0;
    int nAnzahl = 0;
    int nLine = 0;
};

/// A radiator put together of 1 to nMax sections, dZugabe longer than these.
struct CSections
{
    double dGliedLaenge = 0.0;
    double dZugabe = 0.0;
    int nMax = 0;
    int nLine = 0;
};

/// An article, which names one size by its length or by its number of sections.
struct CCatalogueArticle
{
    double dSize = 0.0;
    int nLine = 0;
};

/// One cross-section of a product: all sizes of one height and depth.
struct CCatalogueSeries
{
    CString strTyp;
    wchar_t cBauart = L' ';
    double dHoehe = 0.0;
    double dTiefe = 0.0;
    /// Per metre, per section or of the unit, as cBauart says; so is dInhalt.
    double dLeistung = 0.0;
    double dExponent = 0.0;
    double dInhalt = 0.0;
    /// In rising order.
    std::vector<CStandardLength> normLaengen;
    std::optional<CCutToLength> zuschnitt;
    /// Present in per-section series and in no other.
    std::optional<CSections> glieder;
    /// Type texts of single sizes, by length or by number of sections.
    std::map<double, CString> typTexte;
    /// Order numbers of single sizes, in the same way.
    std::map<double, CString> bestellNummern;
    /// All articles of the series, those without effect included.
    std::vector<CCatalogueArticle> artikel;
    int nLine = 0;

    bool IsPerMetre() const { return cBauart == L'M' || cBauart == L'm'; }
    bool IsPerSection() const { return cBauart == L'S' || cBauart == L's'; }
};

/// At least one series.
struct CCatalogueProduct
{
    CString strName;
    std::vector<CCatalogueSeries> serien;
    int nLine = 0;
};

/// At least one product; names are unique within the kind.
struct CCatalogueKind
{
    CString strName;
    std::vector<CCatalogueProduct> produkte;
    int nLine = 0;
};

/// At least one kind; names are unique.
struct CCatalogue
{
    std::vector<CCatalogueKind> arten;
};

/// Model of a catalogue file's bytes, or its first fault. Takes any bytes; memory stays within a
/// small multiple of their count, and the sizes of all series together within 200,000.
std::variant<CCatalogue, CFileFault> ParseCatalogue(std::span<const std::uint8_t> bytes);

} // namespace reference_host
