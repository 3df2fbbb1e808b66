#pragma once

namespace workbench {

/// Makes what dialogs need. A process without a screen ends here, with a message on standard error
/// and ExitCode::noScreen.
void StartWindows();

} // namespace workbench
