#pragma once

#include "platform/text.h"

#include <exception>
#include <string>

/// Marks an exception that one library throws and another catches. With GCC's standard library a
/// class is known again by its name; with clang's by the address of its description, of which then
/// no library may have one of its own.
#ifdef _LIBCPP_VERSION
#define RADSEL_THROWN __attribute__((type_visibility("default")))
#else
#define RADSEL_THROWN
#endif

/// Base of the framework's exceptions: those that a dialog's message loop reports to the user
/// instead of letting them end the program.
class RADSEL_THROWN CException : public std::exception
{
public:
    explicit CException(CString message);

    const char* what() const noexcept override { return m_what.c_str(); }

    /// Text for the user.
    const CString& GetErrorMessage() const { return m_message; }

private:
    CString m_message;
    std::string m_what;
};

/// An argument that an operation cannot take: above all an index outside an array.
class RADSEL_THROWN CInvalidArgException : public CException
{
public:
    CInvalidArgException();

    /// The same with a text of its own: where a file led to it, its name and line and what the line
    /// lacks.
    explicit CInvalidArgException(CString message);
};

/// A file operation that failed.
class RADSEL_THROWN CFileException : public CException
{
public:
    enum class Cause
    {
        generic,
        fileNotFound,
        badPath,
        accessDenied,
        diskFull,
        hardIO
    };

    /// `osError` is the system's errno, 0 if none applies.
    CFileException(Cause cause, int osError, const CString& fileName);

    /// The exception for a failed system call, its cause derived from errno.
    static CFileException FromErrno(int osError, const CString& fileName);

    Cause GetCause() const { return m_cause; }
    int GetOsError() const { return m_osError; }
    const CString& GetFileName() const { return m_fileName; }

private:
    Cause m_cause;
    int m_osError;
    CString m_fileName;
};

/// An archive that cannot be read: cut short, damaged, of another class or of a later version.
class RADSEL_THROWN CArchiveException : public CException
{
public:
    enum class Cause
    {
        endOfFile,
        badClass,
        badSchema,
        damaged
    };

    explicit CArchiveException(Cause cause);

    Cause GetCause() const { return m_cause; }

private:
    Cause m_cause;
};
