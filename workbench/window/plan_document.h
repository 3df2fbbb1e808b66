#pragma once

#include "workbench/keeping/building_lock.h"
#include "workbench/keeping/recovery_file.h"
#include "workbench/plan/plan_history.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace workbench {

/// The building that the window works on: its states, its file, and the copy that survives a crash.
class CPlanDocument : public QObject
{
    Q_OBJECT

public:
    /// `recovery` outlives the document; null keeps nothing for the case of a crash.
    explicit CPlanDocument(const CRecoveryFile* recovery, QObject* parent = nullptr);

    const CBuilding& Building() const { return m_history.Current(); }
    const CPlanHistory& History() const { return m_history; }

    /// File of the building, absolute; empty for one that has none yet.
    const CString& Path() const { return m_strPath; }
    bool IsSaved() const { return m_history.IsSaved(); }

    /// Makes `next` the current state (CPlanHistory::Do); does nothing if it is the same building.
    void Do(const CString& what, CBuilding next);
    void Undo();
    void Redo();

    /// Somebody else works on the file, or it may not be written to: the building can be saved to
    /// another one only.
    bool IsReadOnly() const { return m_bProtected || (m_lock && m_lock->GetOther()); }

    /// What the user has to know of others who might work on the file; empty if it is his alone.
    CString DescribeUse() const { return m_lock ? m_lock->GetMessage() : CString(); }

    /// The file holds something else than what was read from it or written to it last, which saving
    /// would take away.
    bool IsFileChanged() const;

    /// Goes on with the building of a file, and forgets the one before. Raises CContentException or
    /// CFileException, and the document stays as it was.
    void Open(const CString& path);

    /// Goes on with a building that is in no file yet.
    void BeginNew(CBuilding building);

    /// Goes on with work that a crash left behind, as work that is not saved. False if it could not
    /// be kept for another crash (KeepNow).
    bool Recover(const CRecovery& recovery);

    /// Where the document keeps its work; null if nowhere.
    const CRecoveryFile* RecoveryFile() const { return m_pRecovery; }

    /// Writes the building to a file, which becomes its own, whatever it holds. Raises
    /// CFileException or, where somebody else works on it, CInUseException, and the file stays as
    /// it was.
    void SaveAs(const CString& path);

    /// Keeps work that is not saved for the case of a crash, which otherwise happens shortly after
    /// the first change that is not kept. False if that fails: KeepingFailed() tells why, once, and
    /// it is tried again and again.
    bool KeepNow();

    /// Gives up what was kept, for a program that ends as it should.
    void ForgetKept();

signals:
    /// The building, its file or its being saved is another than before.
    void Changed();
    /// Another building has taken the place of the one before; Changed() went ahead.
    void Opened();
    /// `message` is for the user.
    void KeepingFailed(const QString& message);

private:
    void Begin(CBuilding building, const CString& path);
    void Announce();
    std::unique_ptr<CBuildingLock> LockFor(const CString& path) const;
    void Take(std::unique_ptr<CBuildingLock> lock);

    CPlanHistory m_history;
    CString m_strPath;
    /// Of what the file held when it was read or written last.
    CString m_strFingerprint;
    /// Of the file; null as long as there is none.
    std::unique_ptr<CBuildingLock> m_lock;
    /// The file may only be read.
    bool m_bProtected = false;
    const CRecoveryFile* m_pRecovery;
    QTimer m_keepTimer;
    /// What KeepingFailed() told last; empty since keeping succeeded.
    CString m_strKeepFault;
    QTimer m_lockTimer;
};

} // namespace workbench
