#pragma once

#include "platform/text.h"

#include <cstdint>

/// Another process that does its part beside a test. It is this test program over again, which runs
/// one test only: a disabled one, so that nobody else does.
class COtherProgram
{
public:
    /// Starts DISABLED_Other.<part>, which finds `path` in PathOfOther().
    COtherProgram(const char* part, const CString& path);

    /// True if it has ended with success; waits for that.
    bool Succeeds();

private:
    std::intptr_t m_process;
};

/// What the other program is to work on.
CString PathOfOther();
