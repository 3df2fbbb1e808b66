#include "tools/make_drawings_radiators.h"

#include "tools/make_drawings_sketch.h"

namespace workbench {

namespace {

constexpr wchar_t kBody[] = L"RAD_CONTORNO";
constexpr wchar_t kDetail[] = L"RAD_DETTAGLI";
constexpr wchar_t kPipe[] = L"RAD_ATTACCHI";

constexpr double kPlate = 0.014;

/// The wave of sheet between a panel's plates: from x = -half to half, between the two depths.
void DrawFins(CBlockSketch& sketch, double half, double back, double front)
{
    constexpr int kWaves = 24;
    std::vector<CDxfPoint> points;
    const double pitch = 2.0 * half / kWaves;
    for (int i = 0; i < kWaves; ++i) {
        const double x = -half + i * pitch;
        points.insert(points.end(), {{x, back},
                                     {x + 0.3 * pitch, back},
                                     {x + 0.5 * pitch, front},
                                     {x + 0.8 * pitch, front}});
    }
    points.push_back({half, back});
    sketch.SetLayer(kDetail);
    sketch.Stroke(points);
}

/// A plate along x whose depth begins at `y`.
void DrawPlate(CBlockSketch& sketch, double y)
{
    sketch.SetLayer(kBody);
    sketch.RoundRect({-0.5, y}, {0.5, y + kPlate}, 0.5 * kPlate);
}

CDxfBlock PanelPlan(const wchar_t* name, double depth, bool isDouble)
{
    CBlockSketch sketch(name, kBody);
    const double front = depth / 2.0 - kPlate;
    DrawPlate(sketch, front);
    if (isDouble) {
        DrawPlate(sketch, -depth / 2.0);
        DrawFins(sketch, 0.47, -depth / 2.0 + kPlate, -0.003);
        DrawFins(sketch, 0.47, front, 0.003);
        sketch.SetLayer(kBody);
        for (const double end : {-0.5, 0.48}) {
            sketch.Rect({end, -depth / 2.0 + kPlate}, {end + 0.02, front});
        }
    } else {
        DrawFins(sketch, 0.47, front, -depth / 2.0);
    }
    return sketch.GetBlock();
}

CDxfBlock PanelFront()
{
    CBlockSketch sketch(L"RAD_PIASTRA_VISTA", kBody);
    sketch.RoundRect({-0.5, -0.3}, {0.5, 0.3}, 0.015);
    sketch.SetLayer(kDetail);
    constexpr int kChannels = 20;
    for (int i = 0; i < kChannels; ++i) {
        const double x = -0.475 + i * 0.05;
        sketch.RoundRect({x - 0.012, -0.245}, {x + 0.012, 0.245}, 0.011);
    }
    sketch.Line({-0.5, 0.27}, {0.5, 0.27});
    sketch.Line({-0.5, -0.27}, {0.5, -0.27});
    sketch.SetLayer(kPipe);
    for (const double x : {-0.53, 0.5}) {
        sketch.Rect({x, 0.255}, {x + 0.03, 0.285});
        sketch.Rect({x, -0.285}, {x + 0.03, -0.255});
    }
    return sketch.GetBlock();
}

constexpr int kTubes = 16;
constexpr double kTubePitch = 1.0 / kTubes;

double MiddleOfTube(int tube)
{
    return -0.5 + (tube + 0.5) * kTubePitch;
}

CDxfBlock TubularPlan()
{
    CBlockSketch sketch(L"RAD_TUBOLARE_PIANTA", kBody);
    for (int i = 0; i < kTubes; ++i) {
        const double x = MiddleOfTube(i);
        sketch.SetLayer(kBody);
        sketch.RoundRect({x - 0.027, -0.07}, {x + 0.027, 0.07}, 0.026);
        sketch.SetLayer(kDetail);
        for (const double y : {-0.046, 0.0, 0.046}) {
            sketch.Circle({x, y}, 0.0145);
        }
    }
    return sketch.GetBlock();
}

CDxfBlock TubularFront()
{
    CBlockSketch sketch(L"RAD_TUBOLARE_VISTA", kBody);
    for (int i = 0; i < kTubes; ++i) {
        const double x = MiddleOfTube(i);
        sketch.SetLayer(kBody);
        sketch.RoundRect({x - 0.026, 0.38}, {x + 0.026, 0.45}, 0.025);
        sketch.RoundRect({x - 0.026, -0.45}, {x + 0.026, -0.38}, 0.025);
        sketch.Line({x - 0.014, -0.38}, {x - 0.014, 0.38});
        sketch.Line({x + 0.014, -0.38}, {x + 0.014, 0.38});
    }
    sketch.SetLayer(kPipe);
    for (const double x : {-0.53, 0.496}) {
        sketch.Rect({x, 0.4}, {x + 0.034, 0.43});
        sketch.Rect({x, -0.43}, {x + 0.034, -0.4});
    }
    return sketch.GetBlock();
}

constexpr int kElements = 10;
constexpr double kElement = 0.08;

double StartOfElement(int element)
{
    constexpr int kHalf = kElements / 2;
    return (element - kHalf) * kElement;
}

CDxfBlock SectionalPlan()
{
    CBlockSketch sketch(L"RAD_ELEMENTI_PIANTA", kBody);
    for (int i = 0; i < kElements; ++i) {
        const double x = StartOfElement(i);
        sketch.SetLayer(kBody);
        sketch.RoundRect({x + 0.003, 0.034}, {x + kElement - 0.003, 0.048}, 0.005);
        sketch.Rect({x + 0.028, -0.048}, {x + 0.052, 0.034});
        sketch.SetLayer(kDetail);
        sketch.Line({x + 0.008, -0.02}, {x + kElement - 0.008, -0.02});
        sketch.Line({x + 0.008, 0.01}, {x + kElement - 0.008, 0.01});
        sketch.Line({x + 0.014, -0.048}, {x + kElement - 0.014, -0.048});
    }
    return sketch.GetBlock();
}

CDxfBlock SectionalFront()
{
    CBlockSketch sketch(L"RAD_ELEMENTI_VISTA", kBody);
    for (int i = 0; i < kElements; ++i) {
        const double x = StartOfElement(i);
        sketch.SetLayer(kBody);
        sketch.RoundRect({x + 0.003, -0.29}, {x + kElement - 0.003, 0.29}, 0.018);
        sketch.SetLayer(kDetail);
        sketch.Line({x + 0.04, -0.24}, {x + 0.04, 0.24});
        sketch.Arc({x + 0.04, 0.24}, 0.022, 0.0, 180.0);
        sketch.Line({x + 0.018, 0.21}, {x + 0.018, 0.24});
        sketch.Line({x + 0.062, 0.21}, {x + 0.062, 0.24});
    }
    sketch.SetLayer(kPipe);
    for (const double x : {-0.43, 0.4}) {
        sketch.Rect({x, 0.235}, {x + 0.03, 0.265});
        sketch.Rect({x, -0.265}, {x + 0.03, -0.235});
    }
    return sketch.GetBlock();
}

CDxfBlock ConvectorPlan()
{
    CBlockSketch sketch(L"RAD_CONVETTORE_PIANTA", kBody);
    sketch.Rect({-0.5, -0.09}, {0.5, 0.09});
    sketch.SetLayer(kPipe);
    for (const double y : {-0.035, 0.035}) {
        sketch.Line({-0.485, y}, {0.44, y});
    }
    sketch.Arc({0.44, 0.0}, 0.035, -90.0, 90.0);
    sketch.SetLayer(kDetail);
    sketch.Rect({-0.485, -0.075}, {0.485, 0.075});
    constexpr int kLamellae = 29;
    for (int i = 0; i < kLamellae; ++i) {
        const double x = -0.43 + i * 0.03;
        sketch.Line({x, -0.06}, {x, 0.06});
    }
    return sketch.GetBlock();
}

CDxfBlock ConvectorFront()
{
    CBlockSketch sketch(L"RAD_CONVETTORE_VISTA", kBody);
    sketch.RoundRect({-0.5, -0.12}, {0.5, 0.14}, 0.01);
    for (const double x : {-0.4, 0.36}) {
        sketch.Rect({x, -0.17}, {x + 0.04, -0.12});
    }
    sketch.SetLayer(kDetail);
    sketch.Line({-0.5, 0.06}, {0.5, 0.06});
    constexpr int kSlots = 23;
    for (int i = 0; i < kSlots; ++i) {
        const double x = -0.44 + i * 0.04;
        sketch.Line({x, 0.075}, {x, 0.125});
    }
    return sketch.GetBlock();
}

CDxfBlock TowelPlan()
{
    CBlockSketch sketch(L"RAD_SCALDASALVIETTE_PIANTA", kBody);
    // The tubes bow into the room: two arcs of one centre that end at the uprights.
    sketch.Arc({0.0, -0.58}, 0.64, 70.5, 109.5);
    sketch.Arc({0.0, -0.58}, 0.617, 69.5, 110.5);
    for (const double x : {-0.23, 0.23}) {
        sketch.Circle({x, 0.012}, 0.02);
        sketch.SetLayer(kPipe);
        sketch.Line({x - 0.008, -0.06}, {x - 0.008, -0.0063});
        sketch.Line({x + 0.008, -0.06}, {x + 0.008, -0.0063});
        sketch.SetLayer(kBody);
    }
    sketch.SetLayer(kDetail);
    sketch.Line({-0.25, -0.06}, {0.25, -0.06});
    return sketch.GetBlock();
}

CDxfBlock TowelFront()
{
    CBlockSketch sketch(L"RAD_SCALDASALVIETTE_VISTA", kBody);
    for (const double x : {-0.25, 0.22}) {
        sketch.RoundRect({x, -0.6}, {x + 0.03, 0.6}, 0.01);
    }
    // Groups of tubes with gaps between them for the towels.
    for (const double start : {-0.56, -0.24, 0.08, 0.36}) {
        const int tubes = start < 0.3 ? 5 : 4;
        for (int i = 0; i < tubes; ++i) {
            const double y = start + i * 0.048;
            sketch.Line({-0.22, y}, {0.22, y});
            sketch.Line({-0.22, y + 0.022}, {0.22, y + 0.022});
        }
    }
    sketch.SetLayer(kPipe);
    for (const double x : {-0.247, 0.223}) {
        sketch.Rect({x, -0.64}, {x + 0.024, -0.6});
    }
    return sketch.GetBlock();
}

} // namespace

CDxfDrawing MakeRadiatorBlocks()
{
    CDxfDrawing drawing;
    drawing.layers = {{L"0", kColorDefault}, {kBody, kColorDefault}, {kDetail, 8}, {kPipe, 30}};
    drawing.blocks = {PanelPlan(L"RAD_PIASTRA_11_PIANTA", 0.061, false),
                      PanelPlan(L"RAD_PIASTRA_22_PIANTA", 0.102, true),
                      PanelFront(),
                      TubularPlan(),
                      TubularFront(),
                      SectionalPlan(),
                      SectionalFront(),
                      ConvectorPlan(),
                      ConvectorFront(),
                      TowelPlan(),
                      TowelFront()};
    return drawing;
}

} // namespace workbench
