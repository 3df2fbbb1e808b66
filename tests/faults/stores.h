#pragma once

#include "platform/text.h"

#include <functional>
#include <string>
#include <vector>

/// Something that programs keep numbers in under names, one file each.
struct CStore
{
    std::string strName;
    /// False where there is one number only, and who stores it sets the name as well.
    bool bNames;
    /// False where no one is told whether storing went well.
    bool bTells;
    /// True unless the store says that it failed.
    std::function<bool(const CString& name, int number)> put;
    /// 0 where there is no number under the name. Exits the process if there is something else.
    std::function<int(const CString& name)> get;
};

/// The stores, in folders below `folder`, which are made as programs make them.
std::vector<CStore> OpenStores(const std::string& folder);
