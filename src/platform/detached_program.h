#pragma once

#include "platform/text.h"

#include <filesystem>

/// Starts a program, found along PATH, with a path as its one argument. The program outlives this
/// process and leaves nothing behind in it when it ends. False if it cannot be started, or ends at
/// once with an exit code other than 0; as long as it runs on, that is waited for during a second.
bool StartDetached(const CString& program, const std::filesystem::path& argument);

/// Opens a document with the program that the user has for its kind. False if there is none.
bool OpenDocument(const std::filesystem::path& document);
