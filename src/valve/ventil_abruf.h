#pragma once

#include "frame/ventil_kv.h"

/// Fills the supply and the return valve of a radiator by the keys that the two records hold
/// (Hersteller and VentilNr). False, with nothing read, if the first key is not well-formed: fewer
/// than 30 characters of number, or no manufacturer. True says no more than that it was.
///
/// A record whose valve is searched and not found stays as it came. The first record of the last
/// call that searched for one is kept for the life of the process, a failed search included:
/// whenever its key comes again, in either record, that record is the answer, without a search,
/// until another first key comes. A bad line in a file raises CInvalidArgException.
bool HoleVentilDaten(VDI3805_VENTIL_KV& ventil1, VDI3805_VENTIL_KV& ventil2);
