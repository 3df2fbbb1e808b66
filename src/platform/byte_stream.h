#pragma once

#include "platform/export.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

/// A row of bytes with a position: what an archive is read from and written to.
class CByteStream
{
public:
    virtual ~CByteStream() = default;

    /// Reads up to `count` bytes and returns how many there were; fewer only at the end.
    virtual std::size_t Read(void* buffer, std::size_t count) = 0;

    /// Writes all of `count` bytes at the position or throws.
    virtual void Write(const void* buffer, std::size_t count) = 0;

    virtual std::uint64_t GetPosition() const = 0;
    virtual std::uint64_t GetLength() const = 0;
};

/// A byte stream in memory. Writing goes to the end, reading starts at the first byte.
class CMemoryStream : public CByteStream
{
public:
    CMemoryStream() = default;
    explicit CMemoryStream(std::vector<std::uint8_t> bytes) : m_bytes(std::move(bytes)) {}

    std::size_t Read(void* buffer, std::size_t count) override;
    void Write(const void* buffer, std::size_t count) override;
    std::uint64_t GetPosition() const override { return m_position; }
    std::uint64_t GetLength() const override { return m_bytes.size(); }

    /// All bytes, whatever the reading position.
    const std::vector<std::uint8_t>& GetBytes() const { return m_bytes; }

private:
    std::vector<std::uint8_t> m_bytes;
    std::size_t m_position = 0;
};
