// RIFF/WAVE parsing: finds the "fmt " and "data" chunks of a wave held in
// memory, never reading outside the `size` bytes it is given.
#pragma once

#include <cstddef>

#include "frame/gauge_abi.h"

namespace kestrane {

struct WaveView {
    const u8* format = nullptr;  // contents of the "fmt " chunk
    u32 format_size = 0;
    const u8* data = nullptr;  // sample data
    u32 data_size = 0;
};

bool parse_wave(const u8* riff, std::size_t size, WaveView& out);

}  // namespace kestrane
