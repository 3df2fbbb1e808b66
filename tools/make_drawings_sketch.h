#pragma once

#include "workbench/dxf/dxf_drawing.h"

#include <initializer_list>

namespace workbench {

/// Draws the sample blocks stroke by stroke, in metres. All strokes go to the layer chosen last.
class CBlockSketch
{
public:
    CBlockSketch(const wchar_t* name, const wchar_t* layer);

    void SetLayer(const wchar_t* layer);

    void Line(const CDxfPoint& from, const CDxfPoint& to);
    void Circle(const CDxfPoint& center, double radius);
    void Arc(const CDxfPoint& center, double radius, double start, double end);
    void Polygon(std::initializer_list<CDxfPoint> corners);
    void Stroke(const std::vector<CDxfPoint>& points);
    void Rect(const CDxfPoint& low, const CDxfPoint& high);
    /// A rectangle whose corners are quarter circles.
    void RoundRect(const CDxfPoint& low, const CDxfPoint& high, double radius);

    const CDxfBlock& GetBlock() const { return m_block; }

    /// The block under another name, turned over from left to right.
    CDxfBlock Mirrored(const wchar_t* name) const;

private:
    void Add(CDxfShape shape);

    CString m_layer;
    CDxfBlock m_block;
};

} // namespace workbench
