#pragma once

#include "platform/exception.h"
#include "workbench/building/json_value.h"

#include <cstddef>
#include <string_view>

namespace workbench {

/// A text that is no JSON.
class CJsonException : public CException
{
public:
    CJsonException(const CString& message, std::size_t offset)
        : CException(message), m_offset(offset)
    {
    }

    /// Where reading stopped, in bytes from the beginning; not beyond the end.
    std::size_t GetOffset() const { return m_offset; }

private:
    std::size_t m_offset;
};

/// The value of a JSON text in UTF-8, which is a list or an object. More is taken than the standard
/// has: a byte order mark in front, control characters within texts, and a "\" in front of any
/// character that needs none. Texts keep every code unit, unpaired surrogates included. Raises
/// CJsonException, and so it does for a text of more than 1024 levels.
CJsonValue ReadJson(std::string_view bytes);

} // namespace workbench
