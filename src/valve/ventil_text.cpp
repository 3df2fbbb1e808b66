#include "valve/ventil_text.h"

namespace {

wchar_t KorrigiertesZeichen(wchar_t c)
{
    switch (c) {
    case 0x81:
        return L'ü';
    case 0x84:
    case 0x201E:
        return L'ä';
    case 0x8E:
        return L'Ä';
    case 0x94:
    case 0x201D:
        return L'ö';
    case 0x99:
        return L'Ö';
    case 0x9A:
        return L'Ü';
    case 0xE1:
        return L'ß';
    default:
        return c;
    }
}

} // namespace

void KorrigiereUmlaute(CString& zeile)
{
    for (wchar_t& c : zeile) {
        if (c > 0x80) {
            c = KorrigiertesZeichen(c);
        }
    }
}

CVentilText::operator CString() const
{
    CString text = m_text.Widen();
    KorrigiereUmlaute(text);
    return text;
}

CString CVentilText::substr(std::size_t position, std::size_t count) const
{
    return CString(*this).substr(position, count);
}

bool operator==(const CVentilText& a, std::wstring_view b)
{
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t i = 0; i < b.size(); ++i) {
        if (KorrigiertesZeichen(a.m_text[i]) != b[i]) {
            return false;
        }
    }
    return true;
}
