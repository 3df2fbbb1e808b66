#pragma once

#include "platform/exception.h"
#include "platform/text.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>

namespace workbench {

/// Who works on a building, and where. Texts are empty where that cannot be read.
struct CBuildingUser
{
    CString strUser;
    CString strMachine;
    /// Since when, in seconds since the beginning of 1970, UTC; 0 if that cannot be read.
    std::int64_t nTime = 0;
};

/// A building cannot be written to its file, on which somebody else works.
class CInUseException : public CException
{
public:
    using CException::CException;
};

/// Keeps a second program from working on a building unawares: a file beside the building's, in the
/// form of docs/building-format.md, that stands there as long as the lock is held.
///
/// The system takes the lock itself away when a program ends, however that happens, so that what a
/// killed one has left locks nobody out. Another machine's lock does not always show on a shared
/// disk; there the file counts as long as it is touched, for which Refresh() is called.
class CBuildingLock
{
public:
    static constexpr std::chrono::minutes kRefreshEvery{1};

    /// Tries to take the lock of a building's file, which need not exist.
    explicit CBuildingLock(const CString& building);

    /// Gives the lock up and takes its file away.
    ~CBuildingLock();

    CBuildingLock(const CBuildingLock&) = delete;
    CBuildingLock& operator=(const CBuildingLock&) = delete;

    bool IsMine() const { return m_descriptor >= 0; }

    /// Who has the lock instead. Nothing if it is mine, and where no lock can be had at all.
    const std::optional<CBuildingUser>& GetOther() const { return m_other; }

    /// What the user has to know: who has the lock, or why there is none. Empty if it is mine, and
    /// where the user may write nothing into the folder, as nobody then works there.
    CString GetMessage() const;

    /// Shows that the lock is still held.
    void Refresh() const;

private:
    bool Try();

    CString m_strBuilding;
    std::filesystem::path m_path;
    std::optional<CBuildingUser> m_other;
    int m_descriptor = -1;
    int m_error = 0;
};

} // namespace workbench
