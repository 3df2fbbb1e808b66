#pragma once

#include "platform/export.h"
#include "platform/object.h"
#include "platform/text.h"

#include <array>

/// Three values along the axes of a radiator: x its length, y its depth, z its height.
using ConnVector = std::array<double, 3>;

/// How one radiator is connected: where its flow point (AN) and its return point (RI) lie, in which
/// direction the pipes leave them, distances in metres, and the valve graphics. Constructor,
/// assignment and archive form live in HostPrefs.
///
/// The origin is the radiator's middle; a relative coordinate is a fraction of its size along that
/// axis, so that -0.5 and 0.5 are its end faces. Two angles in degrees give a direction: 0;0 along
/// +x, 180;0 along -x, 0;90 up, 0;270 down. The third is always 0.
class HOST_API ConnValues : public CObject
{
public:
    /// Empty texts, all numbers 0.
    ConnValues();
    ConnValues(const ConnValues&);
    ConnValues& operator=(const ConnValues&);

    const CRuntimeClass& GetRuntimeClass() const override;
    ~ConnValues() override;
    void Serialize(CArchive& archive) override;

    static const CRuntimeClass& GetThisClass();

    /// Display name of the connection type.
    CString Name;
    /// Side connection distance of the flow valve; meaningful only if the points leave
    /// horizontally.
    double SeitAbstandAN;
    /// Flow point: relative position, offset in metres that is added to it, angles.
    ConnVector PosAN;
    ConnVector OffsetAN;
    ConnVector WinkelAN;
    /// The same for the return.
    double SeitAbstandRI;
    ConnVector PosRI;
    ConnVector OffsetRI;
    ConnVector WinkelRI;
    /// Distance and kind of the cross-over of flow and return: 0 none, 1 flow over return, 2 return
    /// over flow.
    double KreuzAbstand;
    int KreuzTyp;
    /// Connection point texts, the form that the points have in the drawing and in the short list.
    CString AnschlussAN;
    CString AnschlussRI;
    /// Distance from the wall; 0 means not used.
    double WandAbstand;
    /// Graphic blocks of the valves; empty for none.
    CString GrafikAN;
    CString GrafikRI;
};
