#include "platform/line_text.h"

#include <algorithm>

std::size_t CLineText::FindEither(char a, char b, std::size_t from) const
{
    // Both stand for themselves in every width, and no byte beyond ASCII stands for either.
    return WithText([=, this](const auto* text) {
        const auto* const found = std::find_if(text + from, text + m_size, [=](auto c) {
            return c == static_cast<decltype(c)>(a) || c == static_cast<decltype(c)>(b);
        });
        return static_cast<std::size_t>(found - text);
    });
}

CString CLineText::Widen() const
{
    CString wide(m_size, L'\0');
    WithText([&](const auto* text) {
        std::transform(text, text + m_size, wide.begin(), [](auto c) { return Character(c); });
    });
    return wide;
}
