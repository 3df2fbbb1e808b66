#include "tests/fuzz/entries.h"
#include "tests/src/common/lines.h"
#include "tests/support/temp_folder.h"

#include <string>

namespace {

void CheckFields(const CString& line)
{
    for (const wchar_t separator : {L';', L'|', L' ', L'\t', L'\n'}) {
        CStringArray fields;
        SplitString(fields, line, separator);
        std::vector<std::wstring_view> views;
        SplitFields(views, line, separator);
        Require(views.size() == static_cast<std::size_t>(fields.GetSize()), "count of fields");
        for (int i = 0; i < fields.GetSize(); ++i) {
            Require(fields[i] == views[static_cast<std::size_t>(i)], "text of a field");
            Require(fields[i].find(separator) == CString::npos, "no separator in a field");
        }
    }
}

} // namespace

void RunTextFile(std::span<const std::uint8_t> bytes)
{
    static const CTempFolder folder;
    folder.WriteBytes("in.txt", std::string(bytes.begin(), bytes.end()));
    const CString in = folder.Path("in.txt");
    const CStringArray lines = LinesIn(in);
    Require(BlockIn(in) == lines, "a block has the same lines");
    CString first;
    const bool hasFirst = ReadFirstLine(in, first, bytes.size());
    Require(hasFirst == !lines.IsEmpty(), "a file of any lines has a first one");
    Require(!hasFirst || first == lines[0], "the first line is that of the whole file");
    for (const CString& line : lines) {
        CheckFields(line);
    }

    // Behind this length chunk borders may cut a CR LF in two, which then counts twice.
    constexpr std::size_t kOneChunk = 32768;
    if (bytes.size() < kOneChunk) {
        folder.WriteBytes("out.txt", "");
        const CString out = folder.Path("out.txt");
        Require(WriteTextFile(out, lines, true, false, CFile::modeReadWrite), "the file opens");
        Require(LinesIn(out) == lines, "lines survive the file");
    }
}
