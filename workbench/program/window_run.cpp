#include "workbench/program/window_run.h"

#include "host/host_base.h"
#include "platform/encoding.h"
#include "platform/file_fault.h"
#include "reference_host/prefs/host_settings.h"
#include "workbench/batch/arguments.h"
#include "workbench/batch/host_folders.h"
#include "workbench/keeping/recovery_file.h"
#include "workbench/program/dialog_run.h"
#include "workbench/toolkit/qt_text.h"
#include "workbench/window/command_icons.h"
#include "workbench/window/workbench_window.h"

#include <QApplication>

#include <memory>

namespace workbench {

namespace {

std::unique_ptr<CRecoveryFile> OpenRecovery(QStringList& messages)
{
    try {
        CString folder;
        if (!configGetWorkPathLocal(folder)) {
            folder = reference_host::ConfigurationFolder().value_or(L".");
        }
        return std::make_unique<CRecoveryFile>(folder);
    } catch (const CException& error) {
        messages += "Il lavoro non salvato non è al sicuro da un arresto improvviso: " +
                    ToQt(error.GetErrorMessage());
        return nullptr;
    }
}

CDrawingBlocks ReadBlocks(QStringList& messages)
{
    CDrawingBlocks blocks = ReadDrawingBlocks();
    for (const CFileFault& error : blocks.errors) {
        messages += ToQt(FormatFileFault(error));
    }
    return blocks;
}

ExitCode Run(const CArguments& arguments)
{
    QCoreApplication::setApplicationVersion(RADSEL_VERSION);
    QApplication::setWindowIcon(ProgramIcon());
    QStringList messages;
    const auto recovery = OpenRecovery(messages);
    CPlanDocument document(recovery.get());
    CWorkbenchWindow window(document, ReadBlocks(messages), MakePrompts());
    if (const QString errors = DescribeCatalogueErrors(); !errors.isEmpty()) {
        messages += errors;
    }
    if (!messages.isEmpty()) {
        window.Tell(messages.join('\n'));
    }
    window.Start(arguments.strBuilding, arguments.strSample);
    window.show();
    QApplication::exec();
    return ExitCode::ok;
}

} // namespace

ExitCode RunWindow(const CArguments& arguments, std::ostream& /*out*/, std::ostream& /*err*/)
{
    RequireCatalogueFolder();
    StartWindows();
    return Run(arguments);
}

} // namespace workbench
