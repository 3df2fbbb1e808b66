#include "platform/file_bytes.h"

#include "platform/descriptor.h"

#include <array>
#include <cerrno>
#include <iterator>

std::ptrdiff_t ReadUpTo(int descriptor, char* buffer, std::size_t count)
{
    std::size_t total = 0;
    while (total < count) {
        const std::ptrdiff_t got = ReadDescriptor(descriptor, buffer + total, count - total);
        if (got == 0) {
            break;
        }
        if (got > 0) {
            total += static_cast<std::size_t>(got);
        } else if (errno != EINTR) {
            return -1;
        }
    }
    return static_cast<std::ptrdiff_t>(total);
}

bool WriteAll(int descriptor, const char* bytes, std::size_t count)
{
    while (count != 0) {
        const std::ptrdiff_t written = WriteDescriptor(descriptor, bytes, count);
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        bytes += written;
        count -= static_cast<std::size_t>(written);
    }
    return true;
}

bool ReadAll(int descriptor, std::string& bytes)
{
    std::array<char, 65536> buffer;
    std::ptrdiff_t count = 0;
    do {
        count = ReadUpTo(descriptor, buffer.data(), buffer.size());
        if (count > 0) {
            bytes.append(buffer.data(), static_cast<std::size_t>(count));
        }
    } while (count == std::ssize(buffer));
    return count >= 0;
}
