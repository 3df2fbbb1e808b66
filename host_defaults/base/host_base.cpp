#include "host/host_base.h"

#include "host_defaults/answers.h"
#include "host_defaults/window_dialogs.h"

namespace host_defaults {

bool configGetWorkPathServer(CString& /*path*/)
{
    return false;
}

bool configGetWorkPathLocal(CString& /*path*/)
{
    return false;
}

bool GetColorDlg(int& index)
{
    return ShowColorDialog != nullptr && ShowColorDialog(index);
}

} // namespace host_defaults

bool configGetWorkPathServer(CString& path)
{
    return host_defaults::configGetWorkPathServer(path);
}

bool configGetWorkPathLocal(CString& path)
{
    return host_defaults::configGetWorkPathLocal(path);
}

bool GetColorDlg(int& index)
{
    return host_defaults::GetColorDlg(index);
}
