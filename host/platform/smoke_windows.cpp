// kestrane-smoke: loads the Windows module with the system's own DirectSound
// and checks its sounds from the outside: the panel toggle installed, every
// buffer created with the format, volume and sample data of its resource, a
// switch click played, every buffer released on removal, the library
// unloaded. Prints one line a check and exits non-zero on any failure.
#include <dsound.h>
#include <windows.h>

#include <cstdio>
#include <cstring>
#include <string>

#include "frame/gauge_abi.h"
#include "frame/wave.h"
#include "host/platform/library.h"

namespace {

using namespace kestrane;

int g_failed = 0;
int g_passed = 0;

void check(bool ok, const std::string& what) {
    std::printf("%s: %s\n", ok ? "ok" : "FAILED", what.c_str());
    ++(ok ? g_passed : g_failed);
}

// The host side the module needs: tokens and named variables read as zero,
// events and windows accepted.
void KCALL lookup_var(ModuleVar* v) {
    if (v != nullptr) {
        v->previous = v->value.n;
        std::memset(v->value.raw, 0, sizeof v->value.raw);
    }
}
void KCALL key_event(u32, u32) {}
u32 KCALL window_toggle(u32) {
    return 1;
}
u32 KCALL register_named(const char*) {
    return 1;
}
f64 KCALL get_named(u32) {
    return 0.0;
}
void KCALL set_named(u32, f64) {}
u32 KCALL calc(const char*, f64* result, i32* iresult, const char** sresult) {
    if (result)
        *result = 0.0;
    if (iresult)
        *iresult = 0;
    if (sresult)
        *sresult = nullptr;
    return 0;
}
void KCALL element_1(Element*) {}
void KCALL element_2(Element*, std::uintptr_t) {}

GaugeHeader* find_gauge(ModuleLinkage* linkage, const char* name) {
    for (int i = 0; i < 220 && linkage->gauges[i] != nullptr; ++i)
        if (std::strcmp(linkage->gauges[i]->name, name) == 0)
            return linkage->gauges[i];
    return nullptr;
}

IDirectSoundBuffer* buffer(const SoundTable* sounds, u32 i) {
    return static_cast<IDirectSoundBuffer* const*>(sounds->handles)[i];
}

// A buffer against the resource it was made from: format, volume, data.
void check_buffer(HMODULE module, const SoundTable* sounds, u32 i) {
    const std::string name = sounds->names[i];
    IDirectSoundBuffer* b = buffer(sounds, i);
    if (b == nullptr) {
        check(false, name + " created");
        return;
    }
    HRSRC found = FindResourceA(module, name.c_str(), MAKEINTRESOURCEA(10));
    HGLOBAL loaded = found ? LoadResource(module, found) : nullptr;
    const auto* riff = static_cast<const u8*>(loaded ? LockResource(loaded) : nullptr);
    WaveView wave;
    if (riff == nullptr || !parse_wave(riff, SizeofResource(module, found), wave)) {
        check(false, name + " resource readable");
        return;
    }
    WAVEFORMATEX want{};
    std::memcpy(&want, wave.format, wave.format_size < 16 ? wave.format_size : 16);
    WAVEFORMATEX got{};
    DWORD written = 0;
    const bool format_ok = SUCCEEDED(b->GetFormat(&got, sizeof got, &written)) &&
                           got.wFormatTag == want.wFormatTag && got.nChannels == want.nChannels &&
                           got.nSamplesPerSec == want.nSamplesPerSec &&
                           got.wBitsPerSample == want.wBitsPerSample;
    LONG volume = 1;
    const bool volume_ok = SUCCEEDED(b->GetVolume(&volume)) && volume == sounds->volumes[i];
    void* p1 = nullptr;
    void* p2 = nullptr;
    DWORD n1 = 0, n2 = 0;
    bool data_ok = false;
    if (SUCCEEDED(b->Lock(0, 0, &p1, &n1, &p2, &n2, DSBLOCK_ENTIREBUFFER))) {
        data_ok = n1 == wave.data_size && std::memcmp(p1, wave.data, wave.data_size) == 0;
        b->Unlock(p1, n1, p2, n2);
    }
    char text[160];
    std::snprintf(text, sizeof text, "%s created: %u Hz, %u channel(s), %u bits, volume %ld, %u bytes",
                  name.c_str(), static_cast<unsigned>(got.nSamplesPerSec),
                  static_cast<unsigned>(got.nChannels), static_cast<unsigned>(got.wBitsPerSample),
                  static_cast<long>(volume), static_cast<unsigned>(n1));
    check(format_ok && volume_ok && data_ok, std::string(text) + (format_ok ? "" : " [format differs]") +
                                                 (volume_ok ? "" : " [volume differs]") +
                                                 (data_ok ? "" : " [data differs]"));
}

// Every left-click area of `g`, once each.
void click_all(GaugeHeader* g) {
    for (MouseRect* r = g->mouse; r != nullptr && r->row != kRowEnd; ++r) {
        if (r->row == kRowChild && (r->flags & kMouseLeft) != 0 && r->u.handler != nullptr) {
            PixPoint p{r->x + r->w / 2, r->y + r->h / 2};
            r->u.handler(&p, kMouseLeft);
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: kestrane-smoke MODULE.dll\n");
        return 2;
    }
    std::string error;
    void* library = host::platform::load_library(argv[1], error);
    if (library == nullptr) {
        std::fprintf(stderr, "cannot load module %s: %s\n", argv[1], error.c_str());
        return 2;
    }
    HMODULE module = static_cast<HMODULE>(library);
    auto* linkage = static_cast<ModuleLinkage*>(host::platform::find_symbol(library, "Linkage"));
    auto* imports = static_cast<ModuleImports*>(host::platform::find_symbol(library, "ImportTable"));
    auto* sounds = static_cast<const SoundTable*>(host::platform::find_symbol(library, "KestraneSounds"));
    if (linkage == nullptr || imports == nullptr || sounds == nullptr) {
        std::fprintf(stderr, "%s exports no Linkage, ImportTable or KestraneSounds\n", argv[1]);
        return 2;
    }
    HostServices services{};
    services.version = 1;
    services.lookup_var = lookup_var;
    services.trigger_key_event = key_event;
    services.panel_window_toggle = window_toggle;
    services.register_named_variable = register_named;
    services.get_named_variable_value = get_named;
    services.set_named_variable_value = set_named;
    services.execute_calculator_code = calc;
    services.element_list_query = element_1;
    services.element_list_install = element_2;
    services.element_list_initialize = element_1;
    services.element_list_update = element_1;
    services.element_list_generate = element_2;
    services.element_list_plot = element_1;
    services.element_list_kill = element_1;
    imports->entries[0].ptr = &services;

    // A device of our own keeps the system's device alive after the module
    // lets go of it, so that its buffers can be counted after removal.
    IDirectSound8* own = nullptr;
    check(SUCCEEDED(DirectSoundCreate8(nullptr, &own, nullptr)) && own != nullptr,
          "system DirectSound device");

    GaugeHeader* toggle = find_gauge(linkage, "kestrane toggle_pan_tadg");
    GaugeHeader* trim = find_gauge(linkage, "kestrane fdtrim_jm47");
    if (toggle == nullptr || trim == nullptr || toggle->callback == nullptr) {
        std::fprintf(stderr, "the module lacks the panel toggle or the pitch-reference knob\n");
        return 2;
    }
    toggle->callback(toggle, 2, reinterpret_cast<std::uintptr_t>(module));
    if (trim->callback)
        trim->callback(trim, 2, reinterpret_cast<std::uintptr_t>(module));
    check(sounds->count == 19, "the module names 19 sounds (" + std::to_string(sounds->count) + ")");
    for (u32 i = 0; i < sounds->count; ++i)
        check_buffer(module, sounds, i);
    for (int cycle = 0; cycle < 18; ++cycle) {
        toggle->callback(toggle, 6, 0);
        if (trim->callback)
            trim->callback(trim, 6, 0);
    }

    u32 click = sounds->count;
    for (u32 i = 0; i < sounds->count; ++i)
        if (std::strcmp(sounds->names[i], "CLICK") == 0)
            click = i;
    if (click < sounds->count && buffer(sounds, click) != nullptr) {
        IDirectSoundBuffer* b = buffer(sounds, click);
        DWORD before = 0;
        b->GetStatus(&before);
        click_all(trim);
        DWORD after = 0;
        const bool status_ok = SUCCEEDED(b->GetStatus(&after));
        check(status_ok && (before & DSBSTATUS_PLAYING) == 0 && (after & DSBSTATUS_PLAYING) != 0,
              "CLICK plays when the pitch-reference knob is turned");
    } else {
        check(false, "CLICK loaded");
    }

    // One extra reference on each buffer: after removal each must be the last.
    IDirectSoundBuffer* held[32] = {};
    const u32 count = sounds->count < 32 ? sounds->count : 32;
    for (u32 i = 0; i < count; ++i)
        if ((held[i] = buffer(sounds, i)) != nullptr)
            held[i]->AddRef();
    if (trim->callback)
        trim->callback(trim, 12, 0);
    toggle->callback(toggle, 12, 0);
    int table_cleared = 0;
    int released = 0;
    for (u32 i = 0; i < count; ++i) {
        if (buffer(sounds, i) == nullptr)
            ++table_cleared;
        if (held[i] != nullptr && held[i]->Release() == 0)
            ++released;
    }
    check(table_cleared == static_cast<int>(count), "removal forgets every buffer (" +
                                                        std::to_string(table_cleared) + " of " +
                                                        std::to_string(count) + ")");
    check(released == static_cast<int>(count), "removal releases every buffer once (" +
                                                   std::to_string(released) + " of " + std::to_string(count) +
                                                   ")");
    if (own != nullptr)
        own->Release();

    imports->entries[0].ptr = nullptr;
    host::platform::unload_library(library);
    char path[MAX_PATH];
    check(GetModuleFileNameA(module, path, sizeof path) == 0, "the library unloaded");
    std::printf("%d passed, %d failed\n", g_passed, g_failed);
    return g_failed == 0 ? 0 : 1;
}
