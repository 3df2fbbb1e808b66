#pragma once

#include "host/host_diagnosis.h"
#include "platform/text.h"

#include <vector>

struct CDiagnosis
{
    HostDiagnosis reason;
    CString text;
};

/// Is the module's listener as long as it lives. One at a time.
class CDiagnosisLog
{
public:
    CDiagnosisLog();
    ~CDiagnosisLog();

    CDiagnosisLog(const CDiagnosisLog&) = delete;
    CDiagnosisLog& operator=(const CDiagnosisLog&) = delete;

    /// What was told since the last call, in its order.
    static std::vector<CDiagnosis> Take();
};
