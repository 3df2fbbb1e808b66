#pragma once

#include <string_view>

namespace workbench {

/// What a DXF file of version AC1015 has to have around its layers, blocks and entities, whatever
/// it draws: tables of views, line types, styles and applications, the records of model space and
/// paper space, and the dictionaries with the layouts of the two. A line a group, its code in front
/// and a blank behind that. The frame uses handles below kFirstFreeHandle.
namespace dxf_frame {

inline constexpr unsigned kFirstFreeHandle = 0x40;

/// Handles that the variable part refers to.
inline constexpr std::string_view kLayerTable = "2";
inline constexpr std::string_view kBlockRecordTable = "1";
inline constexpr std::string_view kModelSpace = "1F";
inline constexpr std::string_view kPlotStyle = "F";

/// The section of classes and the tables before that of the layers.
extern const std::string_view kBeforeLayers;

/// The tables between the layers and the records of blocks.
extern const std::string_view kBeforeBlockRecords;

/// The records of model space and paper space, which come first in their table.
extern const std::string_view kSpaceRecords;

/// The blocks of model space and paper space, which come first in their section.
extern const std::string_view kSpaceBlocks;

/// The section of objects.
extern const std::string_view kObjects;

} // namespace dxf_frame

} // namespace workbench
