#include "reference_host/catalog/reader/catalogue_file.h"
#include "reference_host/catalog/reader/row_builder.h"
#include "tests/fuzz/entries.h"

#include <cmath>
#include <limits>

using namespace reference_host;

namespace {

void CheckRows(const CCatalogueProduct& produkt, double requiredOutput)
{
    for (const HK_VDI3805_TYP& row : BuildRows(produkt, requiredOutput)) {
        const HK_DATEN_VDI3805& daten = row.Daten;
        for (const double value : {daten.Hoehe, daten.Tiefe, daten.Laenge, daten.LeistungEN442,
                                   daten.Leistung, daten.Elemente, daten.Exponent, daten.Inhalt}) {
            Require(std::isfinite(value) && value >= 0.0, "every number of a row is a size");
        }
        Require(daten.Laenge > 0.0, "every row has a length");
    }
}

} // namespace

void RunCatalogue(std::span<const std::uint8_t> bytes)
{
    const auto parsed = ParseCatalogue(bytes);
    if (const auto* const fault = std::get_if<CFileFault>(&parsed)) {
        Require(!fault->strMessage.empty() && fault->nLine >= 0, "a fault says what and where");
        return;
    }
    for (const CCatalogueKind& art : std::get<CCatalogue>(parsed).arten) {
        for (const CCatalogueProduct& produkt : art.produkte) {
            for (const double output :
                 {0.0, 1.0, 800.0, 1e9, std::numeric_limits<double>::infinity(),
                  std::numeric_limits<double>::quiet_NaN()}) {
                CheckRows(produkt, output);
            }
        }
    }
}
