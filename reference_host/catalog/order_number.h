#pragma once

#include "frame/handover.h"
#include "host/api.h"
#include "platform/text.h"

namespace reference_host {

/// The number under which a radiator is ordered: that of the article which the manufacturer's
/// catalogue has for this size of a product, told by type text, measures and sections. Empty where
/// the catalogue has none, or cannot be read.
HOST_API CString FindOrderNumber(const CString& hersteller, const CString& art,
                                 const CString& produkt, const CString& typ,
                                 const HK_DATEN_VDI3805& daten);

} // namespace reference_host
