#pragma once

#include "platform/text.h"

#include <cstddef>

namespace c_interface {

/// The text in a field of `capacity` bytes. One without an end raises CCallFault.
CString ReadField(const char* field, std::size_t capacity);

/// Puts a text into such a field. One that is too long raises CCallFault.
void WriteField(char* field, std::size_t capacity, const CString& text);

template <std::size_t N>
CString ReadField(const char (&field)[N])
{
    return ReadField(field, N);
}

template <std::size_t N>
void WriteField(char (&field)[N], const CString& text)
{
    WriteField(field, N, text);
}

/// A text argument; null is the empty text.
CString ReadText(const char* text);

} // namespace c_interface
