#include "workbench/building/json_note.h"

#include "platform/encoding.h"
#include "workbench/building/json_fields.h"
#include "workbench/building/json_reader.h"
#include "workbench/building/json_writer.h"

#include <string_view>
#include <vector>

namespace workbench {

namespace {

constexpr const char* kNote = "note";
constexpr const wchar_t* kNoteName = L"note";

using Notes = std::vector<const CJsonValue*>;

bool HasOwnNotes(const CString& field)
{
    return field == L"floors" || field == L"rooms";
}

void AppendNotesWithin(const CJsonObject& object, Notes& notes);

void AppendNotes(const CJsonValue& value, Notes& notes)
{
    if (const CJsonObject* const object = value.GetObject()) {
        if (const CJsonValue* const note = object->Find(kNote)) {
            notes.push_back(note);
        }
        AppendNotesWithin(*object, notes);
    } else if (const CJsonList* const list = value.GetList()) {
        for (const CJsonValue& item : *list) {
            AppendNotes(item, notes);
        }
    }
}

void AppendNotesWithin(const CJsonObject& object, Notes& notes)
{
    for (const auto& [name, value] : object) {
        if (name != kNoteName && !HasOwnNotes(name)) {
            AppendNotes(value, notes);
        }
    }
}

/// The object's own note, or its items where it is a list.
Notes OwnNotes(const CJsonValue* own)
{
    Notes notes;
    if (own && own->GetList()) {
        for (const CJsonValue& item : *own->GetList()) {
            notes.push_back(&item);
        }
    } else if (own) {
        notes.push_back(own);
    }
    return notes;
}

CString TakeLine(CJsonWriter& writer)
{
    std::string text = writer.Take();
    text.pop_back();
    return WideFromUtf8(text);
}

CString FormatValue(const CJsonValue& value)
{
    CJsonWriter writer({.bDense = true});
    writer.Value(nullptr, value);
    return TakeLine(writer);
}

CString FormatList(const Notes& notes)
{
    CJsonWriter writer({.bDense = true});
    writer.BeginList(nullptr);
    for (const CJsonValue* const note : notes) {
        writer.Value(nullptr, *note);
    }
    writer.End();
    return TakeLine(writer);
}

} // namespace

CString NoteOf(const CJsonFields& fields)
{
    const CJsonValue* const own = fields.GetObject().Find(kNote);
    Notes others;
    AppendNotesWithin(fields.GetObject(), others);
    if (!others.empty()) {
        Notes all = OwnNotes(own);
        all.insert(all.end(), others.begin(), others.end());
        return FormatList(all);
    }
    return own ? FormatValue(*own) : CString();
}

void WriteNote(CJsonWriter& writer, const CString& note)
{
    if (note.empty()) {
        return;
    }
    const bool isList = note.starts_with(L'[') && note != L"[]";
    if (!isList) {
        writer.Raw(kNote, note);
        return;
    }
    const CJsonValue list = ReadJson(Utf8FromWide(note));
    writer.BeginList(kNote);
    for (const CJsonValue& item : *list.GetList()) {
        writer.Raw(nullptr, FormatValue(item));
    }
    writer.End();
}

} // namespace workbench
