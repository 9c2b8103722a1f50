// Reaching a gauge's images by their chain number: e0 is the background, each
// eN the first child of e(N-1).
#pragma once

#include <cstddef>

#include "frame/gauge_abi.h"

namespace kestrane {

// What a declared gauge's `elements` points at: the host's one-entry list
// and the chain's length, filled when the gauge is linked. The chain's
// elements themselves follow the index, e0 first, so that eN is one offset
// instead of a walk down N first children.
struct alignas(Element) ChainIndex {  // aligned so that e0 follows it at once
    Element* root[2];                 // the background, then null
    std::size_t count;                // not an int: a flag store cannot change it
};

inline const ChainIndex* chain_index(GaugeHeader* gauge) {
    return reinterpret_cast<const ChainIndex*>(gauge->elements);
}

// eN of a linked gauge, n within its chain (GaugeParts).
inline Element* chain_element(const ChainIndex* index, int n) {
    return const_cast<Element*>(reinterpret_cast<const Element*>(index + 1)) + n;
}

inline Element* element(GaugeHeader* gauge, int n) {
    if (gauge == nullptr || gauge->elements == nullptr)
        return nullptr;
    if (n <= 0)
        return gauge->elements[0];
    const ChainIndex* index = chain_index(gauge);
    return static_cast<std::size_t>(n) < index->count ? chain_element(index, n) : nullptr;
}

#if defined(KESTRANE_CHECKED_CHAIN)
// Checked builds stop at once on an image number outside the gauge's chain:
// it names the gauge and the number (frame/elements.cpp).
[[noreturn]] void chain_fault(GaugeHeader* gauge, int n);
#endif

// Shows or hides image eN of a gauge's own callback: `gauge` is the
// callback's argument (never null, its index linked at load). The hot path of
// every cycle: the flag, and a bounds check only where the number is computed
// at run time (outside the chain: ignored). A number the compiler knows is
// part of the code, the same on every run: checked builds (the sanitizer
// build, which runs every scenario and the storm) stop on one outside the
// chain, so release builds take it as it is.
inline void show(GaugeHeader* gauge, int n, bool shown) {
    const ChainIndex* index = chain_index(gauge);
#if defined(KESTRANE_CHECKED_CHAIN)
    if (static_cast<std::size_t>(n) >= index->count)
        chain_fault(gauge, n);
#elif defined(__GNUC__)
    if (!(__builtin_constant_p(n) && n >= 0) && static_cast<std::size_t>(n) >= index->count)
        return;
#else
    if (static_cast<std::size_t>(n) >= index->count)
        return;
#endif
    Element* e = chain_element(index, n);
    if (shown)
        e->flags &= ~kHidden;
    else
        e->flags |= kHidden;
}

inline bool is_shown(GaugeHeader* gauge, int n) {
    Element* e = element(gauge, n);
    return e != nullptr && (e->flags & kHidden) == 0;
}

}  // namespace kestrane
