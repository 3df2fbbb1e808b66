#include "workbench/program/console.h"

#include "platform/encoding.h"

#include <ostream>

namespace workbench {

ExitCode Report(std::ostream& err, const CString& message, ExitCode code)
{
    err << Utf8FromWide(L"radsel_workbench: " + message) << '\n';
    return code;
}

ExitCode Show(const CString& text, ExitCode code, std::ostream& out, std::ostream& err)
{
    out << Utf8FromWide(text) << std::flush;
    return out ? code
               : Report(err, L"l'uscita standard non è scrivibile", ExitCode::outputNotWritable);
}

} // namespace workbench
