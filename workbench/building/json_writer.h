#pragma once

#include "platform/text.h"

#include <cstddef>
#include <string>
#include <vector>

namespace workbench {

class CJsonValue;

/// Writes JSON for people and for comparing line by line: fields stay in the order in which they
/// come, an object has a line a field, and small ones stand on a line of their own.
///
/// Every value takes the name of its field; null within a list and at the top. Names are plain
/// ASCII literals.
class CJsonWriter
{
public:
    enum class Layout
    {
        /// A line for every value.
        lines,
        /// All in one line, whatever is asked for further in.
        line,
    };

    struct CStyle
    {
        /// Blanks a level.
        std::size_t nIndent = 2;
        /// What is empty takes two lines as well.
        bool bOpenEmpty = false;
        /// All in one line and without any blank.
        bool bDense = false;
    };

    CJsonWriter() = default;
    explicit CJsonWriter(const CStyle& style) : m_style(style) {}

    void BeginObject(const char* name, Layout layout = Layout::lines);
    void BeginList(const char* name, Layout layout = Layout::lines);
    /// Ends the object or list that was begun last.
    void End();

    /// Any text comes back from a reader exactly, unpaired surrogates included.
    void Text(const char* name, const CString& text);

    /// The shortest form that reads back as exactly the same number. What JSON cannot hold,
    /// infinity and not-a-number, becomes 0, so that the file stays readable; so does the negative
    /// zero.
    void Number(const char* name, double number);

    void Null(const char* name);

    /// A value with all that is in it, the fields of an object by their names.
    void Value(const char* name, const CJsonValue& value);

    /// A value that is JSON already.
    void Raw(const char* name, const CString& json);

    /// The whole text, in UTF-8, with a line end behind it.
    std::string Take();

private:
    struct CLevel
    {
        bool bList = false;
        bool bLine = false;
        bool bEmpty = true;
    };

    void Begin(bool list, Layout layout);
    void BreakLine();
    void Lead(const char* name);
    void Lead();
    void Append(const CJsonValue& value);
    void AppendNumber(double number);

    CStyle m_style;
    std::string m_text;
    std::vector<CLevel> m_levels;
};

} // namespace workbench
