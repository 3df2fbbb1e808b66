#pragma once

#include "platform/text.h"

#include <filesystem>
#include <string>

/// A new, empty folder of its own for a test, removed with everything in it when the object dies.
class CTempFolder
{
public:
    CTempFolder();
    ~CTempFolder();

    CTempFolder(const CTempFolder&) = delete;
    CTempFolder& operator=(const CTempFolder&) = delete;

    const std::filesystem::path& Root() const { return m_root; }

    /// Path of an entry as the module takes it, whether it exists or not. `name` may lead through
    /// sub-folders with "/". An empty name stands for the folder itself.
    CString Path(const std::string& name = {}) const;

    /// Writes a file, making the folders on the way to it.
    void WriteBytes(const std::string& name, const std::string& bytes) const;

    /// All bytes of a file; a file that does not exist fails the test and reads as empty.
    std::string ReadBytes(const std::string& name) const;

    bool Exists(const std::string& name) const;

private:
    std::filesystem::path m_root;
};
