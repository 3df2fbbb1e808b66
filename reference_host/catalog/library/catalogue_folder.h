#pragma once

#include "platform/file_fault.h"
#include "platform/file_state.h"
#include "platform/text.h"

#include <chrono>
#include <filesystem>
#include <map>
#include <optional>
#include <vector>

namespace reference_host {

/// The folder of the radiator catalogues: one sub-folder a manufacturer, named like him, with his
/// file "hk.tga" in it.

/// The manufacturers below such a folder.
struct CManufacturerListing
{
    /// In alphabetical order, case left aside.
    std::vector<CString> names;
    /// Why the folder could not be listed to its end.
    std::optional<CFileFault> fault;
    /// Sub-folders of which the system does not tell whether they hold a catalogue, and why.
    std::map<CString, CFileFault> unreadable;
};

CManufacturerListing ListManufacturers(const CString& folder);

/// Keeps the listing of a folder, as a building asks for it with every room. A folder that was
/// listed without a fault is looked through again when it has changed, and after a while, since
/// catalogues that come into sub-folders leave no trace in it: after a second, or after ten times
/// what the listing took if that is longer.
class CManufacturerCache
{
public:
    const CManufacturerListing& Get(const CString& folder);

    /// What the last Get() gave.
    const CManufacturerListing& Last() const { return m_listing; }

private:
    using Clock = std::chrono::steady_clock;

    CString m_strFolder;
    CManufacturerListing m_listing;
    std::optional<CFileState> m_state;
    Clock::time_point m_outdatedAt;
};

/// Where the manufacturer's catalogue file is or would be. Nothing if the folder's text is empty or
/// the name cannot be that of a sub-folder.
std::optional<std::filesystem::path> FindCatalogueFile(const CString& folder,
                                                       const CString& hersteller);

} // namespace reference_host
