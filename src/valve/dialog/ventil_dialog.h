#pragma once

#include "frame/ventil_kv.h"
#include "platform/text.h"

/// Lets the user choose a valve of the makers' catalogues in a modal dialog. With both texts given
/// it opens on that valve, else on the first maker. True when confirmed, and then `ventil` is the
/// chosen valve, which may be none; otherwise it stays.
bool ZeigeVentilDialog(const CString& ventilNr, const CString& hersteller,
                       VDI3805_VENTIL_KV& ventil);
