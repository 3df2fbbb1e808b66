#pragma once

#include "frame/handover.h"
#include "frame/lumo_error.h"
#include "platform/export.h"

/// What a host calls. One caller at a time, on the thread of the host's user interface. Unknown
/// catalogue names are no error: they read as "nothing fits". Exceptions of the framework, and
/// those of the host's own libraries, pass through. In a program whose application object has no
/// windows a dialog counts as cancelled. A module that was built with its checks refuses a
/// call that comes from a second thread while one runs: std::logic_error.
///
/// A host whose libraries do not fit together or not to this module (host/host_identity.h) is told
/// so once, in a message, and gets the answer "nothing" from every function.
///
/// Numbers are taken as they come. A required Leistung that is not-a-number or infinite lets no row
/// be chosen, nor does a bound of length, height or depth that is not-a-number: -1. A LeistungMin
/// that is not-a-number asks nothing. A negative Leistung is nearest to the weakest row. A
/// Raumtemperatur that is not-a-number counts as one that the return does not exceed, which gives
/// the factor 0.006, and a Vorlauf or Ruecklauf that is not-a-number, 0 or negative gives the
/// factor 1.0; either way rows are found, whose outputs mean nothing. Hosts check what their users
/// type.

class CDrawer;
class ConnValues;
class VDI3805_VENTIL_KV;
struct TGA_LIST;

/// Finds a radiator for the hand-over's position, size range and required output.
///
/// Without the dialog: 0 or above is the index of the chosen row within the result list, and the
/// hand-over's Daten and TypName hold that row; -1 means that no row fits, and both stay untouched.
/// Layer and colour are left alone. A required Leistung of 0.0 works with 1000.0, which stays in
/// the hand-over.
///
/// With the dialog: 0 on OK, -1 if nothing was chosen, -2 on cancel. Tell the two forms apart by
/// the flag passed. `drawer` may be null; `warnAndWiden` concerns the dialog only. A null hand-over
/// gives -1, with the dialog too, which does not open.
RADSEL_API int HeizkoerperauswahlVDI3805(CDrawer* drawer, HK_DATEN_VDI3805_UEBERGABE* uebergabe,
                                         CString& layer, int& layerColor, bool showDialog,
                                         bool warnAndWiden);

/// Lets the user choose a product in the catalogue tree: 0 on OK, with Hersteller, Art and Produkt
/// of the hand-over naming it; -1 on cancel, and for a null hand-over.
RADSEL_API int HeizkoerperauswahlVDI3805Tree(HK_DATEN_VDI3805_UEBERGABE* uebergabe);

/// Appends the heights and the depths in which the product exists, in mm, ascending. The arrays are
/// not emptied first; if there is no such product, or it has no rows, they stay as they were.
RADSEL_API void Read_HK_Masse(HK_DATEN_VDI3805_UEBERGABE& uebergabe, OCArray<double>& hoehen,
                              OCArray<double>& tiefen);

/// Sizes of the product's rows as whole millimetres, ascending and without duplicates, and the
/// water contents of the rows in the rows' own order (litres). Each array holds `capacity` results;
/// places left empty are -1 and -1.0. The three short arrays must have room for `capacity` + 1
/// elements: an insertion shifts one element beyond the capacity. Of more sizes than places those
/// of the first rows stay. If any of the arrays is null, all others come back empty. The first row
/// is copied to the hand-over's Typ, which without a row is left alone.
RADSEL_API void Read_HK_Masse(HK_DATEN_VDI3805_UEBERGABE& uebergabe, short* hoehen, short* tiefen,
                              short* laengen, double* inhalte, int capacity);

/// The product's smallest and largest depth in mm, -1.0 if it has no depths or no rows.
RADSEL_API double HKGetMinTiefe(HK_DATEN_VDI3805_UEBERGABE& uebergabe);
RADSEL_API double HKGetMaxTiefe(HK_DATEN_VDI3805_UEBERGABE& uebergabe);

/// Water content in litres of the product's row with these measures, given in metres; 0.0 if no row
/// has them.
RADSEL_API double GetHK_Inhalt(HK_DATEN_VDI3805_UEBERGABE& uebergabe, double hoehe, double tiefe,
                               double laenge);

/// Lets the user edit the connection of a radiator and its two valves. Both valves are fetched by
/// their keys first, in place, whatever the user does then.
///
/// True on OK, and then the connection and the valves hold what the user chose, `ventile` and `typ`
/// the checks of the two groups and `fanCoil` that of its box, which opens as it came. Otherwise
/// all but the fetched valves stays. `gruppenWaehlbar` tells whether the user may change the checks
/// of the groups.
///
/// The radiators of the list show their connection points in the drawing while the dialog is open;
/// their attributes "H_VL_PUNKT" and "H_RL_PUNKT" keep the last texts, after Cancel too. A missing
/// attribute is made with `new`. List and `drawer` may be null and stay the caller's.
RADSEL_API bool ShowVentDlg(ConnValues& anschluss, VDI3805_VENTIL_KV& ventilVorlauf,
                            VDI3805_VENTIL_KV& ventilRuecklauf, bool& gruppenWaehlbar,
                            bool& ventile, bool& typ, bool& fanCoil, TGA_LIST* heizkoerper,
                            CDrawer* drawer);

/// Lets the user pick a valve. True on OK, and then `ventil` holds it. With both texts non-empty
/// the dialog opens on that valve. Mind the order: number first, manufacturer second.
RADSEL_API bool ShowVentVDI3805Dlg(const CString& ventilNr, const CString& hersteller,
                                   VDI3805_VENTIL_KV& ventil);

/// Puts the two keys into the two records and fetches both as VDI3805GetVentilDaten does. Mind the
/// order: manufacturer first, number second.
RADSEL_API void VDI3805GetVentil(const CString& hersteller1, const CString& ventilNr1,
                                 const CString& hersteller2, const CString& ventilNr2,
                                 VDI3805_VENTIL_KV& ventil1, VDI3805_VENTIL_KV& ventil2);

/// Fills two records by the keys that they hold. False if the first key is not well-formed: fewer
/// than 30 characters of number, or no manufacturer. True says no more than that it was: a record
/// whose valve is not found stays as it came, and is what the next call with the same first key
/// gets. Whether a valve was found shows in the tables.
RADSEL_API bool VDI3805GetVentilDaten(VDI3805_VENTIL_KV& ventil1, VDI3805_VENTIL_KV& ventil2);

/// Does nothing.
RADSEL_API void DummyCall();
