#include "reference_host/prefs/settings_file.h"

#include "platform/encoding.h"
#include "platform/exception.h"
#include "platform/file_limits.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <string_view>
#include <utility>

namespace reference_host {

namespace {

constexpr std::string_view kVersionHead = "radsel-settings ";
constexpr std::string_view kVersion = "1";

std::string HeadOf(const CString& key)
{
    return Utf8FromWide(key) + '=';
}

std::vector<std::string> LinesOf(std::string_view bytes)
{
    std::vector<std::string> lines;
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find('\n'), bytes.size());
        std::string_view line = bytes.substr(0, end);
        // All of them: one that stayed would be the line end of what is written again.
        while (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.emplace_back(line);
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
    }
    return lines;
}

} // namespace

CSettingsFile::CSettingsFile(CString path) : m_path(std::move(path)), m_state(Load()) {}

CSettingsFile::State CSettingsFile::Load()
{
    std::vector<std::string> lines;
    try {
        const auto bytes = ReadWholeFile(m_path, kLargestSettingsFile);
        if (!bytes) {
            return State::unreadable;
        }
        lines = LinesOf(*bytes);
    } catch (const CFileException& error) {
        return error.GetOsError() == ENOENT ? State::missing : State::unreadable;
    }

    if (lines.empty() || !lines.front().starts_with(kVersionHead)) {
        return State::damaged;
    }
    if (lines.front().substr(kVersionHead.size()) != kVersion) {
        return State::ofLaterVersion;
    }
    m_lines.assign(std::next(lines.begin()), lines.end());
    return State::read;
}

std::size_t CSettingsFile::FindLine(const std::string& head) const
{
    const auto found = std::ranges::find_if(
        m_lines, [&](const std::string& line) { return line.starts_with(head); });
    return static_cast<std::size_t>(found - m_lines.begin());
}

std::optional<CString> CSettingsFile::Find(const CString& key) const
{
    const std::string head = HeadOf(key);
    const std::size_t index = FindLine(head);
    if (index == m_lines.size()) {
        return std::nullopt;
    }
    return WideFromUtf8(std::string_view(m_lines[index]).substr(head.size()));
}

bool CSettingsFile::Store(const CString& key, const CString& value)
{
    const bool mayReplace = m_state != State::unreadable && m_state != State::ofLaterVersion;
    if (!mayReplace || (m_state == State::damaged && !PutAside())) {
        return false;
    }
    const std::string head = HeadOf(key);
    const std::size_t index = FindLine(head);
    if (index == m_lines.size()) {
        m_lines.emplace_back();
    }
    m_lines[index] = head + Utf8FromWide(value);
    try {
        Write();
    } catch (const CFileException&) {
        return false;
    }
    m_state = State::read;
    return true;
}

bool CSettingsFile::PutAside() const
{
    try {
        WriteWholeFile(m_path + L".damaged", *ReadWholeFile(m_path));
        return true;
    } catch (const CFileException&) {
        return false;
    }
}

void CSettingsFile::Write() const
{
    std::string bytes;
    bytes.append(kVersionHead).append(kVersion).append("\n");
    for (const std::string& line : m_lines) {
        bytes.append(line).append("\n");
    }
    WriteWholeFile(m_path, bytes);
}

} // namespace reference_host
