#pragma once

#include "workbench/dxf/dxf_blocks.h"

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace workbench {

/// The blocks that a path offers. The path of a DXF file is a drawing of definitions and offers its
/// blocks in the order of the file. That of a folder offers the blocks of every "*.dxf" in it, file
/// after file in alphabetical order of their names; of blocks with one name the first counts.
class CBlockLibrary
{
public:
    /// Reads the file, or all files of the folder. One that cannot be read adds an error and keeps
    /// nothing from being read behind it; so does a path that is neither.
    explicit CBlockLibrary(const CString& path);

    /// Names of all blocks, each once.
    const std::vector<CString>& GetNames() const { return m_names; }

    /// A block and the layers of its file; the library owns both.
    struct CFound
    {
        const CDxfBlock* pBlock = nullptr;
        const std::vector<CDxfLayer>* pLayers = nullptr;
    };

    /// The block of that name, case left aside; nulls if there is none.
    CFound Find(std::wstring_view name) const;

    /// What went wrong, in the order of the files.
    const std::vector<CFileFault>& GetErrors() const { return m_errors; }

private:
    void Read(const CString& path);

    /// Where a block stands.
    struct CPlace
    {
        std::size_t nDrawing = 0;
        std::size_t nBlock = 0;
    };

    std::vector<CDxfDrawing> m_drawings;
    std::vector<CString> m_names;
    /// By names in lower case.
    std::unordered_map<CString, CPlace> m_places;
    std::vector<CFileFault> m_errors;
};

} // namespace workbench
