#include "workbench/batch/result_folder.h"

#include "platform/exception.h"
#include "platform/path.h"
#include "platform/system_error.h"
#include "platform/whole_file.h"

#include <cstddef>
#include <filesystem>
#include <system_error>

namespace workbench {

CResultFolder::CResultFolder(const CString& path) : m_strPath(path)
{
    std::error_code error;
    std::filesystem::create_directories(ResolvePath(path), error);
    if (error) {
        throw CFileException::FromErrno(ErrnoOf(error), path);
    }
}

void CResultFolder::Write(const CString& name, const std::string& bytes)
{
    WriteWholeFile(JoinPath(m_strPath, name), bytes);
    Add(name);
}

CString CResultFolder::Describe() const
{
    CString text = L"Scritti ";
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        const bool isLast = i + 1 == m_names.size();
        text += (i == 0 ? L"" : isLast ? L" e " : L", ") + m_names[i];
    }
    return text + L" in " + m_strPath + L"\n";
}

} // namespace workbench
