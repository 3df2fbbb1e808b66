#pragma once

#include "platform/text.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace reference_host {

/// Text of a catalogue file: UTF-16 little-endian behind its byte order mark, else code page 1252.
/// Nothing if the file carries the mark of another encoding.
std::optional<CString> DecodeCatalogue(std::span<const std::uint8_t> bytes);

/// Takes the first line off `rest` and returns it without its line end, CR LF or LF. A last line
/// needs no line end.
std::wstring_view TakeLine(std::wstring_view& rest);

/// One record: a line cut into fields at each ";". Field 0 is the record type. The record looks
/// into the text of the line, which must outlive it.
///
/// Messages count fields from 0, as the format does. All Read functions throw CFileFault with
/// the line of the record if the field does not hold what is asked for; `name` tells the user which
/// field that is.
class CRecordLine
{
public:
    /// `nLine` is the line number from 1.
    CRecordLine(std::wstring_view line, int nLine);

    int GetLineNumber() const { return m_nLine; }
    std::wstring_view GetType() const { return Field(0); }

    /// True if the field is missing or holds nothing.
    bool IsEmpty(int field) const { return Field(field).empty(); }

    /// Text of a field, empty if it is missing.
    CString GetText(int field) const { return CString(Field(field)); }

    /// Text of a field that must not be empty.
    CString ReadText(int field, const wchar_t* name) const;

    /// Number of a field, `min` to `max`. A decimal comma is refused, anything else behind the
    /// number is ignored.
    double ReadNumber(int field, const wchar_t* name, double min, double max) const;

    /// The same for a field that may be empty and then stands for `fallback`.
    double ReadOptionalNumber(int field, const wchar_t* name, double min, double max,
                              double fallback) const;

    /// Whole number of a field, `min` to `max`.
    int ReadInt(int field, const wchar_t* name, int min, int max) const;

    /// Throws the fault of this line.
    [[noreturn]] void Refuse(const CString& message) const;

private:
    std::wstring_view Field(int field) const;
    [[noreturn]] void RefuseField(int field, const wchar_t* name, const CString& message) const;
    void RequireNumber(int field, const wchar_t* name) const;

    std::vector<std::wstring_view> m_fields;
    int m_nLine;
};

} // namespace reference_host
