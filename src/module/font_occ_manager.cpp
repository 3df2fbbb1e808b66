#include "module/font_occ_manager.h"

#include "uikit/application.h"

namespace {

constexpr std::size_t kFewestControls = 3;

} // namespace

std::optional<DialogTemplate> CFontOccManager::PreCreateDialog(const DialogTemplate& dialogTemplate)
{
    std::optional<DialogTemplate> replaced = COccManager::PreCreateDialog(dialogTemplate);
    if (!replaced && dialogTemplate.controls.size() >= kFewestControls) {
        replaced = dialogTemplate;
        replaced->font = GetMessageFont();
    }
    return replaced;
}
