// Writing the module's sounds as RIFF wave files: the format, the chunks
// around "data" and the samples cut or padded to an exact data length.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

struct Format {
    int channels;
    int rate;
    int bits;
};

struct Chunk {
    std::string id;
    std::vector<std::uint8_t> body;
};

// One sound: name, format, data length, extra chunks before or after "data".
struct SoundDef {
    const char* name;
    Format format;
    std::size_t data_bytes;
};

using Channels = std::vector<std::vector<double>>;

// A LIST/INFO chunk holding one ISFT comment.
Chunk list_info(const char* comment);
// A sampler chunk with one forward loop over `frames`.
Chunk smpl_loop(const Format& f, std::uint32_t frames);
// Writes the wave; false when the file cannot be written.
bool write_wave(const std::string& path, const SoundDef& s, const Channels& c,
                const std::vector<Chunk>& before_data, const std::vector<Chunk>& after_data);
