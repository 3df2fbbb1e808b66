#include "uikit/text_case.h"

#include <QChar>

CString LowerCase(CString text)
{
    for (wchar_t& c : text) {
        c = static_cast<wchar_t>(QChar::toLower(static_cast<char32_t>(c)));
    }
    return text;
}

bool IsLetter(wchar_t c)
{
    return QChar::isLetter(static_cast<char32_t>(c));
}
