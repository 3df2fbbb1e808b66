#pragma once

#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

/// Stands for the program that opens help pages, and tells which page it was given.
class CPageOpener
{
public:
    /// Puts the program into the folder and into the host's settings.
    explicit CPageOpener(const CTempFolder& folder);
    ~CPageOpener();
    CPageOpener(const CPageOpener&) = delete;
    CPageOpener& operator=(const CPageOpener&) = delete;

    /// The count of arguments and the first of them, as in "1|/folder/238.pdf"; empty if the
    /// program is not started.
    std::string WaitForPage() const;

    /// A name for a folder with all that a shell would read and the system lets stand in names.
    static const char* const kOddFolder;

    /// True if this process has a child, running or ended, that it never asked for.
    static bool HasLeftAChild();

private:
    CSettingOverride m_program;
    /// By which the program tells; what that is, each system has its own way.
    int m_pipe;
};
