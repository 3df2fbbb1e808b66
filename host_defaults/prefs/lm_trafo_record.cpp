#include "host/drawing_records.h"

LM_TRAFO::LM_TRAFO() : Achsen{{{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}}, Ursprung{} {}
LM_TRAFO::LM_TRAFO(const LM_TRAFO&) = default;
LM_TRAFO& LM_TRAFO::operator=(const LM_TRAFO&) = default;
LM_TRAFO::~LM_TRAFO() = default;
