// Module linkage: the records the host reads when it loads the library.
#include "frame/gauge_def.h"
#include "frame/host.h"
#include "frame/registry.h"

#if defined(_WIN32)
#include <windows.h>
#endif

namespace kestrane {
namespace {
void KCALL module_init() {}
void KCALL module_deinit() {}

Element* first_background() {
    return Linkage.gauges[0]->elements[0];
}
}  // namespace

// The seven routines every header shares: each hands the diagnostic gauge's
// background to the host's element-list service of the same role.
void KCALL header_query() {
    if (const HostServices* s = host::services())
        s->element_list_query(first_background());
}
void KCALL header_install(std::uintptr_t arg) {
    if (const HostServices* s = host::services())
        s->element_list_install(first_background(), arg);
}
void KCALL header_initialize() {
    if (const HostServices* s = host::services())
        s->element_list_initialize(first_background());
}
void KCALL header_update() {
    if (const HostServices* s = host::services())
        s->element_list_update(first_background());
}
void KCALL header_generate(std::uintptr_t arg) {
    if (const HostServices* s = host::services())
        s->element_list_generate(first_background(), arg);
}
void KCALL header_draw() {
    if (const HostServices* s = host::services())
        s->element_list_plot(first_background());
}
void KCALL header_kill() {
    if (const HostServices* s = host::services())
        s->element_list_kill(first_background());
}

}  // namespace kestrane

using namespace kestrane;

extern "C" {

KEXPORT constinit ModuleLinkage Linkage = {
    0x13,
    module_init,
    module_deinit,
    0,
    0,
    0x900,
    {
#define KESTRANE_REGISTRY(id) &gauges::id,
#include "frame/registry.def"
#undef KESTRANE_REGISTRY
        nullptr,
    },
};

KEXPORT constinit ModuleImports ImportTable = {{{kImportPanels, nullptr}, {0, nullptr}}};
#if !defined(_WIN32)
extern ModuleImports kestrane_imports __attribute__((alias("ImportTable")));
#endif

}  // extern "C"

#if defined(_WIN32)
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD, LPVOID) {
    return TRUE;
}
#endif
