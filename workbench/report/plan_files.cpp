#include "workbench/report/plan_files.h"

#include "host_defaults/dialogs/qt_application.h"
#include "platform/path.h"
#include "platform/whole_file.h"
#include "workbench/drawing/drawing_blocks.h"
#include "workbench/report/plan_dxf.h"
#include "workbench/report/plan_pdf.h"

#include <QCoreApplication>
#include <QDate>

#include <cstdlib>

namespace workbench {

namespace {

/// The toolkit draws pages only if it has an application object, which need not have a screen.
void EnsurePages()
{
    if (QCoreApplication::instance() == nullptr) {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        host_defaults::EnsureWindows();
    }
}

} // namespace

void WritePlanFiles(const CString& folder, const CBuilding& building, const CDrawingBlocks& blocks)
{
    EnsurePages();
    WritePlanPdf(JoinPath(folder, kPdfName), building, blocks.heizkoerper, blocks.Valves(),
                 QDate::currentDate());
    WriteWholeFile(JoinPath(folder, kDxfName),
                   FormatPlanDxf(building, blocks.heizkoerper, blocks.Valves()));
}

} // namespace workbench
