#pragma once

namespace c_interface {

/// Whether messages for the user go to the host's show_message or as the module shows them.
void ShowMessagesThroughHost(bool throughHost);

} // namespace c_interface
