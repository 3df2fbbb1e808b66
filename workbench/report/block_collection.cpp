#include "workbench/report/block_collection.h"

#include "platform/format.h"
#include "workbench/drawing/block_path.h"

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

constexpr wchar_t kPlainBlock[] = L"RAD_RETTANGOLO";
/// What it was taken by; no name makes this key.
constexpr wchar_t kPlainKey[] = L"";

/// A square of one metre about its middle, to be stretched like any block.
CDxfBlock PlainBlock()
{
    CDxfPolyline outline{{}, true};
    for (const CDxfPoint corner : {CDxfPoint{-0.5, -0.5}, {0.5, -0.5}, {0.5, 0.5}, {-0.5, 0.5}}) {
        outline.punkte.push_back({corner, 0.0});
    }
    return {kPlainBlock, {}, {{L"0", kColorByBlock, outline}}};
}

/// The block so that it goes with the layer it is inserted on: shown and hidden with it, and in its
/// colour except for details that have one of their own.
CDxfBlock OnAnyLayer(CDxfBlock block, const CLayerColors& layers)
{
    for (CDxfEntity& entity : block.entities) {
        const int color =
            entity.nColor == kColorByLayer ? layers.Of(entity.strLayer) : entity.nColor;
        entity.nColor = color == kColorDefault ? kColorByBlock : color;
        entity.strLayer = L"0";
    }
    return block;
}

} // namespace

const CBlockCollection::CTaken& CBlockCollection::TakeRadiator(const CString& name)
{
    const CString key = L"R" + ToLower(name);
    if (const auto taken = m_taken.find(key); taken != m_taken.end()) {
        return taken->second;
    }
    const CDxfBlock* const found = FindBlock(m_radiators, name);
    if (const auto plain = m_taken.find(kPlainKey); !found && plain != m_taken.end()) {
        return m_taken.emplace(key, plain->second).first->second;
    }
    const CLayerColors layers(m_radiators.layers);
    CDxfBlock block = found ? OnAnyLayer(*found, layers) : PlainBlock();
    block.attribute.clear();
    for (const wchar_t* attribute : kRadiatorAttributes) {
        block.attribute.push_back({attribute, L""});
    }
    const CTaken& taken = *Take(key, std::move(block), layers);
    if (!found) {
        m_taken.emplace(kPlainKey, taken);
    }
    return taken;
}

const CBlockCollection::CTaken* CBlockCollection::TakeValve(const CString& name)
{
    const CString key = L"V" + ToLower(name);
    if (const auto taken = m_taken.find(key); taken != m_taken.end()) {
        return &taken->second;
    }
    const CBlockLibrary::CFound found = m_pValves ? m_pValves->Find(name) : CBlockLibrary::CFound();
    if (!found.pBlock) {
        return nullptr;
    }
    CDxfBlock block = *found.pBlock;
    const CLayerColors colors(*found.pLayers);
    std::vector<CDxfLayer> layers;
    for (CDxfEntity& entity : block.entities) {
        const int color = colors.Of(entity.strLayer);
        entity.strLayer = LayerName(entity.strLayer);
        layers.push_back({entity.strLayer, color});
        AddLayer(m_drawing, layers.back());
    }
    return Take(key, std::move(block), CLayerColors(layers));
}

const CBlockCollection::CTaken* CBlockCollection::Take(const CString& key, CDxfBlock block,
                                                       const CLayerColors& layers)
{
    // Radiators and valves come from different libraries, which may use a name twice.
    const CString name = block.strName;
    for (int number = 2; FindBlock(m_drawing, block.strName); ++number) {
        block.strName = name + L"_" + FormatInt(number);
    }
    const QRectF bounds = BoundsOf(MakeBlockPaths(layers, block));
    m_drawing.blocks.push_back(std::move(block));
    return &m_taken.emplace(key, CTaken{m_drawing.blocks.back().strName, bounds}).first->second;
}

CString LayerName(CString name)
{
    for (const wchar_t refused : CString(L"<>/\\\":;?*|,=` \u00a0")) {
        ReplaceAll(name, refused, L'_');
    }
    return name;
}

void AddLayer(CDxfDrawing& drawing, const CDxfLayer& layer)
{
    const bool isKnown = std::ranges::any_of(drawing.layers, [&](const CDxfLayer& known) {
        return EqualNoCase(known.strName, layer.strName);
    });
    if (!isKnown) {
        drawing.layers.push_back(layer);
    }
}

} // namespace workbench
