#include "platform/whole_file.h"

#include "platform/file.h"

#include <cstddef>

std::optional<std::string> ReadWholeFile(const CString& path, std::uint64_t largest)
{
    CFile file(path, CFile::modeRead | CFile::shareDenyWrite);
    const std::uint64_t length = file.GetLength();
    if (length > largest) {
        return std::nullopt;
    }
    std::string bytes(static_cast<std::size_t>(length), '\0');
    bytes.resize(file.Read(bytes.data(), bytes.size()));
    return bytes;
}

void WriteWholeFile(const CString& path, std::string_view bytes)
{
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    file.Write(bytes.data(), bytes.size());
    file.Close();
}

std::span<const std::uint8_t> BytesOf(std::string_view text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}
