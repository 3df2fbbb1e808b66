#pragma once

#include "frame/handover.h"
#include "platform/file_fault.h"
#include "reference_host/catalog/library/catalogue_cache.h"
#include "reference_host/catalog/library/catalogue_folder.h"
#include "reference_host/catalog/library/catalogue_tree.h"

#include <map>
#include <optional>
#include <vector>

namespace reference_host {

/// The radiator catalogues of a folder, and all that a host answers about them: what stands behind
/// the functions of host/host_catalog.h, which tell the meaning.
class CCatalogueLibrary
{
public:
    /// ReadHKDaten() for the catalogues in that folder.
    HK_VDI3805_HERSTELLER* List(const CString& folder);

    /// FindHersteller().
    HK_VDI3805_HERSTELLER* Find(const CString& hersteller) const;

    /// ReadVdiFile().
    int Read(const CString& folder, const CString& hersteller, HK_VDI3805_ART** art,
             double leistungEN442);

    /// What the manufacturer's file says, null if it cannot be read. Good until the next call.
    const CCatalogue* Model(const CString& folder, const CString& hersteller);

    /// The error of the last reading of this manufacturer's file. Of a manufacturer whom the last
    /// List() did not find, what kept it from looking for him: his folder, or that of all
    /// catalogues, which cannot be read. Nothing if all went well or nothing was read yet.
    std::optional<CFileFault> Error(const CString& hersteller) const;

    /// The folders that the last List() could not read.
    std::vector<CFileFault> ListingErrors() const;

private:
    int Fail(const CString& hersteller, CFileFault error);

    CCatalogueTree m_tree;
    CCatalogueCache m_cache;
    CManufacturerCache m_makers;
    std::map<CString, CFileFault> m_errors;
};

} // namespace reference_host
