#pragma once

#include "frame/handover.h"
#include "platform/text.h"

#include <set>
#include <vector>

namespace reference_host {

/// A manufacturer's catalogue with the rows for one required output, before it hangs in the tree.

struct CBuiltProduct
{
    CString strName;
    /// In the order of the catalogue, not linked.
    std::vector<HK_VDI3805_TYP> rows;
    std::set<double> hoehen;
    std::set<double> tiefen;
};

struct CBuiltKind
{
    CString strName;
    std::vector<CBuiltProduct> produkte;
};

} // namespace reference_host
