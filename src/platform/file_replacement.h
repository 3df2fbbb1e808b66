#pragma once

#include <filesystem>

/// The next content of a file while it is written: a file beside the target, which takes the
/// target's place when it is whole. Owner, group and mode stay those of the old file. Where the
/// folder lets no neighbour be made, or the neighbour cannot be given to the old owner, the content
/// is held back without a name and written into the old file in one go at the end; if that fails on
/// the way, the old content is put back.
class CFileReplacement
{
public:
    /// Opens an empty file to be filled; with `keep` it begins with what the target holds. Returns
    /// its descriptor, which the caller closes, or below 0 with errno set: also where the target
    /// is no regular file, carries no write permission at all, or is not the process's to write to.
    int Begin(const std::filesystem::path& target, bool keep);

    /// True between Begin() and the end, of whichever kind.
    bool IsOpen() const { return m_bOpen; }

    /// Puts what was written in the target's place. False with errno set if that fails, and then
    /// nothing has ended yet.
    bool Commit(int descriptor);

    /// Gives up what was written.
    void Drop() noexcept;

private:
    int OpenBeside();
    int Fail(int descriptor);

    std::filesystem::path m_target;
    /// Empty for a content that is held back.
    std::filesystem::path m_temporary;
    bool m_bOpen = false;
};
