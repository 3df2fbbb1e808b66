#pragma once

#include "uikit/dialog_template.h"

#include <optional>

/// Has a say in every dialog of an application before it is created.
class COccManager
{
public:
    COccManager() = default;
    virtual ~COccManager() = default;
    COccManager(const COccManager&) = delete;
    COccManager& operator=(const COccManager&) = delete;

    /// What the dialog is to be created from in place of its template; nothing if the template
    /// stands. This class replaces none.
    virtual std::optional<DialogTemplate> PreCreateDialog(const DialogTemplate& dialogTemplate);
};
