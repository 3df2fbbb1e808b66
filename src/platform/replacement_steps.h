#pragma once

#include <filesystem>

/// The steps by which a file takes another one's place, as far as systems differ in them. What
/// fails gives false, or a number below 0, and sets errno.

/// 0 if the target may be replaced; ENOENT if it does not exist; else why it may not: it is no
/// regular file, carries no write permission at all, or is not the process's to write to.
int CheckTarget(const std::filesystem::path& target);

/// Gives the new file to whom the target belongs, with the same permissions. Where there is no
/// target it gets those that new files have.
bool TakeAfter(int descriptor, const std::filesystem::path& file,
               const std::filesystem::path& target);

/// An open file that has no name for others and ends with its descriptor.
int OpenNameless();

/// Makes what was written last, and moves the open file over the target.
bool PutInPlace(int descriptor, const std::filesystem::path& file,
                const std::filesystem::path& target);

/// What has it open may go on with it.
bool RemoveFile(const std::filesystem::path& file) noexcept;
