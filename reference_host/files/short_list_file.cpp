#include "reference_host/files/short_list_file.h"

#include "common/heizung_ordner.h"
#include "common/text_file.h"
#include "platform/file.h"
#include "platform/file_limits.h"
#include "platform/path.h"

namespace reference_host {

CShortListFile ReadShortList(const CString& path)
{
    const CString file = path.empty() ? HeizungPfad(L"Vent.txt") : path;
    CShortListFile list;
    list.strFile = TextFromPath(ResolvePath(file));
    CFile stream(file, CFile::modeRead);
    if (stream.GetLength() > kLargestList) {
        list.fault = CFileFault(0, DescribeTooLarge(kLargestList), list.strFile);
        return list;
    }
    ReadTextLines(stream, list.lines, -1, &list.strLost);
    return list;
}

} // namespace reference_host
