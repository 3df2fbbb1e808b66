#include "reference_host/check/check_texts.h"

#include "platform/encoding.h"
#include "platform/format.h"

#include <algorithm>

namespace reference_host {

CString FieldPlace(const wchar_t* record, int field, const wchar_t* name)
{
    return CString(L"Record ") + record + L", campo " + FormatInt(field) + L" (" + name + L"): ";
}

CString ReadName(const CString& name)
{
    const std::size_t first = name.find_first_not_of(L" \t");
    return first == CString::npos
               ? CString()
               : ToLower(name.substr(first, name.find_last_not_of(L" \t") - first + 1));
}

bool IsUtf8Line(const CString& line)
{
    return FindUtf8Line(Cp1252FromWide(line)) != 0;
}

int FindUtf8Line(std::string_view bytes)
{
    // The letters of Latin-1 from À on begin with C3 and go on with 80 to BF, which in code page
    // 1252 would be a capital A with a tilde in front of a sign.
    const auto is = [](char byte, unsigned first, unsigned last) {
        const auto code = static_cast<unsigned char>(byte);
        return code >= first && code <= last;
    };
    const auto found = std::ranges::adjacent_find(
        bytes, [&](char a, char b) { return is(a, 0xC3, 0xC3) && is(b, 0x80, 0xBF); });
    return found == bytes.end() || bytes.starts_with("\xFF\xFE")
               ? 0
               : static_cast<int>(std::count(bytes.begin(), found, '\n')) + 1;
}

} // namespace reference_host
