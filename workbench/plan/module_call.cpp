#include "workbench/plan/module_call.h"

#include "platform/encoding.h"
#include "platform/exception.h"
#include "platform/file_fault.h"
#include "reference_host/catalog/catalogue_errors.h"

#include <new>
#include <utility>

namespace workbench {

namespace {

/// Why the exception that is being handled was raised.
CString ReasonOfException()
{
    try {
        throw;
    } catch (const CException& error) {
        return error.GetErrorMessage();
    } catch (const std::bad_alloc&) {
        return L"la memoria non basta";
    } catch (const std::exception& error) {
        return WideFromUtf8(error.what());
    }
}

} // namespace

CModuleFault::CModuleFault(CString message)
    : m_message(std::move(message)), m_what(Utf8FromWide(m_message))
{
}

void RaiseModuleFault(const CString& asked)
{
    throw CModuleFault(asked + L": " + ReasonOfException());
}

void RequireReadCatalogue(const CString& hersteller)
{
    if (const auto fault = reference_host::GetCatalogueError(hersteller)) {
        throw CModuleFault(FormatFileFault(*fault));
    }
}

} // namespace workbench
