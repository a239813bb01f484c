#include "velto/wire/Envelope.h"

#include <cstdint>
#include <cstdlib>

using namespace Velto::Wire;

// Whatever is taken must come out the same after another turn over the line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    DecodedFrame decoded;
    if (decodeFrame(input, decoded) != FrameError::None)
        return 0;
    const auto frame = encodeFrame(decoded.header, decoded.body);
    if (!frame)
        return 0; // escapes may have grown the header over its limit
    DecodedFrame again;
    const bool same = decodeFrame(*frame, again) == FrameError::None &&
                      again.header.kind == decoded.header.kind && again.header.type == decoded.header.type &&
                      again.header.number == decoded.header.number &&
                      again.header.text == decoded.header.text &&
                      again.header.status == decoded.header.status && again.body == decoded.body;
    if (!same)
        std::abort();
    return 0;
}
