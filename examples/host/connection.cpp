// The round trip of a connection: out of the drawing into the module's record, through the dialog,
// and back into the drawing.

#include "connection.h"

#include "drawing.h"
#include "frame/entry_points.h"
#include "host/host_fittings.h"

namespace {

constexpr wchar_t kFlow[] = L"H_VL_PUNKT";
constexpr wchar_t kReturn[] = L"H_RL_PUNKT";

/// A radiator that has just been drawn: flow 30 mm below the upper edge and return 30 mm above the
/// lower one, both out of the left end, 40 mm from the wall. Without points of its own the dialog
/// would leave the return in the middle of the radiator.
ConnValues NewConnection()
{
    ConnValues points;
    points.PosAN = {-0.5, 0.0, 0.5};
    points.OffsetAN = {0.0, 0.0, -0.03};
    points.WinkelAN = {180.0, 0.0, 0.0};
    points.SeitAbstandAN = 0.1;
    points.PosRI = {-0.5, 0.0, -0.5};
    points.OffsetRI = {0.0, 0.0, 0.03};
    points.WinkelRI = {180.0, 0.0, 0.0};
    points.SeitAbstandRI = 0.05;
    points.WandAbstand = 0.04;
    return points;
}

/// The texts as the drawing has them: all twelve numbers, the distance from the wall included.
CString FlowText(const ConnValues& points)
{
    CString text;
    lmSet_K_APUNKT_X(text, points.PosAN.data(), points.OffsetAN.data(), points.WinkelAN.data(),
                     points.SeitAbstandAN, points.KreuzAbstand, points.KreuzTyp,
                     points.WandAbstand);
    return text;
}

CString ReturnText(const ConnValues& points)
{
    CString text;
    lmSet_K_APUNKT_X(text, points.PosRI.data(), points.OffsetRI.data(), points.WinkelRI.data(),
                     points.SeitAbstandRI, points.KreuzAbstand, points.KreuzTyp,
                     points.WandAbstand);
    return text;
}

/// The texts as the dialog takes them. Where flow and return have the same relative position it
/// reads both points from the texts, and there it takes side distance and cross-over distance for
/// each other.
void FillTexts(ConnValues& points)
{
    ConnValues flow = points;
    ConnValues back = points;
    if (points.PosAN == points.PosRI) {
        flow.SeitAbstandAN = back.SeitAbstandRI = points.KreuzAbstand;
        flow.KreuzAbstand = points.SeitAbstandAN;
        back.KreuzAbstand = points.SeitAbstandRI;
    }
    points.AnschlussAN = FlowText(flow);
    points.AnschlussRI = ReturnText(back);
}

} // namespace

ConnValues ReadConnection(const CDrawnRadiator& radiator)
{
    ConnValues points;
    const CString flow = radiator.Attribute(kFlow);
    const CString back = radiator.Attribute(kReturn);
    // 0: the attribute is missing, or holds no point.
    if (lmGet_K_APUNKT_X(flow, points.PosAN.data(), points.OffsetAN.data(), points.WinkelAN.data(),
                         points.SeitAbstandAN, points.KreuzAbstand, points.KreuzTyp,
                         points.WandAbstand) == 0 ||
        lmGet_K_APUNKT_X(back, points.PosRI.data(), points.OffsetRI.data(), points.WinkelRI.data(),
                         points.SeitAbstandRI, points.KreuzAbstand, points.KreuzTyp,
                         points.WandAbstand) == 0) {
        return NewConnection();
    }
    return points;
}

void WriteConnection(CDrawnRadiator& radiator, const ConnValues& points)
{
    radiator.SetAttribute(kFlow, FlowText(points));
    radiator.SetAttribute(kReturn, ReturnText(points));
}

bool EditConnection(CDrawnRadiator& radiator, CConnection& connection, CDrawer& drawing)
{
    const CString flowBefore = radiator.Attribute(kFlow);
    const CString returnBefore = radiator.Attribute(kReturn);
    ConnValues points = ReadConnection(radiator);
    // The dialog takes side distances, cross-over and distance from the wall from the fields, and
    // the two points from the fields as well unless they lie at the same place.
    FillTexts(points);
    // What the drawing does not tell is kept with the radiator: the name of the type and the
    // symbols.
    points.Name = connection.points.Name;
    points.GrafikAN = connection.points.GrafikAN;
    points.GrafikRI = connection.points.GrafikRI;

    VDI3805_VENTIL_KV flowValve = connection.flowValve;
    VDI3805_VENTIL_KV returnValve = connection.returnValve;
    // One radiator: the user may not leave out a group, and both come back true.
    bool maySkipGroups = false;
    bool takeValves = true;
    bool takePoints = true;
    bool fanCoil = false;
    if (!ShowVentDlg(points, flowValve, returnValve, maySkipGroups, takeValves, takePoints, fanCoil,
                     radiator.Record(), &drawing)) {
        // The preview wrote into the attributes while the user tried things.
        radiator.SetAttribute(kFlow, flowBefore);
        radiator.SetAttribute(kReturn, returnBefore);
        return false;
    }
    // The fields are the truth now. The texts of the record lack the distance from the wall, and
    // the attributes may hold what was shown before the last distance was typed.
    WriteConnection(radiator, points);
    connection = {points, flowValve, returnValve};
    return true;
}
