#include "workbench/building/whole_file.h"

#include "platform/file.h"

namespace workbench {

void WriteWholeFile(const CString& path, std::string_view bytes)
{
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    file.Write(bytes.data(), bytes.size());
    file.Close();
}

} // namespace workbench
