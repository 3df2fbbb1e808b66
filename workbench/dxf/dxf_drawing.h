#pragma once

#include "platform/text.h"

#include <string_view>
#include <variant>
#include <vector>

namespace workbench {

/// What the workbench takes from a DXF file: layers, blocks of lines and curves in one plane, and
/// the drawing made of these, of texts and of inserted blocks. Coordinates are in the file's unit
/// with y upwards, angles in degrees, counter-clockwise from +x.

struct CDxfPoint
{
    double x = 0.0;
    double y = 0.0;
    bool operator==(const CDxfPoint&) const = default;
};

struct CDxfLine
{
    CDxfPoint von;
    CDxfPoint bis;
    bool operator==(const CDxfLine&) const = default;
};

struct CDxfCircle
{
    CDxfPoint mitte;
    double dRadius = 0.0;
    bool operator==(const CDxfCircle&) const = default;
};

/// Runs counter-clockwise from the first angle to the second.
struct CDxfArc
{
    CDxfPoint mitte;
    double dRadius = 0.0;
    double dVon = 0.0;
    double dBis = 0.0;
    bool operator==(const CDxfArc&) const = default;
};

struct CDxfVertex
{
    CDxfPoint punkt;
    /// Tangent of a quarter of the angle of the arc to the next vertex, above 0 for one that runs
    /// counter-clockwise; 0 is a straight line.
    double dBulge = 0.0;
    bool operator==(const CDxfVertex&) const = default;
};

struct CDxfPolyline
{
    std::vector<CDxfVertex> punkte;
    bool bGeschlossen = false;
    bool operator==(const CDxfPolyline&) const = default;
};

using CDxfShape = std::variant<CDxfLine, CDxfCircle, CDxfArc, CDxfPolyline>;

/// Colour indexes with a meaning of their own.
inline constexpr int kColorByBlock = 0;
inline constexpr int kColorDefault = 7;
inline constexpr int kColorByLayer = 256;

struct CDxfEntity
{
    CString strLayer;
    /// 1 to 255, kColorByBlock or kColorByLayer.
    int nColor = kColorByLayer;
    CDxfShape shape;
    bool operator==(const CDxfEntity&) const = default;
};

/// A named value that a block carries without showing it.
struct CDxfAttribute
{
    CString strName;
    CString strWert;
    bool operator==(const CDxfAttribute&) const = default;
};

struct CDxfBlock
{
    CString strName;
    /// The point of the block that comes to stand where the block is inserted.
    CDxfPoint basis;
    std::vector<CDxfEntity> entities{};
    /// What each insert is to have, with the values that a new one gets.
    std::vector<CDxfAttribute> attribute{};
    bool operator==(const CDxfBlock&) const = default;
};

/// Which part of a text's base line its point is.
enum class DxfAlign
{
    left,
    middle,
    right,
};

struct CDxfText
{
    CString strLayer;
    int nColor = kColorByLayer;
    CDxfPoint punkt;
    /// Of the capitals.
    double dHoehe = 0.0;
    double dWinkel = 0.0;
    DxfAlign ausrichtung = DxfAlign::left;
    CString strText;
    bool operator==(const CDxfText&) const = default;
};

/// A block in the drawing: stretched along its own axes, then turned.
struct CDxfInsert
{
    CString strLayer;
    /// What of the block is kColorByBlock takes this one.
    int nColor = kColorByLayer;
    CString strBlock;
    CDxfPoint punkt;
    double dSkalaX = 1.0;
    double dSkalaY = 1.0;
    double dWinkel = 0.0;
    std::vector<CDxfAttribute> attribute{};
    bool operator==(const CDxfInsert&) const = default;
};

struct CDxfLayer
{
    CString strName;
    /// 1 to 255.
    int nColor = kColorDefault;
    bool operator==(const CDxfLayer&) const = default;
};

struct CDxfDrawing
{
    std::vector<CDxfLayer> layers;
    std::vector<CDxfBlock> blocks;
    /// What the drawing shows. Each kind is in order; what lies above what is not kept.
    std::vector<CDxfEntity> entities{};
    std::vector<CDxfInsert> inserts{};
    std::vector<CDxfText> texts{};
    bool operator==(const CDxfDrawing&) const = default;
};

/// The block of that name, case left aside as DXF does; null if there is none.
const CDxfBlock* FindBlock(const CDxfDrawing& drawing, std::wstring_view name);

/// Value of the first attribute of that name; empty if there is none.
CString FindAttribute(const std::vector<CDxfAttribute>& attributes, std::wstring_view name);

/// Colour index of the layer of that name, case left aside; kColorDefault for an unknown one.
int FindLayerColor(const std::vector<CDxfLayer>& layers, std::wstring_view name);

} // namespace workbench
