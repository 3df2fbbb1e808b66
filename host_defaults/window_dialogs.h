#pragma once

#include "platform/export.h"
#include "platform/text.h"

class CDrawer;

namespace host_defaults {

/// The windows behind GetColorDlg(), ShowTransDlg() and ShowBigLayerDlg(). They need the toolkit,
/// which not every host is linked with: in one that leaves them out these functions are null, and
/// nobody may call them before he has looked.

[[gnu::weak]] HOST_API bool ShowColorDialog(int& index);
[[gnu::weak]] HOST_API bool ShowTransparencyDialog(int& alpha);
[[gnu::weak]] HOST_API bool ShowLayerDialog(CDrawer* drawer, CString& layer, int& farbe);

} // namespace host_defaults
