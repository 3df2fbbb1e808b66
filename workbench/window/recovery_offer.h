#pragma once

#include "platform/text.h"

#include <QStringList>

class QWidget;

namespace workbench {

class CPlanDocument;
struct CPrompts;

/// Offers the work that crashed programs left behind, the latest first, until the user takes one:
/// that of the building's file `path`, or all if that is empty. True if the document goes on with
/// it. What he puts off stays for the next time, and only what he says twice to delete is deleted.
/// What cannot be read is told in `faults` and stays as well.
bool OfferLeftWork(CPlanDocument& document, const CPrompts& prompts, QWidget& window,
                   const CString& path, QStringList& faults);

/// A line for each such work of another file than `path`.
QStringList DescribeOtherLeftWork(const CPlanDocument& document, const CString& path);

} // namespace workbench
