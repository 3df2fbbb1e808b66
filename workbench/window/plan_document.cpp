#include "workbench/window/plan_document.h"

#include "platform/exception.h"
#include "workbench/building/building_json.h"
#include "workbench/building/json_fields.h"
#include "workbench/keeping/file_identity.h"
#include "workbench/toolkit/qt_text.h"

#include <chrono>
#include <utility>

namespace workbench {

namespace {

/// A crash costs no more than the work of this time: counted from a change on, whatever follows it.
constexpr std::chrono::milliseconds kKeepAfter(1500);

} // namespace

CPlanDocument::CPlanDocument(const CRecoveryFile* recovery, QObject* parent)
    : QObject(parent), m_history(CBuilding()), m_pRecovery(recovery)
{
    m_keepTimer.setSingleShot(true);
    m_keepTimer.setInterval(kKeepAfter);
    connect(&m_keepTimer, &QTimer::timeout, this, &CPlanDocument::KeepNow);
    m_lockTimer.start(CBuildingLock::kRefreshEvery);
    connect(&m_lockTimer, &QTimer::timeout, this, [this] {
        if (m_lock) {
            m_lock->Refresh();
        }
    });
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
    auto lock = LockFor(path);
    const std::string bytes = ReadJsonBytes(path);
    Begin(ReadBuilding(ParseJson(bytes, path)), path);
    m_strFingerprint = FingerprintOf(bytes);
    Take(std::move(lock));
    ForgetKept();
    emit Changed();
    emit Opened();
}

void CPlanDocument::BeginNew(CBuilding building)
{
    m_lock.reset();
    ForgetKept();
    Begin(std::move(building), {});
    m_strFingerprint.clear();
    m_history.MarkUnsaved();
    Announce();
    emit Opened();
}

bool CPlanDocument::Recover(const CRecovery& recovery)
{
    if (recovery.strPath.empty()) {
        m_lock.reset();
    } else {
        Take(LockFor(recovery.strPath));
    }
    Begin(recovery.building, recovery.strPath);
    m_strFingerprint = recovery.strFingerprint;
    m_history.MarkUnsaved();
    emit Changed();
    emit Opened();
    return KeepNow();
}

bool CPlanDocument::IsFileChanged() const
{
    return !m_strPath.empty() && HoldsOther(m_strPath, m_strFingerprint);
}

void CPlanDocument::SaveAs(const CString& path)
{
    auto lock = LockFor(path);
    if (lock && lock->GetOther()) {
        throw CInUseException(lock->GetMessage());
    }
    const std::string bytes = FormatBuilding(Building());
    WriteJsonBytes(path, bytes);
    m_strPath = AbsolutePath(path);
    m_bProtected = false;
    m_strFingerprint = FingerprintOf(bytes);
    Take(std::move(lock));
    m_history.MarkSaved();
    ForgetKept();
    emit Changed();
}

bool CPlanDocument::KeepNow()
{
    m_keepTimer.stop();
    if (m_pRecovery == nullptr || IsSaved()) {
        return true;
    }
    try {
        m_pRecovery->Write(m_strPath, m_strFingerprint, Building());
        m_strKeepFault.clear();
        return true;
    } catch (const CFileException& error) {
        m_keepTimer.start();
        if (std::exchange(m_strKeepFault, error.GetErrorMessage()) != error.GetErrorMessage()) {
            emit KeepingFailed(ToQt(error.GetErrorMessage()));
        }
        return false;
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
    m_strPath = path.empty() ? path : AbsolutePath(path);
    m_bProtected = !path.empty() && IsWriteProtected(path);
}

/// Null if the lock of that file is held already.
std::unique_ptr<CBuildingLock> CPlanDocument::LockFor(const CString& path) const
{
    const bool isMine = m_lock && m_lock->IsMine() && IsSameFile(path, m_strPath);
    return isMine ? nullptr : std::make_unique<CBuildingLock>(path);
}

void CPlanDocument::Take(std::unique_ptr<CBuildingLock> lock)
{
    if (lock) {
        m_lock = std::move(lock);
    }
}

void CPlanDocument::Announce()
{
    if (IsSaved()) {
        ForgetKept();
    } else if (!m_keepTimer.isActive()) {
        m_keepTimer.start();
    }
    emit Changed();
}

} // namespace workbench
