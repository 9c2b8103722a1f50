// Reaching a gauge's images by their chain number: e0 is the background, each
// eN the first child of e(N-1).
#pragma once

#include "frame/gauge_abi.h"

namespace kestrane {

// What a declared gauge's `elements` points at: the host's one-entry list,
// then the chain by number, filled when the gauge is linked, so that eN is
// one look-up instead of a walk down N first children.
struct ChainIndex {
    Element* root[2];  // the background, then null
    Element* const* chain;
    int count;
};

inline const ChainIndex* chain_index(GaugeHeader* gauge) {
    return reinterpret_cast<const ChainIndex*>(gauge->elements);
}

inline Element* element(GaugeHeader* gauge, int n) {
    if (gauge == nullptr || gauge->elements == nullptr)
        return nullptr;
    if (n <= 0)
        return gauge->elements[0];
    const ChainIndex* index = chain_index(gauge);
    return n < index->count ? index->chain[n] : nullptr;
}

// Shows or hides image eN of a gauge's own callback: `gauge` is the
// callback's argument (never null, its index linked at load); a number
// outside the chain is ignored. The hot path of every cycle: one bounds check
// and the flag.
inline void show(GaugeHeader* gauge, int n, bool shown) {
    const ChainIndex* index = chain_index(gauge);
    if (static_cast<unsigned>(n) >= static_cast<unsigned>(index->count))
        return;
    // the chain array lies right after the index (GaugeParts)
    Element* e = reinterpret_cast<Element* const*>(index + 1)[n];
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
