#pragma once

#include "platform/text.h"

#include <string>
#include <vector>

namespace workbench {

/// The folder that a run writes its files to, and what it has written there.
class CResultFolder
{
public:
    /// Makes the folder where it is missing. Raises CFileException.
    explicit CResultFolder(const CString& path);

    const CString& GetPath() const { return m_strPath; }

    /// Writes a file of that name. Raises CFileException.
    void Write(const CString& name, const std::string& bytes);

    /// A file that somebody else has written there.
    void Add(const CString& name) { m_names.push_back(name); }

    /// "Scritti a.csv, b.json e c.pdf in out", with a line feed behind it.
    CString Describe() const;

private:
    CString m_strPath;
    std::vector<CString> m_names;
};

} // namespace workbench
