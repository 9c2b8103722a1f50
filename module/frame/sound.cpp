#include "frame/sound.h"

#include <cstring>

#include "frame/dsound.h"
#include "frame/resources.h"
#include "frame/state.h"
#include "frame/wave.h"

namespace kestrane::sound {

namespace {

constexpr const char* kNames[kCount] = {"CLICK",          "HI",         "LO",         "GONGMONO",
                                        "KLAXONCONT",     "SONNERIE",   "BRAKESSND",  "CRECELLE",
                                        "KLAXONGEAR",     "CACHEMETAL", "V80KTS",     "V1KTS",
                                        "VRKTS",          "AIRCOND",    "AIRCONDENT", "AIRCONDSORT",
                                        "GPWSGLIDESLOPE", "GPWSPULLUP", "ALTRE"};

// The first 16 sounds follow the master volume; the GPWS voices and the
// altitude chime keep theirs.
constexpr int kMasterSounds = 16;

std::uintptr_t g_instance = 0;
LPDIRECTSOUND8 g_device = nullptr;
LPDIRECTSOUNDBUFFER g_sounds[kCount] = {};
// Volume table, hundredths of a decibel, kept unclamped.
i16 g_volume[kCount] = {-2000, -2600, -2600, -1500, -800,  -1500, -1500, -1500, -1500, -1000,
                        -1000, -1000, -1000, -1000, -1000, -1000, -1000, -1000, -1000};

bool fill(LPDIRECTSOUNDBUFFER buffer, const u8* data, DWORD length) {
    LPVOID part1 = nullptr;
    LPVOID part2 = nullptr;
    DWORD size1 = 0;
    DWORD size2 = 0;
    if (FAILED(IDirectSoundBuffer_Lock(buffer, 0, length, &part1, &size1, &part2, &size2, 0)))
        return false;
    if (size1 > length)
        size1 = length;
    if (part1 != nullptr)
        std::memcpy(part1, data, size1);
    if (part2 != nullptr && size2 > 0) {
        DWORD rest = length - size1;
        std::memcpy(part2, data + size1, size2 < rest ? size2 : rest);
    }
    IDirectSoundBuffer_Unlock(buffer, part1, size1, part2, size2);
    return true;
}

LPDIRECTSOUNDBUFFER create_and_fill(const WaveView& wave) {
    // The "fmt " chunk may be shorter than the full record: copy what it holds.
    WAVEFORMATEX format;
    std::memset(&format, 0, sizeof format);
    std::memcpy(&format, wave.format, wave.format_size < sizeof format ? wave.format_size : sizeof format);
    if (format.wFormatTag == WAVE_FORMAT_PCM)
        format.cbSize = 0;
    DSBUFFERDESC desc;
    std::memset(&desc, 0, sizeof desc);
    desc.dwSize = sizeof desc;  // 36 bytes in the 32-bit module, 40 in a 64-bit one
    desc.dwFlags = 0x100E2;     // static, frequency, pan, volume, position 2
    desc.dwBufferBytes = wave.data_size;
    desc.lpwfxFormat = &format;
    LPDIRECTSOUNDBUFFER buffer = nullptr;
    if (FAILED(IDirectSound8_CreateSoundBuffer(g_device, &desc, &buffer, nullptr)) || buffer == nullptr)
        return nullptr;
    if (!fill(buffer, wave.data, wave.data_size)) {
        IDirectSoundBuffer_Release(buffer);
        return nullptr;
    }
    return buffer;
}

LPDIRECTSOUNDBUFFER load(const char* name) {
    if (g_device == nullptr)
        return nullptr;
    Blob resource;
    WaveView wave;
    if (find_raw_resource(g_instance, name, resource) && parse_wave(resource.data, resource.size, wave))
        return create_and_fill(wave);
    MappedFile file;
    if (!map_file(name, file))
        return nullptr;
    LPDIRECTSOUNDBUFFER buffer = nullptr;
    if (parse_wave(file.view.data, file.view.size, wave))
        buffer = create_and_fill(wave);
    unmap_file(file);
    return buffer;
}

// Applies the volume-table entry; set_volume clamps it.
void apply_volume(Id id) {
    set_volume(id, g_volume[id]);
}

}  // namespace

void start_and_load(std::uintptr_t instance) {
    g_instance = instance;
    if (g_device == nullptr && KESTRANE_HAS_DIRECTSOUND_CREATE()) {
        LPDIRECTSOUND8 device = nullptr;
        if (!FAILED(DirectSoundCreate8(nullptr, &device, nullptr)) && device != nullptr) {
            g_device = device;
            IDirectSound8_SetCooperativeLevel(g_device, GetActiveWindow(), DSSCL_NORMAL);
        }
    }
    for (int i = 0; i < kCount; ++i)
        if (g_sounds[i] == nullptr)
            g_sounds[i] = load(kNames[i]);
    for (int i = 0; i < kCount; ++i)
        apply_volume(static_cast<Id>(i));
}

void shutdown() {
    for (int i = kCount - 1; i >= 0; --i) {
        if (g_sounds[i] != nullptr)
            IDirectSoundBuffer_Release(g_sounds[i]);
        g_sounds[i] = nullptr;
    }
    if (g_device != nullptr)
        IDirectSound8_Release(g_device);
    g_device = nullptr;
}

void play(Id id, u32 mode) {
    if (id < kCount && g_sounds[id] != nullptr)
        IDirectSoundBuffer_Play(g_sounds[id], 0, 0, mode == kLooping ? DSBPLAY_LOOPING : 0);
}

void stop(Id id) {
    if (id < kCount && g_sounds[id] != nullptr)
        IDirectSoundBuffer_Stop(g_sounds[id]);
}

void set_volume(Id id, i32 volume) {
    if (id >= kCount || g_sounds[id] == nullptr)
        return;
    if (volume > 0)
        volume = 0;
    if (volume < -10000)
        volume = -10000;
    IDirectSoundBuffer_SetVolume(g_sounds[id], volume);
}

void master_down() {
    if (ac.snd_volume_step < -9) {
        ac.snd_volume_step = -10;
        return;
    }
    --ac.snd_volume_step;
    for (int i = 0; i < kMasterSounds; ++i) {
        g_volume[i] = static_cast<i16>(g_volume[i] - 100);
        apply_volume(static_cast<Id>(i));
    }
}

void master_up() {
    if (ac.snd_volume_step >= 10) {
        ac.snd_volume_step = 10;
        return;
    }
    ++ac.snd_volume_step;
    for (int i = 0; i < kMasterSounds; ++i) {
        g_volume[i] = static_cast<i16>(g_volume[i] + 100);
        apply_volume(static_cast<Id>(i));
    }
}

bool loaded(Id id) {
    return id < kCount && g_sounds[id] != nullptr;
}

}  // namespace kestrane::sound

// The sound table, for tools and hosts that want to name the buffers they see.
extern "C" KEXPORT constinit const kestrane::SoundTable KestraneSounds = {
    kestrane::sound::kCount,
    kestrane::sound::kNames,
    kestrane::sound::g_sounds,
    kestrane::sound::g_volume,
};
