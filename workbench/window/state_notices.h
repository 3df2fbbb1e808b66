#pragma once

#include "workbench/building/building.h"

#include <QStringList>

#include <set>

namespace workbench {

/// Notices when rooms get radiators of a size that ought to be another: too large for their place,
/// or oversized.
class CStateNotices
{
public:
    /// A line for every such room that was not so in the building of the last call, or differently.
    QStringList TakeNew(const CBuilding& building);

private:
    std::set<QString> m_known;
};

} // namespace workbench
