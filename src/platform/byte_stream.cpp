#include "platform/byte_stream.h"

#include <algorithm>
#include <cstring>

std::size_t CMemoryStream::Read(void* buffer, std::size_t count)
{
    const std::size_t taken = std::min(count, m_bytes.size() - m_position);
    if (taken != 0) {
        std::memcpy(buffer, m_bytes.data() + m_position, taken);
        m_position += taken;
    }
    return taken;
}

void CMemoryStream::Write(const void* buffer, std::size_t count)
{
    const auto* const bytes = static_cast<const std::uint8_t*>(buffer);
    m_bytes.insert(m_bytes.end(), bytes, bytes + count);
}
