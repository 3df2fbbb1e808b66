#pragma once

#include "platform/text.h"

/// Lengths as the user sees them. Internally they are metres; the drawing and the user each have a
/// unit of metre, centimetre or millimetre, which is asked from the host's settings on first use
/// and kept for the process until ResetUnits().

/// Forgets the units, so that the next use asks for them again. Dialogs that show lengths call it
/// when they open.
void ResetUnits();

/// "m", "cm" or "mm", in square brackets if asked for.
CString GetUnitText(bool brackets);

/// A length in metres as a number in the user's unit: three decimals for metres, two for
/// centimetres, one for millimetres.
CString MeterToText(double meters);

/// The length in metres that a typed number in the user's unit stands for; comma or point. A text
/// without a number gives 0.0.
double TextToMeter(const CString& text);
