#pragma once

#include "platform/file_fault.h"
#include "platform/text.h"
#include "reference_host/files/short_list_file.h"

#include <vector>

namespace reference_host {

/// A connection type of a short list: its name and its two connection point texts.
struct CShortListType
{
    CString strName;
    CString strFlow;
    CString strReturn;
};

/// What the connection dialog makes of a short list.
struct CShortListCheck
{
    /// The types with two points that can be read, in the order of the list.
    std::vector<CShortListType> types;
    /// What goes wrong on the way, which the dialog does not tell, in the order of the lines.
    std::vector<CFileFault> faults;
};

/// Walks the lines of a list in the way of the dialog.
CShortListCheck CheckShortList(const CShortListFile& list);

} // namespace reference_host
