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

private:
    CSettingOverride m_program;
    int m_pipe;
};
