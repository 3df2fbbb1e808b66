#include "platform/decimal.h"

#ifdef __cpp_lib_to_chars

std::from_chars_result FromChars(const char* first, const char* last, double& value)
{
    return std::from_chars(first, last, value);
}

#else

#include <cctype>
#include <cmath>
#include <cstdlib>
#include <locale.h>
#include <string>

namespace {

locale_t LocaleOfNumbers()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

/// The C library reads blanks, a plus sign and hexadecimal digits as well.
bool StartsOtherwise(const std::string& text)
{
    const std::size_t digits = text.starts_with('-') ? 1 : 0;
    return text.size() <= digits || text[digits] == '+' || text[digits] == '-' ||
           std::isspace(static_cast<unsigned char>(text[digits])) != 0;
}

std::string WithoutHexadecimal(std::string text)
{
    return text.substr(0, text.find_first_of("xX"));
}

} // namespace

std::from_chars_result FromChars(const char* first, const char* last, double& value)
{
    const std::string text = WithoutHexadecimal(std::string(first, last));
    if (StartsOtherwise(text)) {
        return {first, std::errc::invalid_argument};
    }
    char* end = nullptr;
    errno = 0;
    const double read = strtod_l(text.c_str(), &end, LocaleOfNumbers());
    if (end == text.c_str()) {
        return {first, std::errc::invalid_argument};
    }
    const char* const behind = first + (end - text.c_str());
    // A number that is merely too small for all its digits is as near as a double comes.
    if (errno == ERANGE && (read == 0.0 || std::isinf(read))) {
        return {behind, std::errc::result_out_of_range};
    }
    value = read;
    return {behind, std::errc()};
}

#endif
