#include "frame/elements.h"

#if defined(KESTRANE_CHECKED_CHAIN)
#include <cstdio>
#include <cstdlib>

namespace kestrane {

void chain_fault(GaugeHeader* gauge, int n) {
    std::fprintf(stderr, "kestrane: gauge \"%s\" shows e%d, outside its chain of %zu images\n",
                 gauge->name != nullptr ? gauge->name : "?", n, chain_index(gauge)->count);
    std::abort();
}

}  // namespace kestrane
#endif
