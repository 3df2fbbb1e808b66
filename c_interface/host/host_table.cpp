#include "c_interface/host/host_table.h"

#include "c_interface/host/messages.h"
#include "c_interface/records/sized_record.h"
#include "c_interface/records/texts.h"

#include <array>
#include <map>
#include <string>
#include <utility>

namespace c_interface {

namespace {

/// Longer than any path of the system.
constexpr std::size_t kBufferSize = 8192;

struct CHost
{
    radsel_host table = {};
    std::map<int, CString> texts;
    std::map<int, int> numbers;
    std::optional<CReason> failure;
};

CHost& State()
{
    static CHost host;
    return host;
}

template <class Value>
void Assign(std::map<int, Value>& values, int setting, const std::optional<Value>& value)
{
    if (value) {
        values.insert_or_assign(setting, *value);
    } else {
        values.erase(setting);
    }
}

template <class Value>
std::optional<Value> Find(const std::map<int, Value>& values, int setting)
{
    const auto found = values.find(setting);
    return found == values.end() ? std::nullopt : std::optional(found->second);
}

} // namespace

const radsel_host& Host()
{
    return State().table;
}

void SetHost(const radsel_host* table)
{
    radsel_host none = {};
    none.size = sizeof none;
    State().table = table == nullptr ? none : Load(table, none);
    ShowMessagesThroughHost(State().table.show_message != nullptr);
}

bool Succeeded(const char* callback, int code)
{
    std::optional<CReason> told = std::exchange(State().failure, std::nullopt);
    if (code == RADSEL_OK) {
        return true;
    }
    if (code == RADSEL_NOTHING || code == RADSEL_CANCELLED) {
        return false;
    }
    if (!told) {
        told = CReason{"The host's " + std::string(callback) + " has failed with " +
                           std::to_string(code) + ".",
                       {},
                       0};
    }
    throw CHostFailure(std::move(*told));
}

void NoteFailure(CReason reason)
{
    State().failure = std::move(reason);
}

void ForgetFailure()
{
    State().failure.reset();
}

std::optional<CString> AskForText(const char* name, const CString& before,
                                  const TextCallback& callback)
{
    std::array<char, kBufferSize> buffer{};
    WriteField(buffer.data(), buffer.size(), before);
    if (!Succeeded(name, callback(buffer.data(), buffer.size()))) {
        return std::nullopt;
    }
    try {
        return ReadField(buffer.data(), buffer.size());
    } catch (const CCallFault& fault) {
        CReason reason = fault.GetReason();
        reason.text = "The host's " + std::string(name) + ": " + reason.text;
        throw CHostFailure(std::move(reason));
    }
}

std::optional<CString> AskText(radsel_text_setting setting)
{
    const radsel_host& host = Host();
    if (host.get_text != nullptr) {
        auto answer = AskForText("get_text", {}, [&](char* buffer, std::size_t capacity) {
            return host.get_text(host.user, setting, buffer, capacity);
        });
        if (answer) {
            return answer;
        }
    }
    return Find(State().texts, setting);
}

std::optional<int> AskNumber(radsel_number_setting setting)
{
    const radsel_host& host = Host();
    int value = 0;
    if (host.get_number != nullptr &&
        Succeeded("get_number", host.get_number(host.user, setting, &value))) {
        return value;
    }
    return Find(State().numbers, setting);
}

bool SetText(int setting, const std::optional<CString>& text)
{
    if (setting < RADSEL_CATALOGUE_FOLDER || setting > RADSEL_PROGRAM_NAME) {
        return false;
    }
    Assign(State().texts, setting, text);
    return true;
}

bool SetNumber(int setting, const std::optional<int>& value)
{
    if (setting < RADSEL_DRAWING_UNIT || setting > RADSEL_RETURN_COLOR) {
        return false;
    }
    Assign(State().numbers, setting, value);
    return true;
}

} // namespace c_interface
