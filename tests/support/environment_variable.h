#pragma once

#include <cstdlib>
#include <optional>
#include <string>

/// Sets or removes a variable of the real environment, which is the one that the host reads.
class CEnvironmentVariable
{
public:
    CEnvironmentVariable(const char* name, const char* value) : m_name(name)
    {
        if (const char* before = std::getenv(name)) {
            m_before = before;
        }
        Set(value);
    }
    ~CEnvironmentVariable() { Set(m_before ? m_before->c_str() : nullptr); }
    CEnvironmentVariable(const CEnvironmentVariable&) = delete;
    CEnvironmentVariable& operator=(const CEnvironmentVariable&) = delete;

private:
    void Set(const char* value) const
    {
        if (value != nullptr) {
            setenv(m_name, value, 1);
        } else {
            unsetenv(m_name);
        }
    }

    const char* m_name;
    std::optional<std::string> m_before;
};
