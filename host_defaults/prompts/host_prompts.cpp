#include "host/host_prompts.h"

#include "host_defaults/answers.h"
#include "host_defaults/window_dialogs.h"

namespace host_defaults {

bool ShowTransDlg(int& alpha)
{
    return ShowTransparencyDialog != nullptr && ShowTransparencyDialog(alpha);
}

bool ShowBigLayerDlg(CDrawer* drawer, CString& layer, int& farbe)
{
    return ShowLayerDialog != nullptr && ShowLayerDialog(drawer, layer, farbe);
}

} // namespace host_defaults

bool ShowTransDlg(int& alpha)
{
    return host_defaults::ShowTransDlg(alpha);
}

bool ShowBigLayerDlg(CDrawer* drawer, CString& layer, int& farbe)
{
    return host_defaults::ShowBigLayerDlg(drawer, layer, farbe);
}
