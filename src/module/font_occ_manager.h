#pragma once

#include "uikit/occ_manager.h"

/// Gives dialogs the font in which the system shows messages, face and size.
class CFontOccManager : public COccManager
{
public:
    /// A copy of the template in that font, unless the base class has replaced the template or it
    /// has fewer than three controls.
    std::optional<DialogTemplate> PreCreateDialog(const DialogTemplate& dialogTemplate) override;
};
