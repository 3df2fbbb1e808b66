#include "tools/make_drawings_valves.h"

#include "tools/make_drawings_sketch.h"

namespace workbench {

namespace {

constexpr wchar_t kValve[] = L"VALVOLE";
constexpr wchar_t kHead[] = L"TESTE_TERMOSTATICHE";
constexpr wchar_t kSupply[] = L"MANDATA";
constexpr wchar_t kReturn[] = L"RITORNO";

/// A valve of the symbols: two triangles, tip to tip.
constexpr double kReach = 0.05;
constexpr double kHalf = 0.03;

/// How far the pipe sticks out behind the valve.
constexpr double kStub = 0.035;

/// The triangles point at `middle` from the sides given: one of the four ways along the axes each.
void DrawTriangle(CBlockSketch& sketch, const CDxfPoint& middle, const CDxfPoint& side)
{
    const CDxfPoint base{middle.x + kReach * side.x, middle.y + kReach * side.y};
    sketch.Polygon({middle,
                    {base.x - kHalf * side.y, base.y + kHalf * side.x},
                    {base.x + kHalf * side.y, base.y - kHalf * side.x}});
}

constexpr CDxfPoint kRight{1.0, 0.0};
constexpr CDxfPoint kLeft{-1.0, 0.0};
constexpr CDxfPoint kUp{0.0, 1.0};
constexpr CDxfPoint kDown{0.0, -1.0};

/// From the valve's middle `way` metres towards `side`, and `aside` metres to the left of that.
CDxfPoint Away(const CDxfPoint& middle, const CDxfPoint& side, double way, double aside = 0.0)
{
    return {middle.x + way * side.x - aside * side.y, middle.y + way * side.y + aside * side.x};
}

/// The handwheel of a manual valve: a stem with a bar.
void DrawWheel(CBlockSketch& sketch, const CDxfPoint& middle, const CDxfPoint& side)
{
    sketch.Line(middle, Away(middle, side, 0.055));
    sketch.Line(Away(middle, side, 0.055, 0.028), Away(middle, side, 0.055, -0.028));
}

/// A thermostatic head: a stem, a collar and a body that ends round.
void DrawThermostat(CBlockSketch& sketch, const CDxfPoint& middle, const CDxfPoint& side)
{
    sketch.Line(middle, Away(middle, side, 0.04));
    sketch.SetLayer(kHead);
    const double half = 0.026;
    sketch.Polygon({Away(middle, side, 0.04, 0.015), Away(middle, side, 0.055, half),
                    Away(middle, side, 0.055, -half), Away(middle, side, 0.04, -0.015)});
    sketch.Line(Away(middle, side, 0.055, half), Away(middle, side, 0.095, half));
    sketch.Line(Away(middle, side, 0.055, -half), Away(middle, side, 0.095, -half));
    const double turn = side.x < 0.0 ? 180.0 : side.y > 0.0 ? 90.0 : 0.0;
    sketch.Arc(Away(middle, side, 0.095), half, turn - 90.0, turn + 90.0);
    sketch.Line(Away(middle, side, 0.07, 0.013), Away(middle, side, 0.105, 0.013));
    sketch.Line(Away(middle, side, 0.07), Away(middle, side, 0.11));
    sketch.Line(Away(middle, side, 0.07, -0.013), Away(middle, side, 0.105, -0.013));
    sketch.SetLayer(kValve);
}

/// The cap over a lockshield's spindle: a small box with the slot of a screwdriver across.
void DrawCap(CBlockSketch& sketch, const CDxfPoint& middle, const CDxfPoint& side)
{
    sketch.Line(middle, Away(middle, side, 0.028));
    sketch.Polygon({Away(middle, side, 0.028, 0.014), Away(middle, side, 0.05, 0.014),
                    Away(middle, side, 0.05, -0.014), Away(middle, side, 0.028, -0.014)});
    sketch.Line(Away(middle, side, 0.028, 0.014), Away(middle, side, 0.05, -0.014));
}

using Top = void (*)(CBlockSketch&, const CDxfPoint&, const CDxfPoint&);

void DrawStub(CBlockSketch& sketch, const wchar_t* layer, const CDxfPoint& middle,
              const CDxfPoint& side)
{
    sketch.SetLayer(layer);
    sketch.Line(Away(middle, side, kReach), Away(middle, side, kReach + kStub));
    sketch.SetLayer(kValve);
}

/// Pipe and radiator in one line, the radiator on the right; the top stands upright on it.
CDxfBlock Straight(const wchar_t* name, const wchar_t* pipe, Top drawTop)
{
    CBlockSketch sketch(name, kValve);
    const CDxfPoint middle{-kReach - kStub, 0.0};
    DrawTriangle(sketch, middle, kLeft);
    DrawTriangle(sketch, middle, kRight);
    DrawStub(sketch, pipe, middle, kLeft);
    DrawStub(sketch, pipe, middle, kRight);
    drawTop(sketch, middle, kUp);
    return sketch.GetBlock();
}

/// The pipe comes from below, the radiator is on the right; the top lies in line with that.
CBlockSketch Angled(const wchar_t* name, const wchar_t* pipe, Top drawTop)
{
    CBlockSketch sketch(name, kValve);
    const CDxfPoint middle{-kReach - kStub, 0.0};
    DrawTriangle(sketch, middle, kDown);
    DrawTriangle(sketch, middle, kRight);
    DrawStub(sketch, pipe, middle, kDown);
    DrawStub(sketch, pipe, middle, kRight);
    drawTop(sketch, middle, kLeft);
    return sketch;
}

constexpr double kHalfSpacing = 0.05;

/// The H of a block that closes off flow and return together: its two valves and their bridge.
CDxfBlock StraightHBlock()
{
    CBlockSketch sketch(L"BLOCCO_H_DIRITTO", kValve);
    for (const double x : {-kHalfSpacing, kHalfSpacing}) {
        const CDxfPoint middle{x, -kReach - kStub};
        DrawTriangle(sketch, middle, kUp);
        DrawTriangle(sketch, middle, kDown);
        DrawStub(sketch, x < 0.0 ? kSupply : kReturn, middle, kUp);
        DrawStub(sketch, x < 0.0 ? kSupply : kReturn, middle, kDown);
    }
    sketch.Line({-kHalfSpacing, -kReach - kStub}, {kHalfSpacing, -kReach - kStub});
    sketch.RoundRect({-0.09, -0.142}, {0.09, -0.028}, 0.012);
    return sketch.GetBlock();
}

/// The same with pipes that come out of the wall, from the left.
CBlockSketch AngledHBlock(const wchar_t* name)
{
    CBlockSketch sketch(name, kValve);
    for (const double x : {-kHalfSpacing, kHalfSpacing}) {
        // The outer pipe passes below the inner one.
        const CDxfPoint middle{x, x < 0.0 ? -0.085 : -0.155};
        const wchar_t* const pipe = x < 0.0 ? kSupply : kReturn;
        DrawTriangle(sketch, middle, kUp);
        DrawTriangle(sketch, middle, kLeft);
        sketch.SetLayer(pipe);
        sketch.Line(Away(middle, kUp, kReach), {x, 0.0});
        sketch.Line(Away(middle, kLeft, kReach), {-0.16, middle.y});
        sketch.SetLayer(kValve);
    }
    sketch.Line({-kHalfSpacing, -0.085}, {kHalfSpacing, -0.085});
    sketch.RoundRect({-0.115, -0.195}, {0.09, -0.025}, 0.012);
    return sketch;
}

} // namespace

CDxfDrawing MakeValveBlocks()
{
    CDxfDrawing drawing;
    drawing.layers = {
        {L"0", kColorDefault}, {kValve, kColorDefault}, {kHead, 30}, {kSupply, 1}, {kReturn, 5}};
    const CBlockSketch angled = Angled(L"VALVOLA_SQUADRA_DX", kSupply, DrawWheel);
    const CBlockSketch angledHead = Angled(L"VALVOLA_SQUADRA_TERM_DX", kSupply, DrawThermostat);
    const CBlockSketch lockshield = Angled(L"DETENTORE_SQUADRA_DX", kReturn, DrawCap);
    const CBlockSketch hBlock = AngledHBlock(L"BLOCCO_H_SQUADRA_SX");
    drawing.blocks = {Straight(L"VALVOLA_DIRITTA", kSupply, DrawWheel),
                      Straight(L"VALVOLA_DIRITTA_TERM", kSupply, DrawThermostat),
                      angled.GetBlock(),
                      angled.Mirrored(L"VALVOLA_SQUADRA_SX"),
                      angledHead.GetBlock(),
                      angledHead.Mirrored(L"VALVOLA_SQUADRA_TERM_SX"),
                      Straight(L"DETENTORE_DIRITTO", kReturn, DrawCap),
                      lockshield.GetBlock(),
                      lockshield.Mirrored(L"DETENTORE_SQUADRA_SX"),
                      StraightHBlock(),
                      hBlock.GetBlock(),
                      hBlock.Mirrored(L"BLOCCO_H_SQUADRA_DX")};
    return drawing;
}

} // namespace workbench
