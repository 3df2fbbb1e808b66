#pragma once

#include "host/host_diagnosis.h"
#include "platform/text.h"

/// True if the host of this process wants to be told why a call found nothing. Looked for once a
/// process; whoever composes a text asks first.
bool HasDiagnosisListener();

/// Puts a listener in the place of the one that would be looked for, for a library that holds
/// module and host and offers the names of neither; null lets it be looked for again.
void SetDiagnosisListener(HostDiagnosisFunction listener);

/// Tells the host's listener, if there is one.
void TellDiagnosis(HostDiagnosis reason, const CString& text);
