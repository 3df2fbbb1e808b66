#include "platform/file_bytes.h"

#include "platform/descriptor.h"

#include <array>
#include <cerrno>

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
        count = ReadDescriptor(descriptor, buffer.data(), buffer.size());
        if (count > 0) {
            bytes.append(buffer.data(), static_cast<std::size_t>(count));
        }
    } while (count > 0 || (count < 0 && errno == EINTR));
    return count == 0;
}
