#pragma once

#include "host/host_base.h"
#include "host/host_catalog.h"
#include "host/host_fittings.h"
#include "host/host_prefs.h"
#include "host/host_prompts.h"

/// What a host answers that has not written the function itself. Each default has the name of the
/// function that it stands for, so that a function of the host's own can pass on what it does not
/// want to answer:
///
///     int lmGetGewerkColor(TgaGewerk gewerk)
///     {
///         return gewerk == kCooling ? kGreen : host_defaults::lmGetGewerkColor(gewerk);
///     }
///
/// What the functions are for, their headers in host/ tell.
namespace host_defaults {

/// No folder.
decltype(::GetHKDir) GetHKDir;
decltype(::GetVEDir) GetVEDir;

/// Metres.
decltype(::lmGetDimension2) lmGetDimension2;
decltype(::lmGetDimensionUsr) lmGetDimensionUsr;

/// A layer for each floor, red; the user manages them.
decltype(::lmGetHKLayer) lmGetHKLayer;
decltype(::lmGetHKLayerColor) lmGetHKLayerColor;
decltype(::lmGetAutoLayerManagement) lmGetAutoLayerManagement;

/// No blocks, and none that was used last.
decltype(::lmGetDWGDefPath) lmGetDWGDefPath;
decltype(::lmGetHKBlock) lmGetHKBlock;
decltype(::lmSetHKBlock) lmSetHKBlock;

/// An ordinary user.
decltype(::lmGetGlobalSuperUser) lmGetGlobalSuperUser;

/// Nothing is stored, and nothing is kept from one use to the next.
decltype(::ReadDefFile) ReadDefFile;
decltype(::WriteDefFile) WriteDefFile;
decltype(::ReadDefFile_VDI6030START) ReadDefFile_VDI6030START;
decltype(::WriteDefFile_VDI6030START) WriteDefFile_VDI6030START;

/// A cache in memory, with one project a process: entries are kept to its end.
decltype(::lmGetCacheObject) lmGetCacheObject;

/// The system's colours, Enter confirms, the plain banner, "winpos.txt". The program is called
/// "radsel".
decltype(::lmGetAllowLumoSkin) lmGetAllowLumoSkin;
decltype(::lmGetLumoSkinColor) lmGetLumoSkinColor;
decltype(::lmGetAllowEnterAsTab) lmGetAllowEnterAsTab;
decltype(::lmGetCurrentWinposFile) lmGetCurrentWinposFile;
decltype(::lmGetUseVistaBanner) lmGetUseVistaBanner;
decltype(::lmGetProductLongName) lmGetProductLongName;

/// No manufacturers. The three that search go through the list of the host's own ReadHKDaten(), so
/// that a host whose catalogue is in memory writes that one function. To such a host there is
/// nothing to be read from a file either: ReadVdiFile() leaves what hangs below the manufacturer
/// as it is and counts the rows there, -1 if nothing hangs there.
decltype(::ReadHKDaten) ReadHKDaten;
decltype(::FindHersteller) FindHersteller;
decltype(::FindArt) FindArt;
decltype(::FindProdukt) FindProdukt;
decltype(::ReadVdiFile) ReadVdiFile;

/// There are no help pages.
decltype(::ShowPDF) ShowPDF;

/// CRoomTools::GetFloorName and CImageLoader::LoadLumoIcon, whole.
CString GetFloorName(const CString& raum);
CBitmap LoadLumoIcon(int index, int width, int height);

/// Connection points, whole.
decltype(::lmGet_K_APUNKT_X) lmGet_K_APUNKT_X;
decltype(::lmSet_K_APUNKT_X) lmSet_K_APUNKT_X;
decltype(::lmGet_K_APUNKT_BLOCK_Wc) lmGet_K_APUNKT_BLOCK_Wc;

/// The default dialogs where they are linked beside; without them the user has cancelled.
decltype(::ShowTransDlg) ShowTransDlg;
decltype(::ShowBigLayerDlg) ShowBigLayerDlg;
decltype(::GetColorDlg) GetColorDlg;

/// Neither server nor working place.
decltype(::configGetWorkPathServer) configGetWorkPathServer;
decltype(::configGetWorkPathLocal) configGetWorkPathLocal;

/// Colours, whole.
decltype(::GetRGBFromColor) GetRGBFromColor;
decltype(::lmGetGewerkColor) lmGetGewerkColor;

} // namespace host_defaults
