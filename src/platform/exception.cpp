#include "platform/exception.h"

#include "platform/encoding.h"
#include "platform/system_error.h"

#include <cerrno>
#include <utility>

namespace {

CString FileMessage(int osError, const CString& fileName)
{
    CString message = fileName;
    if (osError != 0) {
        message += L": " + ReasonOf(osError);
    }
    return message;
}

CFileException::Cause CauseOf(int osError)
{
    if (IsDiskFull(osError)) {
        return CFileException::Cause::diskFull;
    }
    switch (osError) {
    case ENOENT:
        return CFileException::Cause::fileNotFound;
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
        return CFileException::Cause::badPath;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
        return CFileException::Cause::accessDenied;
    case EIO:
        return CFileException::Cause::hardIO;
    default:
        return CFileException::Cause::generic;
    }
}

CString ArchiveMessage(CArchiveException::Cause cause)
{
    switch (cause) {
    case CArchiveException::Cause::endOfFile:
        return L"Fine dell'archivio inattesa.";
    case CArchiveException::Cause::damaged:
        return L"L'archivio è danneggiato.";
    case CArchiveException::Cause::badClass:
        return L"L'archivio contiene un oggetto di un altro tipo.";
    case CArchiveException::Cause::badSchema:
        return L"L'archivio proviene da una versione più recente.";
    }
    return {};
}

} // namespace

CException::CException(CString message)
    : m_message(std::move(message)), m_what(Utf8FromWide(m_message))
{
}

CInvalidArgException::CInvalidArgException() : CException(L"Argomento non valido.") {}

CInvalidArgException::CInvalidArgException(CString message) : CException(std::move(message)) {}

CFileException::CFileException(Cause cause, int osError, const CString& fileName)
    : CException(FileMessage(osError, fileName)), m_cause(cause), m_osError(osError),
      m_fileName(fileName)
{
}

CFileException CFileException::FromErrno(int osError, const CString& fileName)
{
    return {CauseOf(osError), osError, fileName};
}

CArchiveException::CArchiveException(Cause cause)
    : CException(ArchiveMessage(cause)), m_cause(cause)
{
}
