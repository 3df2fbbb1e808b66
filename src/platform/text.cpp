#include "platform/text.h"

namespace {

bool InRange(wchar_t c, wchar_t first, wchar_t last)
{
    return c >= first && c <= last;
}

/// In Latin Extended-A capital and small letter stand side by side; which of the two is even
/// changes twice within the block.
wchar_t LowerLatinExtended(wchar_t c)
{
    if (c == 0x130) {
        return L'i';
    }
    if (c == 0x178) {
        return 0xFF;
    }
    if (c == 0x138 || c == 0x149 || c == 0x17F) {
        return c;
    }
    const bool oddCapitals = InRange(c, 0x139, 0x148) || InRange(c, 0x179, 0x17E);
    const bool isCapital = (c % 2 != 0) == oddCapitals;
    return isCapital ? c + 1 : c;
}

wchar_t LowerGreek(wchar_t c)
{
    if (c == 0x386) {
        return 0x3AC;
    }
    if (InRange(c, 0x388, 0x38A)) {
        return c + 37;
    }
    if (c == 0x38C) {
        return 0x3CC;
    }
    if (c == 0x38E || c == 0x38F) {
        return c + 63;
    }
    return InRange(c, 0x391, 0x3AB) && c != 0x3A2 ? c + 32 : c;
}

} // namespace

wchar_t ToLower(wchar_t c)
{
    if (c < 0x80) {
        return InRange(c, L'A', L'Z') ? c + 32 : c;
    }
    if (c < 0x100) {
        return InRange(c, 0xC0, 0xDE) && c != 0xD7 ? c + 32 : c;
    }
    if (c < 0x180) {
        return LowerLatinExtended(c);
    }
    if (InRange(c, 0x386, 0x3AB)) {
        return LowerGreek(c);
    }
    if (InRange(c, 0x400, 0x40F)) {
        return c + 80;
    }
    return InRange(c, 0x410, 0x42F) ? c + 32 : c;
}

CString ToLower(CString text)
{
    for (wchar_t& c : text) {
        c = ToLower(c);
    }
    return text;
}

bool EqualNoCase(const CString& a, const CString& b)
{
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] != b[i] && ToLower(a[i]) != ToLower(b[i])) {
            return false;
        }
    }
    return true;
}

void ReplaceAll(CString& text, wchar_t from, wchar_t to)
{
    for (wchar_t& c : text) {
        if (c == from) {
            c = to;
        }
    }
}
