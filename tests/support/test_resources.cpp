// Resources of the test build of the module: LO is embedded but corrupt (its
// "fmt " chunk is too short), every other sound is missing, so that the
// player has to fall back to files of the current folder.
#include <cstddef>

#include "frame/gauge_abi.h"

namespace kestrane {

struct EmbeddedResource {
    const char* name;
    const u8* begin;
    const u8* end;
};

namespace {
// RIFF/WAVE with a 12-byte "fmt " chunk before a good "data" chunk.
const u8 kShortFormat[] = {'R', 'I', 'F', 'F', 36,  0,   0, 0, 'W', 'A',  'V',  'E', 'f', 'm',  't',
                           ' ', 12,  0,   0,   0,   1,   0, 1, 0,   0x22, 0x56, 0,   0,   0x44, 0xAC,
                           0,   0,   'd', 'a', 't', 'a', 4, 0, 0,   0,    1,    2,   3,   4};
}  // namespace

extern const EmbeddedResource kEmbeddedResources[] = {
    {"LO", kShortFormat, kShortFormat + sizeof kShortFormat},
};
extern const std::size_t kEmbeddedResourceCount = 1;

}  // namespace kestrane
