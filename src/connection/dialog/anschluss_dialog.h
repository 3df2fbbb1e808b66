#pragma once

class ConnValues;
struct TGA_LIST;
class VDI3805_VENTIL_KV;
class CDrawer;

/// Lets the user edit the connection and the valves of a radiator in a modal dialog. The two valves
/// are fetched anew from the catalogues first. `heizkoerper` are the drawn radiators that the
/// dialog shows its work on, `drawer` the drawing; either may be null. `gruppenWaehlbar` and
/// `fanCoil` are read, and `ventile`, `typ` and `fanCoil` tell on OK which groups were active. True
/// when the user confirmed; otherwise connection and flags stay as they were.
bool ZeigeAnschlussDialog(ConnValues& anschluss, VDI3805_VENTIL_KV& ventilVorlauf,
                          VDI3805_VENTIL_KV& ventilRuecklauf, bool& gruppenWaehlbar, bool& ventile,
                          bool& typ, bool& fanCoil, TGA_LIST* heizkoerper, CDrawer* drawer);
