#include "workbench/batch/console.h"

#include "platform/encoding.h"

#include <ostream>

namespace workbench {

namespace {

CString& Name()
{
    static CString name;
    return name;
}

} // namespace

void SetProgramName(const CString& name)
{
    Name() = name;
}

const CString& GetProgramName()
{
    return Name();
}

ExitCode Report(std::ostream& err, const CString& message, ExitCode code)
{
    err << Utf8FromWide(GetProgramName() + L": " + message) << '\n';
    return code;
}

ExitCode Show(const CString& text, ExitCode code, std::ostream& out, std::ostream& err)
{
    out << Utf8FromWide(text) << std::flush;
    return out ? code
               : Report(err, L"l'uscita standard non è scrivibile", ExitCode::outputNotWritable);
}

} // namespace workbench
