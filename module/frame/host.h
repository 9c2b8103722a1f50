// Thin wrappers over the host's service table. Before the host has written
// its table into ImportTable every call does nothing and returns 0; a written
// table is the host's whole record, every service filled.
#pragma once

#include "frame/gauge_abi.h"

#if !defined(_WIN32)
// ImportTable under a name of the library's own: read without a trip through
// the symbol table (linkage.cpp).
extern "C" __attribute__((visibility("hidden"))) kestrane::ModuleImports kestrane_imports;
#define KESTRANE_IMPORTS kestrane_imports
#else
#define KESTRANE_IMPORTS ImportTable
#endif

namespace kestrane {

// Service ids the gauge callbacks act on.
inline constexpr u32 kServiceInstall = 2;
inline constexpr u32 kServiceUpdate = 6;
inline constexpr u32 kServiceKill = 12;

namespace host {

inline const HostServices* services() {
    return static_cast<const HostServices*>(KESTRANE_IMPORTS.entries[0].ptr);
}

// Refreshes a token variable and returns its value as a number. Inline: the
// gauges read a few hundred tokens a cycle.
inline f64 read(ModuleVar& var) {
    const HostServices* s = services();
    if (s == nullptr)
        return 0.0;
    s->lookup_var(&var);
    return var.value.n;
}
// Refreshes a token variable and returns the 32-bit whole number in its first
// four bytes (radio frequencies in BCD).
u32 read_bcd(ModuleVar& var);

void send_event(u32 event, u32 value = 0);
u32 window_toggle(u32 ident);

f64 named_get(const char* name);
void named_set(const char* name, f64 value);

f64 calc(const char* expression);

}  // namespace host
}  // namespace kestrane
