#pragma once

#include "platform/line_text.h"
#include "platform/text.h"

#include <cstddef>
#include <string_view>

/// A text of a valve file as a node holds it: a view of the bytes of the file, widened with its
/// umlauts repaired whenever somebody looks at it. It reads like the CString that it turns into,
/// and holds as long as its node.
class CVentilText
{
public:
    CVentilText() = default;
    explicit CVentilText(const CLineText& text) : m_text(text) {}

    // Callers take it for the text that it stands for.
    operator CString() const; // NOLINT(google-explicit-constructor,hicpp-explicit-conversions)

    // The names that they have in the text that it stands for.
    // NOLINTBEGIN(readability-identifier-naming)
    std::size_t size() const { return m_text.GetSize(); }
    bool empty() const { return size() == 0; }
    CString substr(std::size_t position, std::size_t count = CString::npos) const;
    std::size_t find(std::wstring_view piece) const { return CString(*this).find(piece); }
    // NOLINTEND(readability-identifier-naming)

    /// Compares without widening.
    friend bool operator==(const CVentilText& a, std::wstring_view b);

    friend CString operator+(const CVentilText& a, const CString& b) { return CString(a) + b; }
    friend CString operator+(const CString& a, const CVentilText& b) { return a + CString(b); }

private:
    CLineText m_text;
};

/// Replaces the foreign characters that the umlauts of a DOS code page have become.
void KorrigiereUmlaute(CString& zeile);
