#pragma once

#include "workbench/window/message_pane.h"

#include <set>
#include <utility>
#include <vector>

namespace workbench {

/// Notices when rooms get radiators of a size that ought to be another: too large for their place,
/// or oversized.
class CStateNotices
{
public:
    /// One for every such room that was not so in the building of the last call, or differently.
    std::vector<CNotice> TakeNew(const CBuilding& building);

private:
    /// Room and text.
    std::set<std::pair<QString, QString>> m_known;
};

} // namespace workbench
