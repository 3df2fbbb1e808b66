#pragma once

class HK_DATEN_VDI3805_UEBERGABE;

/// True if a call brings a hand-over; one that does not is told to the host's listener.
bool HasHandover(const HK_DATEN_VDI3805_UEBERGABE* uebergabe);
