#include "tests/support/diagnosis_log.h"

#include "common/diagnosis.h"
#include "platform/encoding.h"

#include <utility>

namespace {

std::vector<CDiagnosis> g_told;

void Keep(int reason, const char* text)
{
    g_told.push_back({static_cast<HostDiagnosis>(reason), WideFromUtf8(text)});
}

} // namespace

CDiagnosisLog::CDiagnosisLog()
{
    g_told.clear();
    SetDiagnosisListener(Keep);
}

CDiagnosisLog::~CDiagnosisLog()
{
    SetDiagnosisListener(nullptr);
}

std::vector<CDiagnosis> CDiagnosisLog::Take()
{
    return std::exchange(g_told, {});
}
