#include "c_interface/host/diagnosis.h"

#include "common/diagnosis.h"

namespace c_interface {

namespace {

std::string& Words()
{
    static std::string words;
    return words;
}

void Keep(int /*reason*/, const char* text)
{
    std::string& words = Words();
    words += words.empty() ? "" : "\n";
    words += text;
}

} // namespace

void ForgetDiagnosis()
{
    SetDiagnosisListener(Keep);
    Words().clear();
}

std::string LastDiagnosis(const std::string& otherwise)
{
    return Words().empty() ? otherwise : Words();
}

} // namespace c_interface
