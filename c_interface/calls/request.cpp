#include "c_interface/calls/request.h"

#include "c_interface/host/catalogue.h"
#include "c_interface/host/diagnosis.h"
#include "c_interface/records/call_fault.h"
#include "c_interface/records/records.h"
#include "c_interface/records/sized_record.h"
#include "platform/encoding.h"

namespace c_interface {

CRequest::CRequest(radsel_request* request) : m_request(request)
{
    FromC(Load(request, DefaultRequest()), m_data);
    ForgetDiagnosis();
}

int CRequest::Finish(int result, const std::function<void()>& give, const char* otherwise)
{
    if (result == RADSEL_NOTHING) {
        RequireCatalogue(m_data.Hersteller);
        KeepReason({LastDiagnosis(otherwise), {}, 0});
    }
    radsel_request record = DefaultRequest();
    ToC(m_data, record);
    Store(m_request, record);
    if (give) {
        give();
    }
    return result;
}

void RequireCatalogue(const CString& maker)
{
    RefuseFault(CatalogueError(maker));
}

void RefuseFault(const std::optional<CFileFault>& fault)
{
    if (fault) {
        throw CCallFault(RADSEL_BAD_FILE, {Utf8FromWide(FormatFileFault(*fault)),
                                           Utf8FromWide(fault->strFile), fault->nLine});
    }
}

} // namespace c_interface
