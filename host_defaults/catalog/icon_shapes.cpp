#include "host_defaults/catalog/icon_shapes.h"

#include "host/image_loader.h"

#include <map>
#include <utility>

namespace host_defaults {

namespace {

// Tones of middle lightness, which stand out on a light window and on a dark one.
constexpr COLORREF kWeiss = RGB(255, 255, 255);
constexpr COLORREF kBlau = RGB(46, 117, 190);
constexpr COLORREF kBlauHell = RGB(198, 222, 245);
constexpr COLORREF kRot = RGB(214, 74, 62);
constexpr COLORREF kRotHell = RGB(250, 214, 208);
constexpr COLORREF kOrange = RGB(232, 110, 52);
constexpr COLORREF kOrangeDunkel = RGB(190, 78, 32);
constexpr COLORREF kGelb = RGB(240, 184, 72);
constexpr COLORREF kGelbHell = RGB(252, 216, 130);
constexpr COLORREF kGelbDunkel = RGB(203, 141, 36);
constexpr COLORREF kStahl = RGB(104, 130, 152);
constexpr COLORREF kStahlDunkel = RGB(78, 101, 121);
constexpr COLORREF kStahlHell = RGB(206, 219, 230);

CIconShape Box(COLORREF color, double left, double top, double right, double bottom,
               double radius = 0.0)
{
    return {IconForm::box, color, {{left, top}, {right, bottom}}, radius};
}

CIconShape Circle(COLORREF color, double x, double y, double radius)
{
    return {IconForm::circle, color, {{x, y}}, radius};
}

CIconShape Polygon(COLORREF color, std::vector<CIconPoint> corners)
{
    return {IconForm::polygon, color, std::move(corners)};
}

CIconShape Line(COLORREF color, double width, std::vector<CIconPoint> points)
{
    return {IconForm::line, color, std::move(points), width};
}

/// A radiator of five sections.
std::vector<CIconShape> Produkt()
{
    std::vector<CIconShape> shapes = {Box(kOrangeDunkel, 1, 4, 15, 6),
                                      Box(kOrangeDunkel, 1, 11, 15, 13)};
    for (int section = 0; section < 5; ++section) {
        const double left = 1 + section * 3;
        shapes.push_back(Box(kOrange, left, 2, left + 2, 15, 0.75));
    }
    return shapes;
}

std::vector<CIconShape> Hilfe()
{
    return {Circle(kBlau, 8, 8, 7.5),
            Line(kWeiss, 1.9,
                 {{5.6, 6.2},
                  {5.8, 5.3},
                  {6.4, 4.5},
                  {7.2, 4.1},
                  {8, 4},
                  {8.9, 4.1},
                  {9.7, 4.6},
                  {10.2, 5.3},
                  {10.3, 6.1},
                  {10.1, 6.9},
                  {9.4, 7.6},
                  {8.6, 8.2},
                  {8.1, 8.8},
                  {8, 9.6}}),
            Circle(kWeiss, 8, 12.2, 1.15)};
}

std::vector<CIconShape> Hersteller()
{
    return {Box(kGelbDunkel, 1, 2, 7, 8, 1), Box(kGelbDunkel, 1, 4, 15, 14, 1),
            Box(kGelb, 1, 6, 15, 14, 1)};
}

/// An open folder.
std::vector<CIconShape> Gruppe()
{
    return {Box(kGelbDunkel, 1, 2, 7, 8, 1), Box(kGelbDunkel, 1, 4, 13, 14, 1),
            Polygon(kGelbHell, {{4, 7}, {16, 7}, {13, 14}, {1, 14}})};
}

/// A factory with a saw-tooth roof.
std::vector<CIconShape> Firma()
{
    return {Box(kStahlDunkel, 11, 1, 14, 10),
            Polygon(kStahl, {{2, 14}, {2, 4}, {6, 8}, {6, 4}, {10, 8}, {14, 8}, {14, 14}}),
            Box(kStahlHell, 3.25, 10, 4.75, 12), Box(kStahlHell, 7.25, 10, 8.75, 12),
            Box(kStahlHell, 11.25, 10, 12.75, 12)};
}

/// A diskette.
std::vector<CIconShape> Speichern()
{
    return {Box(kBlau, 1, 1, 15, 15, 1.5), Box(kBlauHell, 4, 1, 12, 6), Box(kBlau, 9, 2, 11, 5),
            Box(kWeiss, 3, 8, 13, 15),     Box(kBlau, 5, 10, 11, 11),   Box(kBlau, 5, 12, 11, 13)};
}

/// A dustbin.
std::vector<CIconShape> Loeschen()
{
    return {Box(kRot, 6, 1, 10, 4, 1), Box(kRot, 2, 3, 14, 5, 1), Box(kRot, 3, 6, 13, 15, 1),
            Box(kRotHell, 5.35, 8, 6.65, 13), Box(kRotHell, 9.35, 8, 10.65, 13)};
}

/// The sign of a valve with its thermostatic head.
std::vector<CIconShape> Artikel()
{
    return {Box(kStahlDunkel, 7, 5, 9, 11), Box(kStahl, 4, 1, 12, 6, 1.5),
            Polygon(kGelbDunkel, {{2, 6.5}, {8, 11}, {2, 15.5}}),
            Polygon(kGelbDunkel, {{14, 6.5}, {8, 11}, {14, 15.5}})};
}

} // namespace

const std::vector<CIconShape>& IconShapes(int index)
{
    static const std::map<int, std::vector<CIconShape>> icons = {
        {iconProdukt, Produkt()}, {iconHilfe, Hilfe()},         {iconHersteller, Hersteller()},
        {iconFirma, Firma()},     {iconSpeichern, Speichern()}, {iconLoeschen, Loeschen()},
        {iconArtikel, Artikel()}, {iconGruppe, Gruppe()}};
    static const std::vector<CIconShape> none;
    const auto found = icons.find(index);
    return found == icons.end() ? none : found->second;
}

} // namespace host_defaults
