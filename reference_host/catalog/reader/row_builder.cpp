#include "reference_host/catalog/reader/row_builder.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <numeric>
#include <optional>

namespace reference_host {

namespace {
constexpr double kSmallestShare = 0.4;
constexpr double kLargestShare = 1.6;
constexpr double kNeighbours = 6.0;

/// One row before its texts and the data of its series are added.
struct CSize
{
    double dLaenge = 0.0;
    double dElemente = 0.0;
    /// As the series states it.
    double dLeistung = 0.0;
    /// Of this size as a whole.
    double dInhalt = 0.0;
    int nLine = 0;
};

/// The required output at standard conditions in watts; nothing stands for all outputs.
using CRequirement = std::optional<double>;

/// Which sizes to offer out of `count` whose outputs rise from `first` by `increment`: those around
/// the requirement, and the ends of the series; without a requirement all of them. By its ends a
/// reader of the row chain tells where one series stops and the next begins, and how far this one
/// goes.
std::vector<int> SizesAround(CRequirement required, double first, double increment, int count)
{
    if (!required) {
        std::vector<int> all(static_cast<std::size_t>(count));
        std::iota(all.begin(), all.end(), 0);
        return all;
    }
    const double requiredOutput = *required;
    const auto place = [&](double output) { return (output - first) / increment; };
    const double fitting = std::round(place(requiredOutput));
    const double from =
        std::min(std::ceil(place(kSmallestShare * requiredOutput)), fitting - kNeighbours);
    const double to =
        std::max(std::floor(place(kLargestShare * requiredOutput)), fitting + kNeighbours);

    const double last = count - 1;
    const double spread = std::min(2.0 * kNeighbours, last);
    const int lowest = static_cast<int>(std::clamp(from, 0.0, last - spread));
    const int highest = static_cast<int>(std::clamp(to, spread, last));

    std::vector<int> sizes;
    if (lowest > 0) {
        sizes.push_back(0);
    }
    for (int i = lowest; i <= highest; ++i) {
        sizes.push_back(i);
    }
    if (highest < count - 1) {
        sizes.push_back(count - 1);
    }
    return sizes;
}

double ScaledInhalt(const CCatalogueSeries& serie, double inhalt, double laenge)
{
    return serie.IsPerMetre() ? inhalt * laenge / 1000.0 : inhalt;
}

std::vector<CSize> StandardSizes(const CCatalogueSeries& serie)
{
    std::vector<CSize> sizes;
    sizes.reserve(serie.normLaengen.size());
    for (const CStandardLength& norm : serie.normLaengen) {
        sizes.push_back({norm.dLaenge, 0.0, norm.dLeistung,
                         ScaledInhalt(serie, norm.dInhalt, norm.dLaenge), norm.nLine});
    }
    return sizes;
}

std::vector<CSize> CutSizes(const CCatalogueSeries& serie, CRequirement required)
{
    const CCutToLength& cut = *serie.zuschnitt;
    const double wattsPerMm = serie.dLeistung / 1000.0;
    std::vector<CSize> sizes;
    for (const int i :
         SizesAround(required, wattsPerMm * cut.dVon, wattsPerMm * cut.dStufe, cut.nAnzahl)) {
        const double laenge = cut.dVon + i * cut.dStufe;
        sizes.push_back(
            {laenge, 0.0, serie.dLeistung, ScaledInhalt(serie, serie.dInhalt, laenge), cut.nLine});
    }
    return sizes;
}

std::vector<CSize> SectionSizes(const CCatalogueSeries& serie, CRequirement required)
{
    const CSections& glieder = *serie.glieder;
    std::vector<CSize> sizes;
    for (const int i : SizesAround(required, serie.dLeistung, serie.dLeistung, glieder.nMax)) {
        const int count = i + 1;
        sizes.push_back({count * glieder.dGliedLaenge + glieder.dZugabe, static_cast<double>(count),
                         serie.dLeistung, count * serie.dInhalt, glieder.nLine});
    }
    return sizes;
}

/// Both in one rising order. Where they share a length the standard one stays.
std::vector<CSize> Merged(const std::vector<CSize>& standard, const std::vector<CSize>& cut)
{
    std::vector<CSize> sizes;
    std::ranges::merge(standard, cut, std::back_inserter(sizes), {}, &CSize::dLaenge,
                       &CSize::dLaenge);
    const auto isSameLength = [](const CSize& a, const CSize& b) { return a.dLaenge == b.dLaenge; };
    sizes.erase(std::unique(sizes.begin(), sizes.end(), isSameLength), sizes.end());
    return sizes;
}

std::vector<CSize> SizesOf(const CCatalogueSeries& serie, CRequirement required)
{
    if (serie.glieder) {
        return SectionSizes(serie, required);
    }
    const std::vector<CSize> standard = StandardSizes(serie);
    return serie.zuschnitt ? Merged(standard, CutSizes(serie, required)) : standard;
}

/// By what the articles of a series name a size.
double NameOfSize(const CCatalogueSeries& serie, double laenge, double elemente)
{
    return serie.IsPerSection() ? elemente : laenge;
}

const CString& TypeText(const CCatalogueSeries& serie, double sizeName)
{
    const auto own = serie.typTexte.find(sizeName);
    return own == serie.typTexte.end() ? serie.strTyp : own->second;
}

void FillRow(HK_VDI3805_TYP& row, const CCatalogueSeries& serie, const CSize& size)
{
    row.Name = TypeText(serie, NameOfSize(serie, size.dLaenge, size.dElemente));
    row.Daten.Hoehe = serie.dHoehe;
    row.Daten.Tiefe = serie.dTiefe;
    row.Daten.Laenge = size.dLaenge;
    row.Daten.LeistungEN442 = size.dLeistung;
    row.Daten.Elemente = size.dElemente;
    row.Daten.Bauart = serie.cBauart;
    row.Daten.Exponent = serie.dExponent;
    row.Daten.Inhalt = size.dInhalt;
}
} // namespace

std::vector<HK_VDI3805_TYP> BuildRows(const CCatalogueProduct& produkt, double requiredOutput)
{
    const double required =
        std::isfinite(requiredOutput) && requiredOutput > 0.0 ? requiredOutput : 0.0;

    std::vector<std::vector<CSize>> sizes;
    std::size_t count = 0;
    for (const CCatalogueSeries& serie : produkt.serien) {
        sizes.push_back(SizesOf(serie, required));
        count += sizes.back().size();
    }

    std::vector<HK_VDI3805_TYP> rows(count);
    auto row = rows.begin();
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        for (const CSize& size : sizes[i]) {
            FillRow(*row++, produkt.serien[i], size);
        }
    }
    return rows;
}

std::vector<CCatalogueRow> BuildAllRows(const CCatalogueProduct& produkt)
{
    std::vector<CCatalogueRow> rows;
    for (std::size_t i = 0; i < produkt.serien.size(); ++i) {
        for (const CSize& size : SizesOf(produkt.serien[i], std::nullopt)) {
            CCatalogueRow& row = rows.emplace_back();
            FillRow(row.row, produkt.serien[i], size);
            row.nSerie = i;
            row.nLine = size.nLine;
        }
    }
    return rows;
}

CCrossSections CrossSectionsOf(const CCatalogueProduct& produkt)
{
    CCrossSections sizes;
    for (const CCatalogueSeries& serie : produkt.serien) {
        sizes.hoehen.insert(serie.dHoehe);
        sizes.tiefen.insert(serie.dTiefe);
    }
    return sizes;
}

CString FindOrderNumber(const CCatalogueProduct& produkt, const CString& typ,
                        const HK_DATEN_VDI3805& daten)
{
    for (const CCatalogueSeries& serie : produkt.serien) {
        const double name = NameOfSize(serie, daten.Laenge, daten.Elemente);
        const auto number = serie.bestellNummern.find(name);
        if (number != serie.bestellNummern.end() && serie.dHoehe == daten.Hoehe &&
            serie.dTiefe == daten.Tiefe && TypeText(serie, name) == typ) {
            return number->second;
        }
    }
    return {};
}

} // namespace reference_host
