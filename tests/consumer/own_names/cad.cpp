// A CAD program that has classes and functions of its own by the names of the module's, and shows
// them to the loader as plug-ins need it. None of them may be taken for the module's, nor the other
// way.

#include "bridge.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

[[noreturn]] void Mistaken(const char* name)
{
    std::printf("taken for the module's: %s\n", name);
    std::exit(EXIT_FAILURE);
}

} // namespace

struct CRuntimeClass;

class CString
{
public:
    explicit CString(const char* text) : m_text(text) {}
    const std::string& Text() const { return m_text; }

private:
    std::string m_text;
};

class CArchive
{
public:
    void Write(const void*, std::size_t) { Mistaken("CArchive::Write"); }
    void Close() { Mistaken("CArchive::Close"); }
};

class CObject
{
public:
    virtual ~CObject() { ++s_gone; }
    virtual void Serialize(CArchive&) { Mistaken("CObject::Serialize"); }
    static const CRuntimeClass& GetThisClass() { Mistaken("CObject::GetThisClass"); }
    bool IsKindOf(const CRuntimeClass&) const { Mistaken("CObject::IsKindOf"); }

    static int s_gone;
};
int CObject::s_gone = 0;

class CWall : public CObject
{
public:
    CString name{"north"};
};

class CException
{
public:
    virtual ~CException() { Mistaken("CException::~CException"); }
    virtual const char* what() const noexcept { Mistaken("CException::what"); }
};

template <class T, class ARG>
class CArray
{
public:
    int Add(ARG) { Mistaken("CArray::Add"); }
    T& operator[](int) { Mistaken("CArray::operator[]"); }
    int GetSize() const { Mistaken("CArray::GetSize"); }
};
template class CArray<double, double>;

wchar_t ToLower(wchar_t)
{
    Mistaken("ToLower");
}

#define RGB(r, g, b) ((r) << 16 | (g) << 8 | (b))

/// Keeps what plug-ins would call.
void* volatile g_kept[] = {reinterpret_cast<void*>(&CObject::GetThisClass),
                           reinterpret_cast<void*>(&ToLower), new CException, new CArchive};

int main()
{
    const CFoundRadiator found = FindRadiator(L"Tipo 22", 900.0);
    const std::string error = DescribeUnknownIndex();
    const int before = CObject::s_gone;
    delete static_cast<CObject*>(new CWall);
    if (found.type != L"T1" || found.output != 1000.0 || error.empty() || before != 0 ||
        CObject::s_gone != 1 || CWall().name.Text() != "north" || RGB(1, 2, 3) != 0x010203) {
        std::printf("%ls, %g W, \"%s\", %d walls\n", found.type.c_str(), found.output,
                    error.c_str(), CObject::s_gone);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
