// Module resources: the sound waves stored inside the library, and files of
// the current folder mapped read-only as a fallback.
#pragma once

#include <cstddef>
#include <cstdint>

#include "frame/gauge_abi.h"

namespace kestrane {

struct Blob {
    const u8* data = nullptr;
    std::size_t size = 0;
};

// A raw-data resource (type 10) of the module, by name.
bool find_raw_resource(std::uintptr_t instance, const char* name, Blob& out);

// A whole file of the current folder, mapped read-only; the file itself is
// closed once the view exists.
struct MappedFile {
    Blob view;
};
bool map_file(const char* name, MappedFile& out);
void unmap_file(MappedFile& file);

}  // namespace kestrane
