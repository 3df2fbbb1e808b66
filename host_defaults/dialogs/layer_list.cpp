#include "host_defaults/dialogs/layer_list.h"

#include "host/drawer.h"

#include <algorithm>

namespace host_defaults {

namespace {

/// The layers that the user may draw on.
constexpr int kDrawableLayers = 2;

bool ComesBefore(const CLayerEntry& a, const CLayerEntry& b)
{
    const int order = a.name.compare(b.name, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a.name < b.name;
}

} // namespace

std::vector<CLayerEntry> ReadLayers(CDrawer* drawer)
{
    std::vector<CLayerEntry> layers;
    if (drawer == nullptr) {
        return layers;
    }
    CStringArray names;
    drawer->GetLayerNames(names, kDrawableLayers);
    for (const CString& name : names) {
        layers.push_back({QString::fromStdWString(name), drawer->GetLayerColor(name)});
    }
    std::ranges::sort(layers, ComesBefore);
    return layers;
}

const CLayerEntry* FindLayer(const std::vector<CLayerEntry>& layers, const QString& name)
{
    const auto found = std::ranges::find_if(layers, [&](const CLayerEntry& layer) {
        return layer.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == layers.end() ? nullptr : &*found;
}

} // namespace host_defaults
