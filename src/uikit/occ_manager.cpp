#include "uikit/occ_manager.h"

std::optional<DialogTemplate> COccManager::PreCreateDialog(const DialogTemplate& /*dialogTemplate*/)
{
    return std::nullopt;
}
