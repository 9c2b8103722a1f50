#include "wave_file.h"

#include <algorithm>
#include <cmath>
#include <fstream>

namespace {

void put16(std::vector<std::uint8_t>& b, std::uint16_t v) {
    b.push_back(v & 0xFF);
    b.push_back(v >> 8);
}
void put32(std::vector<std::uint8_t>& b, std::uint32_t v) {
    for (int i = 0; i < 4; ++i)
        b.push_back((v >> (8 * i)) & 0xFF);
}
void put_text(std::vector<std::uint8_t>& b, const std::string& text) {
    for (char ch : text)
        b.push_back(static_cast<std::uint8_t>(ch));
}
void put_chunk(std::vector<std::uint8_t>& file, const Chunk& c) {
    put_text(file, c.id);
    put32(file, static_cast<std::uint32_t>(c.body.size()));
    file.insert(file.end(), c.body.begin(), c.body.end());
    if (c.body.size() & 1)
        file.push_back(0);
}

std::vector<std::uint8_t> samples(const Channels& c, const Format& f, std::size_t bytes) {
    std::vector<std::uint8_t> out;
    out.reserve(bytes + 2);
    std::size_t frames = c[0].size();
    for (std::size_t i = 0; i < frames; ++i)
        for (int ch = 0; ch < f.channels; ++ch) {
            double x = std::clamp(c[std::min<std::size_t>(ch, c.size() - 1)][i], -1.0, 1.0);
            if (f.bits == 8) {
                out.push_back(static_cast<std::uint8_t>(std::lround(128 + x * 127)));
            } else {
                put16(out, static_cast<std::uint16_t>(static_cast<std::int16_t>(std::lround(x * 32767))));
            }
        }
    out.resize(bytes, f.bits == 8 ? 128 : 0);
    return out;
}

}  // namespace

Chunk list_info(const char* comment) {
    Chunk c{"LIST", {}};
    put_text(c.body, "INFO");
    std::string text = comment;
    text.push_back('\0');
    put_text(c.body, "ISFT");
    put32(c.body, static_cast<std::uint32_t>(text.size()));
    put_text(c.body, text);
    if (text.size() & 1)
        c.body.push_back(0);
    return c;
}

Chunk smpl_loop(const Format& f, std::uint32_t frames) {
    Chunk c{"smpl", {}};
    put32(c.body, 0);                                                  // manufacturer
    put32(c.body, 0);                                                  // product
    put32(c.body, static_cast<std::uint32_t>(1000000000.0 / f.rate));  // sample period, ns
    put32(c.body, 60);                                                 // MIDI unity note
    put32(c.body, 0);                                                  // pitch fraction
    put32(c.body, 0);                                                  // SMPTE format
    put32(c.body, 0);                                                  // SMPTE offset
    put32(c.body, 1);                                                  // one loop
    put32(c.body, 0);                                                  // sampler data
    put32(c.body, 0);                                                  // cue id
    put32(c.body, 0);                                                  // forward loop
    put32(c.body, 0);                                                  // start
    put32(c.body, frames - 1);                                         // end
    put32(c.body, 0);                                                  // fraction
    put32(c.body, 0);                                                  // endless
    return c;
}

bool write_wave(const std::string& path, const SoundDef& s, const Channels& c,
                const std::vector<Chunk>& before_data, const std::vector<Chunk>& after_data) {
    const Format& f = s.format;
    Chunk fmt{"fmt ", {}};
    const int block = f.channels * f.bits / 8;
    put16(fmt.body, 1);
    put16(fmt.body, static_cast<std::uint16_t>(f.channels));
    put32(fmt.body, static_cast<std::uint32_t>(f.rate));
    put32(fmt.body, static_cast<std::uint32_t>(f.rate * block));
    put16(fmt.body, static_cast<std::uint16_t>(block));
    put16(fmt.body, static_cast<std::uint16_t>(f.bits));
    std::vector<std::uint8_t> body;
    put_text(body, "WAVE");
    put_chunk(body, fmt);
    for (const Chunk& k : before_data)
        put_chunk(body, k);
    put_chunk(body, Chunk{"data", samples(c, f, s.data_bytes)});
    for (const Chunk& k : after_data)
        put_chunk(body, k);
    std::vector<std::uint8_t> file{'R', 'I', 'F', 'F'};
    put32(file, static_cast<std::uint32_t>(body.size()));
    file.insert(file.end(), body.begin(), body.end());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
    return static_cast<bool>(out);
}
