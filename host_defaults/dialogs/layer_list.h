#pragma once

#include <QString>

#include <vector>

class CDrawer;

namespace host_defaults {

/// A layer as the user chooses it.
struct CLayerEntry
{
    QString name;
    int color = 0;
};

/// The layers of a drawing in alphabetical order, case aside; none without a drawing.
std::vector<CLayerEntry> ReadLayers(CDrawer* drawer);

/// The layer of that name, case aside as in drawings; null if there is none.
const CLayerEntry* FindLayer(const std::vector<CLayerEntry>& layers, const QString& name);

} // namespace host_defaults
