// Reaching a gauge's images by their chain number: e0 is the background, each
// eN the first child of e(N-1).
#pragma once

#include "frame/gauge_abi.h"

namespace kestrane {

inline Element* element(GaugeHeader* gauge, int n) {
    if (gauge == nullptr || gauge->elements == nullptr)
        return nullptr;
    Element* e = gauge->elements[0];
    for (int i = 0; i < n && e != nullptr; ++i)
        e = e->children ? e->children[0] : nullptr;
    return e;
}

inline void show(GaugeHeader* gauge, int n, bool shown) {
    if (Element* e = element(gauge, n)) {
        if (shown)
            e->flags &= ~kHidden;
        else
            e->flags |= kHidden;
    }
}

inline bool is_shown(GaugeHeader* gauge, int n) {
    Element* e = element(gauge, n);
    return e != nullptr && (e->flags & kHidden) == 0;
}

}  // namespace kestrane
