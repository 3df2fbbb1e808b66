#include "tools/make_connections_samples.h"

#include "platform/encoding.h"
#include "platform/text.h"

namespace {
struct CConnectionType
{
    const wchar_t* lpszName;
    const wchar_t* lpszVorlauf;
    const wchar_t* lpszRuecklauf;
};

// Tappings in the end faces, 30 mm off the edge.
constexpr wchar_t kLeftUpper[] = L"-0.5; 0.0;  0;0; 0.5; -0.03; 180;0";
constexpr wchar_t kLeftLower[] = L"-0.5; 0.0;  0;0;-0.5;  0.03; 180;0";
constexpr wchar_t kRightUpper[] = L" 0.5; 0.0;  0;0; 0.5; -0.03;   0;0";
constexpr wchar_t kRightLower[] = L" 0.5; 0.0;  0;0;-0.5;  0.03;   0;0";

// Tappings in the bottom; "outer" is the one nearer to the end.
constexpr wchar_t kBottomLeftOuter[] = L"-0.5; 0.03; 0;0;-0.5;  0.00;   0;270";
constexpr wchar_t kBottomLeftInner[] = L"-0.5; 0.06; 0;0;-0.5;  0.00;   0;270";
constexpr wchar_t kBottomMiddleLeft[] = L" 0.0;-0.03; 0;0;-0.5;  0.00;   0;270";
constexpr wchar_t kBottomMiddleRight[] = L" 0.0; 0.03; 0;0;-0.5;  0.00;   0;270";
constexpr wchar_t kBottomRightInner[] = L" 0.5;-0.06; 0;0;-0.5;  0.00;   0;270";
constexpr wchar_t kBottomRightOuter[] = L" 0.5;-0.03; 0;0;-0.5;  0.00;   0;270";

// Angle valves stand 50 mm out of the end face; the pipe turns to the wall or to the floor there.
constexpr wchar_t kWallLeftUpper[] = L"-0.5;-0.05; 0;0.03; 0.5; -0.03; 90;0";
constexpr wchar_t kWallLeftLower[] = L"-0.5;-0.05; 0;0.03;-0.5;  0.03; 90;0";
constexpr wchar_t kWallRightUpper[] = L" 0.5; 0.05; 0;0.03; 0.5; -0.03; 90;0";
constexpr wchar_t kWallRightLower[] = L" 0.5; 0.05; 0;0.03;-0.5;  0.03; 90;0";
constexpr wchar_t kFloorLeft[] = L"-0.5;-0.05; 0;0;-0.5;  0.03;   0;270";
constexpr wchar_t kFloorRight[] = L" 0.5; 0.05; 0;0;-0.5;  0.03;   0;270";

// H-blocks hang 50 mm below the radiator and have their pipes 50 mm apart.
constexpr wchar_t kBlockFloorLeftOuter[] = L"-0.5; 0.03; 0;0;-0.5; -0.05;   0;270";
constexpr wchar_t kBlockFloorLeftInner[] = L"-0.5; 0.08; 0;0;-0.5; -0.05;   0;270";
constexpr wchar_t kBlockFloorMiddleLeft[] = L" 0.0;-0.025;0;0;-0.5; -0.05;   0;270";
constexpr wchar_t kBlockFloorMiddleRight[] = L" 0.0; 0.025;0;0;-0.5; -0.05;   0;270";
constexpr wchar_t kBlockFloorRightInner[] = L" 0.5;-0.08; 0;0;-0.5; -0.05;   0;270";
constexpr wchar_t kBlockFloorRightOuter[] = L" 0.5;-0.03; 0;0;-0.5; -0.05;   0;270";
constexpr wchar_t kBlockWallLeftOuter[] = L"-0.5; 0.03; 0;0.03;-0.5; -0.05; 90;0";
constexpr wchar_t kBlockWallLeftInner[] = L"-0.5; 0.08; 0;0.03;-0.5; -0.05; 90;0";
constexpr wchar_t kBlockWallMiddleLeft[] = L" 0.0;-0.025;0;0.03;-0.5; -0.05; 90;0";
constexpr wchar_t kBlockWallMiddleRight[] = L" 0.0; 0.025;0;0.03;-0.5; -0.05; 90;0";
constexpr wchar_t kBlockWallRightInner[] = L" 0.5;-0.08; 0;0.03;-0.5; -0.05; 90;0";
constexpr wchar_t kBlockWallRightOuter[] = L" 0.5;-0.03; 0;0.03;-0.5; -0.05; 90;0";

constexpr CConnectionType kTypes[] = {
    {L"Stesso lato, a sinistra", kLeftUpper, kLeftLower},
    {L"Stesso lato, a destra", kRightUpper, kRightLower},
    {L"Diagonale, mandata a sinistra", kLeftUpper, kRightLower},
    {L"Diagonale, mandata a destra", kRightUpper, kLeftLower},
    {L"Opposti in basso, mandata a sinistra", kLeftLower, kRightLower},
    {L"Opposti in basso, mandata a destra", kRightLower, kLeftLower},
    {L"Dal basso, a sinistra", kBottomLeftInner, kBottomLeftOuter},
    {L"Dal basso, a sinistra, invertito", kBottomLeftOuter, kBottomLeftInner},
    {L"Dal basso, a destra", kBottomRightInner, kBottomRightOuter},
    {L"Dal basso, a destra, invertito", kBottomRightOuter, kBottomRightInner},
    {L"Dal basso, alle due estremità", kBottomLeftOuter, kBottomRightOuter},
    {L"Centrale dal basso", kBottomMiddleLeft, kBottomMiddleRight},
    {L"Centrale dal basso, invertito", kBottomMiddleRight, kBottomMiddleLeft},
    {L"Valvole a squadra da parete, a sinistra", kWallLeftUpper, kWallLeftLower},
    {L"Valvole a squadra da parete, a destra", kWallRightUpper, kWallRightLower},
    {L"Valvole a squadra da pavimento, ai due lati", kFloorLeft, kFloorRight},
    {L"Blocco H da pavimento, a sinistra", kBlockFloorLeftInner, kBlockFloorLeftOuter},
    {L"Blocco H da pavimento, centrale", kBlockFloorMiddleLeft, kBlockFloorMiddleRight},
    {L"Blocco H da pavimento, a destra", kBlockFloorRightInner, kBlockFloorRightOuter},
    {L"Blocco H da parete, a sinistra", kBlockWallLeftInner, kBlockWallLeftOuter},
    {L"Blocco H da parete, centrale", kBlockWallMiddleLeft, kBlockWallMiddleRight},
    {L"Blocco H da parete, a destra", kBlockWallRightInner, kBlockWallRightOuter},
};

CString FileText()
{
    CString text = L"\uFEFF";
    for (const CConnectionType& type : kTypes) {
        text += L"[" + CString(type.lpszName) + L"]\r\n";
        text += L"V" + CString(type.lpszVorlauf) + L"\r\n";
        text += L"R" + CString(type.lpszRuecklauf) + L"\r\n";
    }
    return text;
}
} // namespace

std::string MakeSampleConnections()
{
    std::string bytes;
    for (const char16_t unit : Utf16FromWide(FileText())) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}
