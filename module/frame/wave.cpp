#include "frame/wave.h"

namespace kestrane {

namespace {
u32 le32(const u8* p) {
    return static_cast<u32>(p[0]) | static_cast<u32>(p[1]) << 8 | static_cast<u32>(p[2]) << 16 |
           static_cast<u32>(p[3]) << 24;
}
bool is(const u8* p, const char* id) {
    return p[0] == static_cast<u8>(id[0]) && p[1] == static_cast<u8>(id[1]) &&
           p[2] == static_cast<u8>(id[2]) && p[3] == static_cast<u8>(id[3]);
}
}  // namespace

bool parse_wave(const u8* riff, std::size_t size, WaveView& out) {
    out = WaveView{};
    if (riff == nullptr || size < 12)
        return false;
    if (!is(riff, "RIFF") || !is(riff + 8, "WAVE"))
        return false;
    // The walk ends 8 + L bytes from the start, or at the end of what we hold.
    std::size_t end = 8 + static_cast<std::size_t>(le32(riff + 4));
    if (end > size)
        end = size;
    std::size_t pos = 12;
    bool have_format = false;
    bool have_data = false;
    while (pos < end && end - pos >= 8) {
        const u8* chunk = riff + pos;
        const std::size_t n = le32(chunk + 4);
        const std::size_t body = pos + 8;
        const bool fits = n <= size - body;
        if (is(chunk, "fmt ") && !have_format) {
            if (n < 14 || !fits)
                break;
            out.format = chunk + 8;
            out.format_size = static_cast<u32>(n);
            have_format = true;
            if (have_data)
                return true;
        } else if (is(chunk, "data") && !have_data) {
            if (!fits)
                break;
            out.data = chunk + 8;
            out.data_size = static_cast<u32>(n);
            have_data = true;
            if (have_format)
                return true;
        }
        // Chunks are padded to an even length.
        const std::size_t step = n + (n & 1);
        if (step >= end - body)
            break;
        pos = body + step;
    }
    out = WaveView{};
    return false;
}

}  // namespace kestrane
