#pragma once

#include <iosfwd>
#include <memory>

class CArchive;
class CObject;

/// Description of a class at run time: its name, the version of its archive form, its base, and
/// how to make an empty object of it. Class names are unique in the system.
struct CRuntimeClass
{
    const char* m_lpszClassName;
    /// Version of the archive form; an archive of a later version is refused.
    unsigned m_wSchema;
    const CRuntimeClass* m_pBaseClass;
    /// Null for a class that cannot be made by its description.
    std::unique_ptr<CObject> (*m_pfnCreateObject)();

    /// A new object of the class, null if the class cannot be made this way.
    std::unique_ptr<CObject> CreateObject() const;

    /// True for the class itself and for everything above it.
    bool IsDerivedFrom(const CRuntimeClass& base) const;
};

/// Root of the classes with run-time class information and archive form.
/// A derived class offers `static const CRuntimeClass& GetThisClass()`.
class CObject
{
public:
    virtual const CRuntimeClass& GetRuntimeClass() const;
    virtual ~CObject();

    /// Writes the object to a storing archive or reads it from a loading one.
    virtual void Serialize(CArchive& archive);

    /// Diagnostics: checks invariants with asserts; writes a one-line description.
    virtual void AssertValid() const;
    virtual void Dump(std::wostream& out) const;

    static const CRuntimeClass& GetThisClass();
    bool IsKindOf(const CRuntimeClass& other) const;

protected:
    CObject() = default;
    CObject(const CObject&) = default;
    CObject& operator=(const CObject&) = default;
};
