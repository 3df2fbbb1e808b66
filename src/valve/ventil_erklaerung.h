#pragma once

#include "platform/text.h"

/// Why a fetched valve is not there, told to the host's listener (host/host_diagnosis.h). Without a
/// listener nothing is done.

/// For a first key that is not well-formed.
void ErklaereSchluessel(const CString& hersteller, const CString& ventilNr);

/// For a well-formed key without a valve: reads the maker's file once more.
void ErklaereFehlendesVentil(const CString& hersteller, const CString& ventilNr);
