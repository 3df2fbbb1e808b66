#pragma once

#include "platform/held_folders.h"
#include "platform/text.h"

#include <cstdint>

/// Keeps other processes that ask for the lock of the same file waiting from its making to its end,
/// which is between the reading of a store and its replacement; what they store meanwhile would be
/// lost otherwise. Who only reads needs none: he meets the old file or the new one.
///
/// What is locked is the folder of the file. So the lock needs no file of its own, holds for a file
/// that is not there yet or is replaced meanwhile, and ends with its process however that ends. In
/// one process it may be taken again while it is held. No lock is waited for longer than some
/// seconds, lest a process that was stopped stop all others; then, and where a folder cannot be
/// locked, the work goes on without it. Across machines it holds where the file system carries the
/// locks of folders, which none does on Windows. The thread that made it ends it. Never hold it
/// while a dialog is open.
class CFileLock
{
public:
    /// `path` is a text in the sense of path.h.
    explicit CFileLock(const CString& path);
    ~CFileLock();

    CFileLock(const CFileLock&) = delete;
    CFileLock& operator=(const CFileLock&) = delete;

private:
    bool Take(std::intptr_t lock);

    static constexpr std::intptr_t kNone = -1;

    /// What the system knows the lock by; none where there is nothing to hold.
    std::intptr_t m_lock = kNone;
    CFolderKey m_folder;
};
