// Fuzzes the wave parser: whatever the bytes, it reads only inside them and
// what it reports lies inside them.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "frame/wave.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // A copy of exactly `size` bytes, so that any read past the end is caught.
    std::vector<std::uint8_t> bytes(data, data + size);
    kestrane::WaveView w;
    if (kestrane::parse_wave(bytes.data(), bytes.size(), w)) {
        const std::uint8_t* begin = bytes.data();
        const std::uint8_t* end = begin + bytes.size();
        if (w.format < begin || w.format + w.format_size > end || w.format_size < 14)
            std::abort();
        if (w.data < begin || w.data + w.data_size > end)
            std::abort();
        volatile std::uint8_t sink = 0;
        for (std::uint32_t i = 0; i < w.data_size; ++i)
            sink = sink ^ w.data[i];
        for (std::uint32_t i = 0; i < w.format_size; ++i)
            sink = sink ^ w.format[i];
    } else if (w.format || w.data || w.data_size || w.format_size) {
        std::abort();
    }
    return 0;
}
