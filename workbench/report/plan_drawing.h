#pragma once

#include "workbench/building/building.h"
#include "workbench/drawing/block_library.h"

#include <QPainterPath>

namespace workbench {

/// Layers of a plan's drawing, beside those of its radiators and of the valves' graphics.
inline constexpr wchar_t kLayerRooms[] = L"LOCALI";
inline constexpr wchar_t kLayerWalls[] = L"MURI";
inline constexpr wchar_t kLayerWindows[] = L"FINESTRE";
inline constexpr wchar_t kLayerTexts[] = L"TESTI";
inline constexpr wchar_t kLayerLabels[] = L"SIGLE";
inline constexpr wchar_t kLayerValves[] = L"VALVOLE";
/// Of radiators that have none.
inline constexpr wchar_t kLayerRadiators[] = L"CORPI_SCALDANTI";

/// One floor of a building as a drawing in metres, at its place in the plan: rooms, walls, windows,
/// radiators with their attributes (docs/export-formats.md), valve graphics and labels, without a
/// title. `radiators` has the radiators' blocks, `valves`, which may be null, those of the valves.
CDxfDrawing MakeFloorDrawing(const CBuilding& building, std::size_t floor,
                             const CDxfDrawing& radiators, const CBlockLibrary* valves);

/// All floors beside each other from left to right, the first at its place and the others moved
/// along x only, each with its title above.
CDxfDrawing MakePlanDrawing(const CBuilding& building, const CDxfDrawing& radiators,
                            const CBlockLibrary* valves);

/// All that the rooms of a floor and the walls around them cover, in metres.
QPainterPath WalledArea(const CFloor& floor);

} // namespace workbench
