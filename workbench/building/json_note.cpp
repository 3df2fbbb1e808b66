#include "workbench/building/json_note.h"

#include "platform/encoding.h"
#include "workbench/building/json_fields.h"
#include "workbench/building/json_writer.h"

#include <QJsonDocument>

namespace workbench {

namespace {

constexpr QLatin1String kNote("note");

bool HasOwnNotes(const QString& field)
{
    return field == QLatin1String("floors") || field == QLatin1String("rooms");
}

void AppendNotesWithin(const QJsonObject& object, QJsonArray& notes);

void AppendNotes(const QJsonValue& value, QJsonArray& notes)
{
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        if (object.contains(kNote)) {
            notes.append(object.value(kNote));
        }
        AppendNotesWithin(object, notes);
        return;
    }
    for (const auto& item : value.toArray()) {
        AppendNotes(item, notes);
    }
}

void AppendNotesWithin(const QJsonObject& object, QJsonArray& notes)
{
    for (auto field = object.begin(); field != object.end(); ++field) {
        const QJsonValue value = field.value();
        if ((value.isObject() || value.isArray()) && field.key() != kNote &&
            !HasOwnNotes(field.key())) {
            AppendNotes(value, notes);
        }
    }
}

CString FormatValue(const QJsonValue& value)
{
    CJsonWriter writer({.bDense = true});
    writer.Value(nullptr, value);
    std::string text = writer.Take();
    text.pop_back();
    return WideFromUtf8(text);
}

QJsonArray Joined(const QJsonValue& own, const QJsonArray& others)
{
    QJsonArray list = own.toArray();
    if (!own.isArray() && !own.isUndefined()) {
        list.append(own);
    }
    for (const auto& note : others) {
        list.append(note);
    }
    return list;
}

} // namespace

CString NoteOf(const CJsonFields& fields)
{
    const QJsonValue own = fields.GetObject().value(kNote);
    QJsonArray others;
    AppendNotesWithin(fields.GetObject(), others);
    if (!others.isEmpty()) {
        return FormatValue(Joined(own, others));
    }
    return own.isUndefined() ? CString() : FormatValue(own);
}

void WriteNote(CJsonWriter& writer, const CString& note)
{
    if (note.empty()) {
        return;
    }
    const QJsonArray items =
        QJsonDocument::fromJson(QByteArray::fromStdString(Utf8FromWide(note))).array();
    if (items.isEmpty()) {
        writer.Raw(kNote.data(), note);
        return;
    }
    writer.BeginList(kNote.data());
    for (const auto& item : items) {
        writer.Raw(nullptr, FormatValue(item));
    }
    writer.End();
}

} // namespace workbench
