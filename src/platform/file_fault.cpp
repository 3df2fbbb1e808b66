#include "platform/file_fault.h"

#include "platform/format.h"

CString FormatFileFault(const CFileFault& fault)
{
    CString text = fault.strFile;
    if (fault.nLine > 0) {
        text += L": riga " + FormatInt(fault.nLine);
    }
    if (fault.nColumn > 0) {
        text += L", colonna " + FormatInt(fault.nColumn);
    }
    return text + L": " + fault.strMessage;
}
