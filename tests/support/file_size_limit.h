#pragma once

#include <cstdint>

/// Lets no file of the process grow beyond a size, as a full disk would, for the life of the
/// object. A test that needs it needs a system that can.
class CFileSizeLimit
{
public:
    explicit CFileSizeLimit(std::uint64_t bytes);
    ~CFileSizeLimit();
    CFileSizeLimit(const CFileSizeLimit&) = delete;
    CFileSizeLimit& operator=(const CFileSizeLimit&) = delete;

private:
    std::uint64_t m_before = 0;
    void (*m_handler)(int) = nullptr;
};
