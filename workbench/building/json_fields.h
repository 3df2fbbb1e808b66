#pragma once

#include "platform/exception.h"
#include "platform/text.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

class CJsonObject;
class CJsonValue;

/// Content of a file that is not what its format asks for. The message names file, place and field.
class CContentException : public CException
{
public:
    using CException::CException;
};

/// One object of a JSON file, read field by field with checks: a missing field, one of another type
/// or out of range, and one that nobody knows raise CContentException. Names of fields are
/// literals.
class CJsonFields
{
public:
    /// `place` says in which part of the file the object stands, as messages show it; may be empty.
    CJsonFields(std::shared_ptr<const CJsonObject> object, const CString& file,
                const CString& place);

    /// From here on messages name this place.
    void SetPlace(const CString& place) { m_strPlace = place; }
    const CString& GetPlace() const { return m_strPlace; }

    bool Has(const char* name) const;

    /// True if the field is there and stands for nothing; it then counts as asked for.
    bool TakeNull(const char* name);

    /// A text that somebody wrote for people: not blank, no control characters, at most 200 long.
    CString Text(const char* name);

    /// A text that comes from elsewhere, a catalogue or a drawing, and may hold anything.
    CString ForeignText(const char* name);

    /// The same, or an empty text where the field is missing.
    CString ForeignTextOr(const char* name);

    /// A number of at least `min` and at most `max`.
    double Number(const char* name, double min, double max);

    /// The same, or `fallback` where the field is missing.
    double NumberOr(const char* name, double min, double max, double fallback);

    /// Any number.
    double Number(const char* name);

    /// A whole number within the same kind of limits.
    int Integer(const char* name, int min, int max);

    /// A list of three numbers.
    std::array<double, 3> Vector(const char* name);

    /// An object; its place is the one of this object.
    CJsonFields Object(const char* name);

    /// A list of objects, of at least one unless `mayBeEmpty`. Their places are `what` and their
    /// number, behind the place of this object.
    std::vector<CJsonFields> Objects(const char* name, const CString& what,
                                     bool mayBeEmpty = false);

    /// Raises if the object has a field that was not asked for. A "note" may stand in any object.
    void RefuseUnknown() const;

    /// The object as it stands in the file.
    const CJsonObject& GetObject() const { return *m_object; }

    [[noreturn]] void Fail(const CString& name, const CString& what) const;

private:
    const CJsonValue& Take(const char* name);

    /// Fields of an object within this one.
    CJsonFields Within(const CJsonObject& object, const CString& place) const;

    /// Never null. It shares the whole value of the file.
    std::shared_ptr<const CJsonObject> m_object;
    CString m_strFile;
    CString m_strPlace;
    std::vector<std::string_view> m_known;
};

/// All bytes of a JSON file. Raises CFileException if it cannot be read, and CContentException if
/// it is too large to be meant.
std::string ReadJsonBytes(const CString& path);

/// Writes such a file, as WriteWholeFile() does. More than can be read again raises CFileException
/// as well, and the file stays as it was.
void WriteJsonBytes(const CString& path, const std::string& bytes);

/// The object of a JSON text. One that is none raises CContentException, with line and column of
/// the place where reading stopped in the file that the text comes from.
CJsonFields ParseJson(const std::string& bytes, const CString& path);

/// The object of a JSON file. A file that cannot be opened or is no JSON object raises
/// CContentException, the latter with line and column of the place where reading stopped.
CJsonFields ReadJsonFile(const CString& path);

} // namespace workbench
