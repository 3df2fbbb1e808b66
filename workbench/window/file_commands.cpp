#include "workbench/window/file_commands.h"

#include "host/host_prefs.h"
#include "platform/encoding.h"
#include "platform/file.h"
#include "platform/file_fault.h"
#include "platform/path.h"
#include "platform/whole_file.h"
#include "reference_host/prefs/host_settings.h"
#include "workbench/building/json_fields.h"
#include "workbench/drawing/drawing_blocks.h"
#include "workbench/keeping/file_identity.h"
#include "workbench/plan/catalogue_check.h"
#include "workbench/report/plan_dxf.h"
#include "workbench/report/plan_pdf.h"
#include "workbench/schedule/schedule_csv.h"
#include "workbench/schedule/schedule_json.h"
#include "workbench/schedule/valve_check.h"
#include "workbench/toolkit/qt_text.h"
#include "workbench/window/kept_window.h"
#include "workbench/window/plan_document.h"
#include "workbench/window/prompts.h"
#include "workbench/window/recent_files.h"
#include "workbench/window/recovery_offer.h"
#include "workbench/window/room_dialog.h"
#include "workbench/window/waiting.h"
#include "workbench/workbook/schedule_xlsx.h"

#include <QDir>

#include <filesystem>
#include <system_error>

namespace workbench {

namespace {

const QString kBuildingFilter = "Edifici (*.json)";

CString WithSuffix(const CString& path, const CString& suffix)
{
    const std::size_t name = path.find_last_of(L"/\\") + 1;
    return path.find(L'.', name) == CString::npos ? path + suffix : path;
}

/// What cannot be asked counts as there.
bool MayExist(const CString& path)
{
    std::error_code error;
    return std::filesystem::symlink_status(ResolvePath(path), error).type() !=
           std::filesystem::file_type::not_found;
}

/// Path beside the building's file, or in the folder used last, with another suffix.
CString Proposal(const CPlanDocument& document, const CString& suffix)
{
    const CString& path = document.Path();
    const std::size_t dot = path.rfind(L'.');
    if (!path.empty()) {
        return path.substr(0, dot) + suffix;
    }
    const CString folder = LastFolder();
    return (folder.empty() ? CString() : folder + L"/") + document.Building().strName + suffix;
}

/// Folders of a valve catalogue that have a file of valves.
QStringList ValveMakersIn(const CString& folder)
{
    QStringList makers;
    const QDir root(ToQt(folder));
    for (const QString& name : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        if (!QDir(root.filePath(name)).entryList({"ha.tga"}, QDir::Files).isEmpty()) {
            makers += name;
        }
    }
    return makers;
}

} // namespace

CFileCommands::CFileCommands(CPlanDocument& document, const CDrawingBlocks& blocks,
                             const CPrompts& prompts, QWidget& window)
    : m_document(document), m_blocks(blocks), m_prompts(prompts), m_window(window)
{
}

void CFileCommands::Open()
{
    if (!MayLeave()) {
        return;
    }
    const CString folder = LastFolder();
    const auto path = m_prompts.openFile(&m_window, "Apri edificio", kBuildingFilter,
                                         folder.empty() ? m_document.Path() : folder);
    if (!path) {
        return;
    }
    KeepFolderOf(*path);
    TryOpen(*path);
}

void CFileCommands::OpenRecent(const CString& path)
{
    if (!MayLeave()) {
        return;
    }
    if (!MayExist(path)) {
        ForgetRecentFile(path);
    }
    TryOpen(path);
}

void CFileCommands::TryOpen(const CString& path)
{
    try {
        OpenOrRecover(path);
    } catch (const CException& error) {
        TellError(ToQt(error.GetErrorMessage()));
    }
}

void CFileCommands::New()
{
    if (!MayLeave()) {
        return;
    }
    CRoomDialog dialog(CBuilding(), 0, &m_window);
    if (dialog.exec() == QDialog::Accepted) {
        m_document.BeginNew(dialog.GetBuilding());
    }
}

void CFileCommands::Start(const CString& asked, const CString& sample)
{
    try {
        if (!asked.empty()) {
            OpenOrRecover(asked);
        } else if (!RecoverWork({})) {
            Load(sample);
        }
    } catch (const CException& error) {
        emit Told(ToQt(error.GetErrorMessage()));
    }
    if (!asked.empty()) {
        Tell(DescribeOtherLeftWork(m_document, asked));
    }
}

void CFileCommands::OpenOrRecover(const CString& path)
{
    if (!RecoverWork(path)) {
        Load(path);
    }
}

/// True if the document goes on with work that a crash left behind.
bool CFileCommands::RecoverWork(const CString& path)
{
    QStringList faults;
    const bool recovered = OfferLeftWork(m_document, m_prompts, m_window, path, faults);
    Tell(faults);
    if (recovered) {
        KeepRecentFile(m_document.Path());
        TellUse();
        TellValveFaults();
    }
    return recovered;
}

void CFileCommands::Load(const CString& path)
{
    {
        const CWaiting waiting(m_window, "Apertura di " + ToQt(path) + "…");
        m_document.Open(path);
    }
    KeepRecentFile(m_document.Path());
    TellUse();
    TellValveFaults();
}

void CFileCommands::Tell(const QStringList& lines)
{
    if (!lines.isEmpty()) {
        emit Told(lines.join('\n'));
    }
}

void CFileCommands::TellError(const QString& text)
{
    m_prompts.tell(&m_window, text, CPrompts::Tone::error);
}

bool CFileCommands::Save()
{
    return m_document.Path().empty() || m_document.IsReadOnly() ? SaveAs()
                                                                : SaveTo(m_document.Path());
}

bool CFileCommands::SaveAs()
{
    const auto path = AskTarget("Salva edificio", kBuildingFilter, L".json");
    return path && SaveTo(*path);
}

/// The dialog asks for itself whether to replace a file, but only about the name that was typed.
std::optional<CString> CFileCommands::AskTarget(const QString& title, const QString& filter,
                                                const CString& suffix)
{
    const auto typed = m_prompts.saveFile(&m_window, title, filter, Proposal(m_document, suffix));
    if (!typed) {
        return std::nullopt;
    }
    const CString path = WithSuffix(*typed, suffix);
    const bool replaces =
        path == *typed || !MayExist(path) ||
        m_prompts.ask(&m_window, QString("Il file %1 esiste già. Sostituirlo?").arg(ToQt(path)),
                      "&Sostituisci", "&Annulla", false) == CPrompts::Answer::yes;
    if (!replaces) {
        return std::nullopt;
    }
    KeepFolderOf(path);
    return path;
}

/// Asks if there is something to be asked.
CFileCommands::Target CFileCommands::AskWhere(const CString& path)
{
    if (!IsSameFile(path, m_document.Path()) || !m_document.IsFileChanged()) {
        return Target::here;
    }
    const QString question =
        QString("Il file %1 non è più quello che è stato aperto: qualcuno lo ha cambiato, o ora "
                "non si lascia leggere.\nSalvare con un altro nome, o sostituirlo?");
    switch (m_prompts.ask(&m_window, question.arg(ToQt(path)), "Salva con &nome…", "&Sostituisci",
                          true)) {
    case CPrompts::Answer::yes:
        return Target::elsewhere;
    case CPrompts::Answer::no:
        return Target::here;
    case CPrompts::Answer::cancel:
        break;
    }
    return Target::nowhere;
}

bool CFileCommands::SaveTo(const CString& path)
{
    const Target target = AskWhere(path);
    if (target != Target::here) {
        return target == Target::elsewhere && SaveAs();
    }
    try {
        const CWaiting waiting(m_window, "Salvataggio di " + ToQt(path) + "…");
        m_document.SaveAs(path);
        KeepRecentFile(m_document.Path());
        return true;
    } catch (const CException& error) {
        TellError("L'edificio non è stato salvato.\n" + ToQt(error.GetErrorMessage()));
        return false;
    }
}

void CFileCommands::TellUse()
{
    QString message = ToQt(m_document.DescribeUse());
    if (!message.isEmpty() && m_document.IsReadOnly()) {
        message += " Qui si apre in sola lettura; \"Salva con nome\" lo scrive altrove.";
    }
    Tell(message.isEmpty() ? QStringList() : QStringList(message));
}

void CFileCommands::TellValveFaults()
{
    QStringList lines;
    for (const CString& fault : CheckValveFiles(m_document.Building())) {
        lines += ToQt(fault);
    }
    Tell(lines);
}

bool CFileCommands::MayLeave()
{
    if (m_document.IsSaved()) {
        return true;
    }
    switch (m_prompts.ask(&m_window, "Salvare le modifiche all'edificio?", "&Salva", "&Non salvare",
                          true)) {
    case CPrompts::Answer::yes:
        return Save();
    case CPrompts::Answer::no:
        return true;
    case CPrompts::Answer::cancel:
        break;
    }
    return false;
}

template <class WRITE>
void CFileCommands::Export(const QString& title, const QString& filter, const CString& suffix,
                           WRITE write)
{
    const auto path = AskTarget(title, filter, suffix);
    if (!path) {
        return;
    }
    if (IsSameFile(*path, m_document.Path())) {
        TellError("L'esportazione non può prendere il posto dell'edificio aperto.\n" + ToQt(*path));
        return;
    }
    try {
        const CWaiting waiting(m_window, "Scrittura di " + ToQt(*path) + "…");
        write(*path);
        emit Told(QString("Scritto %1").arg(ToQt(*path)));
    } catch (const CFileException& error) {
        TellError("Il file non è stato scritto.\n" + ToQt(error.GetErrorMessage()));
    }
}

void CFileCommands::ExportCsv()
{
    Export("Esporta la distinta", "CSV (*.csv)", L".csv", [this](const CString& path) {
        const CSchedule schedule = SchedulePlan(m_document.Building());
        WriteWholeFile(path, Utf8FromWide(FormatScheduleCsv(schedule)));
    });
}

void CFileCommands::ExportXlsx()
{
    Export("Esporta la distinta", "Foglio di calcolo (*.xlsx)", L".xlsx",
           [this](const CString& path) {
               WriteWholeFile(path, FormatScheduleXlsx(SchedulePlan(m_document.Building())));
           });
}

void CFileCommands::ExportJson()
{
    Export("Esporta la distinta", "JSON (*.json)", L"-distinta.json", [this](const CString& path) {
        WriteWholeFile(path, FormatScheduleJson(SchedulePlan(m_document.Building())));
    });
}

void CFileCommands::ExportPdf()
{
    Export("Esporta il progetto", "PDF (*.pdf)", L".pdf", [this](const CString& path) {
        WritePlanPdf(path, m_document.Building(), m_blocks.heizkoerper, m_blocks.Valves(),
                     QDate::currentDate());
    });
}

void CFileCommands::ExportDxf()
{
    Export("Esporta la pianta", "DXF (*.dxf)", L".dxf", [this](const CString& path) {
        WriteWholeFile(
            path, FormatPlanDxf(m_document.Building(), m_blocks.heizkoerper, m_blocks.Valves()));
    });
}

std::optional<CString> CFileCommands::AskFolder(const QString& title, const wchar_t* setting,
                                                const CString& now)
{
    auto folder = m_prompts.openFolder(&m_window, title, {}, now);
    if (folder) {
        reference_host::OverrideHostSetting(setting, *folder);
        if (!reference_host::StoreHostSetting(setting, *folder)) {
            TellError("La cartella vale solo per questa volta: le impostazioni non sono "
                      "scrivibili.");
        }
    }
    return folder;
}

void CFileCommands::ChooseCatalogues()
{
    const auto folder =
        AskFolder("Cartella dei cataloghi", reference_host::kSettingHKDir, GetHKDir(false));
    if (!folder) {
        return;
    }
    const CWaiting waiting(m_window, "Lettura dei cataloghi…");
    const QString errors = DescribeCatalogueErrors();
    emit Told(QString("Cataloghi: %1").arg(ToQt(*folder)) +
              (errors.isEmpty() ? QString() : "\n" + errors));
}

void CFileCommands::ChooseValveCatalogues()
{
    const auto folder =
        AskFolder("Cartella delle valvole", reference_host::kSettingVEDir, GetVEDir(false));
    if (!folder) {
        return;
    }
    const QStringList makers = ValveMakersIn(*folder);
    emit Told(QString("Valvole: %1\n%2")
                  .arg(ToQt(*folder), makers.isEmpty()
                                          ? QString("Nessun produttore con un file ha.tga.")
                                          : "Produttori: " + makers.join(", ")));
}

QString DescribeCatalogueErrors()
{
    QStringList lines;
    for (const CFileFault& error : CheckCatalogues()) {
        lines += ToQt(FormatFileFault(error));
    }
    return lines.join('\n');
}

} // namespace workbench
