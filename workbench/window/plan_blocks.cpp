#include "workbench/window/plan_blocks.h"

#include "workbench/drawing/block_path.h"
#include "workbench/drawing/color_index.h"

namespace workbench {

namespace {

std::shared_ptr<const CPlanBlock>
Find(const std::map<CString, std::shared_ptr<const CPlanBlock>>& blocks, const CString& name)
{
    const auto found = blocks.find(ToLower(name));
    return found != blocks.end() ? found->second : nullptr;
}

} // namespace

CPlanBlocks::CPlanBlocks(const CDxfDrawing& radiators, const CBlockLibrary* valves)
{
    const CLayerColors layers(radiators.layers);
    for (const CDxfBlock& block : radiators.blocks) {
        Add(m_radiators, layers, block);
    }
    if (valves == nullptr) {
        return;
    }
    // The files' colours, each file's once.
    std::map<const std::vector<CDxfLayer>*, CLayerColors> colors;
    for (const CString& name : valves->GetNames()) {
        const CBlockLibrary::CFound found = valves->Find(name);
        const auto ofFile = colors.try_emplace(found.pLayers, *found.pLayers).first;
        Add(m_valves, ofFile->second, *found.pBlock);
    }
}

std::shared_ptr<const CPlanBlock> CPlanBlocks::FindRadiator(const CString& name) const
{
    return Find(m_radiators, name);
}

std::shared_ptr<const CPlanBlock> CPlanBlocks::FindValve(const CString& name) const
{
    return Find(m_valves, name);
}

void CPlanBlocks::Add(Blocks& blocks, const CLayerColors& layers, const CDxfBlock& block)
{
    const std::vector<CColorPath> paths = MakeBlockPaths(layers, block);
    CPlanBlock made;
    made.bounds = BoundsOf(paths);
    for (const CColorPath& path : paths) {
        const QColor color(GetRValue(path.color), GetGValue(path.color), GetBValue(path.color));
        made.parts.push_back({path.path, color, path.color == PaperColorFromIndex(kColorDefault)});
    }
    if (!made.parts.empty()) {
        blocks.emplace(ToLower(block.strName), std::make_shared<const CPlanBlock>(std::move(made)));
    }
}

} // namespace workbench
