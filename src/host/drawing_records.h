#pragma once

#include "platform/export.h"
#include "platform/text.h"

#include <array>

/// Records of the host's drawing. The module knows the fields here and hands the rest on.

/// Number of a trade; 0 stands for any.
using TgaGewerk = int;

inline constexpr TgaGewerk kGewerkVorlauf = 525;
inline constexpr TgaGewerk kGewerkRuecklauf = 526;

/// An attribute of a drawn object, a link of its list.
struct ALIST
{
    CString Name;
    CString Wert;
    ALIST* pNext = nullptr;
};

/// Placement of an object in the drawing. Its archive and the ways to make one are the host's.
class HOST_API LM_TRAFO
{
public:
    /// The identity: at the origin, unturned, metres.
    LM_TRAFO();
    LM_TRAFO(const LM_TRAFO&);
    LM_TRAFO& operator=(const LM_TRAFO&);
    ~LM_TRAFO();

    /// The object's axes in the drawing, each of the length that one metre of the object has there.
    std::array<std::array<double, 3>, 3> Achsen;
    /// The object's origin in the drawing.
    std::array<double, 3> Ursprung;
};

/// One connection point of a drawn object.
struct LM_APUNKT
{
    /// Side distance of the connection in metres, the length of the pipe to its end.
    double Wert = 0.0;
    /// Place in the drawing, and the direction in which the pipe leaves it (a unit vector).
    double Punkt[3] = {};
    double Richtung[3] = {};
    TgaGewerk Gewerk = 0;
};

/// A drawn object, a link of the host's list.
struct TGA_LIST
{
    LM_TRAFO Trafo;
    ALIST* Attribute = nullptr;
    TGA_LIST* pNext = nullptr;
};
