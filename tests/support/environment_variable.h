#pragma once

#include "platform/encoding.h"
#include "platform/environment.h"

#include <optional>

/// The variable with the folder below which the user's settings lie.
extern const char* const kSettingsVariable;

/// Sets or removes a variable of the real environment, which is the one that the host reads.
class CEnvironmentVariable
{
public:
    CEnvironmentVariable(const char* name, const char* value)
        : m_name(WideFromUtf8(name)), m_before(ReadSystemEnvironment(m_name))
    {
        SetSystemEnvironment(m_name,
                             value != nullptr ? std::optional(WideFromUtf8(value)) : std::nullopt);
    }
    ~CEnvironmentVariable() { SetSystemEnvironment(m_name, m_before); }
    CEnvironmentVariable(const CEnvironmentVariable&) = delete;
    CEnvironmentVariable& operator=(const CEnvironmentVariable&) = delete;

private:
    CString m_name;
    std::optional<CString> m_before;
};
