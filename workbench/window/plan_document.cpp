#include "workbench/window/plan_document.h"

#include "platform/file.h"
#include "workbench/building/building_json.h"
#include "workbench/building/qt_text.h"

#include <chrono>
#include <utility>

namespace workbench {

namespace {

/// A crash costs no more than the work of this time.
constexpr std::chrono::milliseconds kKeepAfter(1500);

} // namespace

CPlanDocument::CPlanDocument(const CRecoveryFile* recovery, QObject* parent)
    : QObject(parent), m_history(CBuilding()), m_pRecovery(recovery)
{
    m_keepTimer.setSingleShot(true);
    m_keepTimer.setInterval(kKeepAfter);
    connect(&m_keepTimer, &QTimer::timeout, this, &CPlanDocument::KeepNow);
}

void CPlanDocument::Do(const CString& what, CBuilding next)
{
    if (IsSameBuilding(next, Building())) {
        return;
    }
    m_history.Do(what, std::move(next));
    Announce();
}

void CPlanDocument::Undo()
{
    m_history.Undo();
    Announce();
}

void CPlanDocument::Redo()
{
    m_history.Redo();
    Announce();
}

void CPlanDocument::Open(const CString& path)
{
    Begin(ReadBuilding(path), path);
    ForgetKept();
    emit Changed();
    emit Opened();
}

void CPlanDocument::Recover(const CRecovery& recovery)
{
    Begin(recovery.building, recovery.strPath);
    m_history.MarkUnsaved();
    emit Changed();
    emit Opened();
}

void CPlanDocument::SaveAs(const CString& path)
{
    WriteBuilding(path, Building());
    m_strPath = path;
    m_history.MarkSaved();
    ForgetKept();
    emit Changed();
}

void CPlanDocument::KeepNow()
{
    m_keepTimer.stop();
    if (m_pRecovery == nullptr || IsSaved()) {
        return;
    }
    try {
        m_pRecovery->Write(m_strPath, Building());
    } catch (const CFileException& error) {
        emit KeepingFailed(ToQt(error.GetErrorMessage()));
    }
}

void CPlanDocument::ForgetKept()
{
    m_keepTimer.stop();
    if (m_pRecovery == nullptr) {
        return;
    }
    try {
        m_pRecovery->Remove();
    } catch (const CFileException& error) {
        emit KeepingFailed(ToQt(error.GetErrorMessage()));
    }
}

void CPlanDocument::Begin(CBuilding building, const CString& path)
{
    m_history = CPlanHistory(std::move(building));
    m_strPath = path;
}

void CPlanDocument::Announce()
{
    if (IsSaved()) {
        ForgetKept();
    } else {
        m_keepTimer.start();
    }
    emit Changed();
}

} // namespace workbench
