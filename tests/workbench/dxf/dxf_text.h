#pragma once

#include "workbench/dxf/dxf_blocks.h"

#include <gtest/gtest.h>

#include <string>

namespace workbench {

/// A DXF file with the given groups, a blank between code and value and a "|" behind each group, in
/// a section of that name. The first group stands on line 15.
inline std::string DxfWith(const std::string& section, const std::string& groups,
                           const std::string& version = "AC1009")
{
    std::string text = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\n" + version +
                       "\n0\nENDSEC\n0\nSECTION\n2\n" + section + "\n";
    std::size_t start = 0;
    for (std::size_t end = groups.find('|'); end != std::string::npos;
         end = groups.find('|', start)) {
        const std::string group = groups.substr(start, end - start);
        const std::size_t blank = group.find(' ');
        text += group.substr(0, blank) + "\n" + group.substr(blank + 1) + "\n";
        start = end + 1;
    }
    return text + "0\nENDSEC\n0\nEOF\n";
}

inline std::string DxfWithBlocks(const std::string& groups, const std::string& version = "AC1009")
{
    return DxfWith("BLOCKS", groups, version);
}

inline std::variant<CDxfDrawing, CFileFault> Parse(const std::string& text)
{
    return ParseDxf({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

/// The drawing that the text holds; a fault fails the test.
inline CDxfDrawing ParseSound(const std::string& text)
{
    auto parsed = Parse(text);
    if (const auto* const fault = std::get_if<CFileFault>(&parsed)) {
        ADD_FAILURE() << "line " << fault->nLine << ": "
                      << testing::PrintToString(fault->strMessage);
        return {};
    }
    return std::get<CDxfDrawing>(parsed);
}

} // namespace workbench
