#pragma once

#include <string>

namespace c_interface {

/// Has the module's words for what a silent call does not find kept from now on, the former ones
/// forgotten.
void ForgetDiagnosis();

/// They, in UTF-8, one reason a line; `otherwise` if there are none.
std::string LastDiagnosis(const std::string& otherwise);

} // namespace c_interface
