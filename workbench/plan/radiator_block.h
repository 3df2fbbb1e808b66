#pragma once

#include "platform/text.h"

namespace workbench {

/// The block of data/drawing/heizkoerper.dxf that shows a radiator of that kind and product from
/// above; empty if their names tell of none.
CString BlockOf(const CString& art, const CString& produkt);

} // namespace workbench
