#pragma once

#include <cstddef>
#include <string_view>

namespace Velto::Wire {

/// The longest beginning of a UTF-8 text that has at most `maximum` bytes and splits no character.
inline std::string_view cutAtCharacter(std::string_view text, std::size_t maximum) {
    if (text.size() <= maximum)
        return text;
    const auto continues = [&text](std::size_t at) {
        return (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
    };
    while (maximum > 0 && continues(maximum))
        --maximum;
    return text.substr(0, maximum);
}

} // namespace Velto::Wire
