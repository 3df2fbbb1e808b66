#pragma once

#include "frame/handover.h"
#include "host/image_loader.h"
#include "platform/export.h"
#include "platform/text.h"

/// HostCatalog: the host's reader of radiator catalogues, its icons and its help. The tree belongs
/// to this library and outlives every call of the module, which reads it and never frees any of it.

/// Head of the list of manufacturers, null if there is none. A manufacturer whose file has not been
/// read has a null pArt.
HOST_API HK_VDI3805_HERSTELLER* ReadHKDaten();

/// The manufacturer of that name in the list of the last ReadHKDaten(), null if there is none.
HOST_API HK_VDI3805_HERSTELLER* FindHersteller(const CString& name);

/// The kind of that name below a manufacturer, null if there is none or the manufacturer is null.
HOST_API HK_VDI3805_ART* FindArt(HK_VDI3805_HERSTELLER* hersteller, const CString& name);

/// The product of that name below a kind, null if there is none or the kind is null.
HOST_API HK_VDI3805_PRODUKT* FindProdukt(HK_VDI3805_ART* art, const CString& name);

/// Reads the manufacturer's file and hangs its kinds, products and rows below `*art`, which is the
/// manufacturer's own pArt. `leistungEN442` is the required output at standard conditions in watts:
/// rows of radiators that are built to measure are made around it. What hung there before is
/// replaced; pointers to former kinds and products stay valid, pointers to former rows do not.
/// Returns the count of rows, or -1 if the file cannot be read, and then `*art` is null.
HOST_API int ReadVdiFile(const CString& hersteller, HK_VDI3805_ART** art, double leistungEN442);

/// Opens the help page of a dialog in the user's viewer and does not wait until that ends; for a
/// moment, a second at most, to learn whether it starts. `dialogId` is the dialog's number. `art`
/// is the kind of page; the module passes 100. A dialog without a page, or a viewer that cannot be
/// started, changes nothing.
HOST_API void ShowPDF(unsigned dialogId, int art);

/// Identifiers of rooms, as hosts put them into a hand-over.
class HOST_API CRoomTools
{
public:
    /// Name of the floor on which a room lies. A room is identified by its floor, a "." and its
    /// name or number on that floor: "1.05", "Piano terra.Cucina". Blanks around the floor do not
    /// belong to it. An identifier without a "." names no floor: an empty text.
    static CString GetFloorName(const CString& raum);
};
