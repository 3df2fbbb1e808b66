#include "common/numbers.h"

#include "platform/format.h"
#include "platform/number_scan.h"

void CommaToPoint(CString& text)
{
    ReplaceAll(text, L',', L'.');
}

double ParseNumber(const CString& text)
{
    CString pointed = text;
    CommaToPoint(pointed);
    return _wtof(pointed);
}

CString FormatNumber(double value, int decimals)
{
    if (decimals >= 5) {
        return FormatFixed(value, 6);
    }
    return FormatFixed(value, decimals < 0 ? 2 : decimals);
}
