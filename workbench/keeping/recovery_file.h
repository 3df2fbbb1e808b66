#pragma once

#include "workbench/building/building.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace workbench {

/// Unsaved work as it was kept last.
struct CRecovery
{
    /// File of the building; empty if it never had one.
    CString strPath;
    /// Of the content of that file that the work goes out from (FingerprintOf); empty if that is
    /// unknown.
    CString strFingerprint;
    /// When it was kept, in seconds since the beginning of 1970, UTC.
    std::int64_t nTime = 0;
    CBuilding building;
};

/// Where a running program keeps unsaved work, so that it comes back after a crash: a file in the
/// folder of the working place, in the form of docs/building-format.md. Every running program has a
/// file of its own there; the system takes its lock away when it ends, however that happens.
class CRecoveryFile
{
public:
    /// Takes a file that no running program has and that nobody has left behind, and makes the
    /// folder where it is missing. Raises CFileException.
    explicit CRecoveryFile(const CString& folder);

    /// Leaves the file where it is. A program that ends as it should calls Remove() before.
    ~CRecoveryFile();

    CRecoveryFile(const CRecoveryFile&) = delete;
    CRecoveryFile& operator=(const CRecoveryFile&) = delete;

    /// The files in the same folder that programs have left behind. No other program takes one of
    /// them as long as its object lives. Raises CFileException if they cannot be looked for.
    std::vector<std::unique_ptr<CRecoveryFile>> TakeLeft() const;

    /// The work in the file; nothing if there is none. A file whose content is damaged gets another
    /// name beside it and is told by CContentException; from then on there is none. One that the
    /// system does not let read stays as it is and is told by CFileException.
    std::optional<CRecovery> Read() const;

    /// Keeps the building, with the time of now, in place of what was kept before. `path` is the
    /// file that it belongs to, or empty, and `fingerprint` that of its content. Whatever happens
    /// meanwhile, the file holds the old work or the new, whole. Raises CFileException.
    void Write(const CString& path, const CString& fingerprint, const CBuilding& building) const;

    /// Takes the file away if there is one. Raises CFileException.
    void Remove() const;

private:
    /// Holds the file of that number unless another program has it.
    CRecoveryFile(const CString& folder, int number);

    bool Take(int number);
    CString SetAside() const;

    CString m_strFolder;
    CString m_strPath;
    int m_lock = -1;
};

} // namespace workbench
