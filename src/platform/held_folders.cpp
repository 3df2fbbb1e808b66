#include "platform/held_folders.h"

#include <mutex>
#include <set>

namespace {

struct CHeldFolders
{
    std::mutex guard;
    std::set<CFolderKey> folders;
};

CHeldFolders& HeldFolders()
{
    static CHeldFolders held;
    return held;
}

} // namespace

bool HoldFolder(const CFolderKey& folder)
{
    CHeldFolders& held = HeldFolders();
    const std::lock_guard guard(held.guard);
    return held.folders.insert(folder).second;
}

void ReleaseFolder(const CFolderKey& folder)
{
    CHeldFolders& held = HeldFolders();
    const std::lock_guard guard(held.guard);
    held.folders.erase(folder);
}
