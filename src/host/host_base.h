#pragma once

#include "host/drawing_records.h"
#include "platform/color.h"
#include "platform/export.h"
#include "platform/text.h"

/// HostBase: what the host offers to all its modules.

/// Delivers the root of the data that an office shares on its server. False, with `path` left
/// alone, if the office has none.
HOST_API bool configGetWorkPathServer(CString& path);

/// Delivers the folder that this working place keeps its own files in (placements of windows, which
/// dialogs have help). False, with `path` left alone, if none is set.
HOST_API bool configGetWorkPathLocal(CString& path);

/// Smallest and largest colour index that the user can choose. Index 0 of a drawing stands for the
/// colour of the block and 256 for that of the layer; neither is a colour of its own.
inline constexpr int kFirstColorIndex = 1;
inline constexpr int kLastColorIndex = 255;

/// Lets the user choose one of the colours of a drawing. `index` is the one to begin with (one
/// outside 1 to 255 selects none). True when confirmed, and then `index` is the choice; otherwise
/// it stays. Modal.
HOST_API bool GetColorDlg(int& index);

/// RGB value of a colour index; black for one outside 1 to 255.
HOST_API COLORREF GetRGBFromColor(int index);

/// Colour in which the host draws a trade, as 0x00BBGGRR. The module asks for the two that
/// drawing_records.h names.
HOST_API int lmGetGewerkColor(TgaGewerk gewerk);
