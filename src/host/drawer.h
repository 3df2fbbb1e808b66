#pragma once

#include "platform/array.h"
#include "platform/bitmap.h"
#include "platform/export.h"
#include "platform/text.h"

/// The drawing of the host as a dialog sees it. The host owns the object, which outlives every call
/// that it is handed to; a dialog works without one and then leaves out what it would draw or list.
class HOST_API CDrawer
{
public:
    virtual ~CDrawer() = default;

    /// Appends the names of the drawing's layers to `namen`. `art` is the host's choice of layers;
    /// the module passes 2, all that the user may draw on.
    virtual void GetLayerNames(CStringArray& namen, int art) = 0;

    /// Colour index of a layer (GetRGBFromColor() of host_base.h tells its RGB value).
    virtual int GetLayerColor(const CString& layer) = 0;

    /// Appends the names of the blocks in `ordner`, a folder or a drawing of definitions, to
    /// `namen`. The module passes 0 as `art`, every block.
    virtual void GetBlockNames(const CString& ordner, CStringArray& namen, int art) = 0;

    /// Draws a block of `ordner` into `bild`. The two numbers are the wanted width and height in
    /// pixels; 0 leaves them to the host. False, with `bild` left alone, if there is no preview.
    virtual bool GetBlockPreview(const CString& ordner, const CString& block, CBitmap& bild,
                                 int breite, int hoehe) = 0;

    /// Removes the temporary graphics of the previous preview, if there are any.
    virtual void ClearPreview() = 0;

    /// Opens a preview: what is drawn until EndPreview() is shown but is no part of the drawing.
    virtual void BeginPreview() = 0;
    virtual void EndPreview() = 0;

    /// Draws one connection point into the open preview: `punkt` is its place in the drawing,
    /// `richtung` the unit vector in which the pipe leaves it, `wert` its side distance in metres,
    /// `farbe` a colour value 0x00BBGGRR. `ruecklauf` marks a return point.
    virtual void DrawConnectionPoint(const double punkt[3], const double richtung[3], double wert,
                                     int farbe, bool ruecklauf) = 0;
};
