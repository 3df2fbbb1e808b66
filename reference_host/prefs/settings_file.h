#pragma once

#include "platform/text.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace reference_host {

/// The stored settings, as they are in the file at the moment of construction: UTF-8, the version
/// in the first line, then a line "key=value" each. Lines of another form are kept and written
/// back.
class CSettingsFile
{
public:
    /// Reads the file; one that is not there, that cannot be read or is not of a known version has
    /// no entries.
    explicit CSettingsFile(CString path);

    /// False if there is a file and it could not be read; then it is as if it had no entries.
    bool IsReadable() const { return m_state != State::unreadable; }

    const CString& GetPath() const { return m_path; }

    /// Value of a key; of several lines with the same key the first counts.
    std::optional<CString> Find(const CString& key) const;

    /// Sets the value of a key and writes the file. False if that fails or if the file may not be
    /// replaced, being of a later version or out of reach; the old file is then still whole. A
    /// damaged file is copied to "<path>.damaged" before it is replaced.
    bool Store(const CString& key, const CString& value);

private:
    enum class State
    {
        missing,
        read,
        damaged,
        unreadable,
        ofLaterVersion
    };

    State Load();
    /// Index of the first line with that beginning, their count if there is none.
    std::size_t FindLine(const std::string& head) const;
    bool PutAside() const;
    void Write() const;

    CString m_path;
    std::vector<std::string> m_lines;
    State m_state;
};

} // namespace reference_host
