#pragma once

#include "frame/handover.h"
#include "reference_host/catalog/reader/catalogue_file.h"

#include <cstddef>
#include <set>
#include <vector>

namespace reference_host {

/// The rows of a product for a required output at standard conditions (watts), series after series,
/// each in rising lengths. Standard lengths are all there whatever the requirement. Lengths cut to
/// measure and numbers of sections are those that give 40 % to 160 % of the requirement, and at
/// least six sizes below and above the one that fits best, as far as the product goes; for a
/// requirement beyond its ends, the thirteen sizes at that end. A requirement that is no positive
/// finite number gives the short end. The rows are not linked yet.
std::vector<HK_VDI3805_TYP> BuildRows(const CCatalogueProduct& produkt, double requiredOutput);

/// A row that some requirement gives, and where it comes from.
struct CCatalogueRow
{
    HK_VDI3805_TYP row;
    /// Index of its series in the product.
    std::size_t nSerie = 0;
    /// Line of the record that gives its length.
    int nLine = 0;
};

/// All rows that the product has for any requirement, in the same order.
std::vector<CCatalogueRow> BuildAllRows(const CCatalogueProduct& produkt);

/// Heights and depths of all series.
struct CCrossSections
{
    std::set<double> hoehen;
    std::set<double> tiefen;
};
CCrossSections CrossSectionsOf(const CCatalogueProduct& produkt);

/// The order number of a row of the product: of the first size with this type text and these
/// measures that has one. Empty if there is none.
CString FindOrderNumber(const CCatalogueProduct& produkt, const CString& typ,
                        const HK_DATEN_VDI3805& daten);

} // namespace reference_host
