#include "c_interface/records/texts.h"

#include "c_interface/radsel_c.h"
#include "c_interface/records/call_fault.h"
#include "platform/encoding.h"

#include <algorithm>
#include <string>

namespace c_interface {

CString ReadField(const char* field, std::size_t capacity)
{
    const char* const end = std::find(field, field + capacity, '\0');
    if (end == field + capacity) {
        throw CCallFault(RADSEL_BAD_ARGUMENT,
                         "A text field of " + std::to_string(capacity) + " bytes has no end.");
    }
    return WideFromUtf8({field, end});
}

void WriteField(char* field, std::size_t capacity, const CString& text)
{
    const std::string bytes = Utf8FromWide(text);
    if (bytes.size() >= capacity) {
        throw CCallFault(RADSEL_TEXT_TOO_LONG, "\"" + bytes + "\" does not fit into the " +
                                                   std::to_string(capacity) +
                                                   " bytes of its field.");
    }
    // The rest of the field is filled too, so that nothing of what stood there remains.
    std::fill(std::copy(bytes.begin(), bytes.end(), field), field + capacity, '\0');
}

CString ReadText(const char* text)
{
    return text == nullptr ? CString() : WideFromUtf8(text);
}

} // namespace c_interface
