#include "host/sound_device.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace kestrane::host {

namespace {

constexpr HRESULT kInvalidParam = static_cast<HRESULT>(0x80070057);
constexpr HRESULT kGenericFail = static_cast<HRESULT>(0x80004005);
constexpr int kMixRate = 44100;
constexpr int kCyclesPerSecond = 18;

SoundBuffer* owner(IDirectSoundBuffer* p) {
    return p ? reinterpret_cast<ComBuffer*>(p)->owner : nullptr;
}

HRESULT KDSCALL b_qi(IDirectSoundBuffer*, const GUID*, void**) {
    return kGenericFail;
}
DWORD KDSCALL b_addref(IDirectSoundBuffer*) {
    return 1;
}
DWORD KDSCALL b_release(IDirectSoundBuffer* p) {
    return SoundDevice::instance().release(owner(p));
}
HRESULT KDSCALL b_get_status(IDirectSoundBuffer* p, LPDWORD status) {
    SoundBuffer* b = owner(p);
    if (!b || !status)
        return kInvalidParam;
    *status = (b->playing ? DSBSTATUS_PLAYING : 0) | (b->playing && b->looping ? DSBSTATUS_LOOPING : 0);
    return DS_OK;
}
HRESULT KDSCALL b_get_volume(IDirectSoundBuffer* p, LONG* v) {
    SoundBuffer* b = owner(p);
    if (!b || !v)
        return kInvalidParam;
    *v = b->volume;
    return DS_OK;
}
HRESULT KDSCALL b_lock(IDirectSoundBuffer* p, DWORD off, DWORD n, LPVOID* p1, LPDWORD n1, LPVOID* p2,
                       LPDWORD n2, DWORD) {
    return SoundDevice::instance().lock(owner(p), off, n, p1, n1, p2, n2);
}
HRESULT KDSCALL b_play(IDirectSoundBuffer* p, DWORD, DWORD, DWORD flags) {
    return SoundDevice::instance().play(owner(p), flags);
}
HRESULT KDSCALL b_set_volume(IDirectSoundBuffer* p, LONG v) {
    return SoundDevice::instance().set_volume(owner(p), v);
}
HRESULT KDSCALL b_stop(IDirectSoundBuffer* p) {
    return SoundDevice::instance().stop(owner(p));
}
HRESULT KDSCALL b_unlock(IDirectSoundBuffer*, LPVOID, DWORD, LPVOID, DWORD) {
    return DS_OK;
}

const IDirectSoundBufferVtbl kBufferVtbl = {
    b_qi,    b_addref,     b_release,    nullptr, nullptr, nullptr,  b_get_volume,
    nullptr, nullptr,      b_get_status, nullptr, b_lock,  b_play,   nullptr,
    nullptr, b_set_volume, nullptr,      nullptr, b_stop,  b_unlock, nullptr,
};

HRESULT KDSCALL d_qi(IDirectSound8*, const GUID*, void**) {
    return kGenericFail;
}
DWORD KDSCALL d_addref(IDirectSound8*) {
    return 1;
}
DWORD KDSCALL d_release(IDirectSound8*) {
    return SoundDevice::instance().release_device();
}
HRESULT KDSCALL d_create_buffer(IDirectSound8*, const DSBUFFERDESC* desc, IDirectSoundBuffer** out,
                                LPUNKNOWN) {
    return SoundDevice::instance().create_buffer(desc, out);
}
HRESULT KDSCALL d_set_level(IDirectSound8*, HWND, DWORD level) {
    return SoundDevice::instance().set_cooperative_level(level);
}

const IDirectSound8Vtbl kDeviceVtbl = {
    d_qi,        d_addref, d_release, d_create_buffer, nullptr, nullptr,
    d_set_level, nullptr,  nullptr,   nullptr,         nullptr, nullptr,
};

IDirectSound8 g_device{&kDeviceVtbl};

}  // namespace

SoundDevice& SoundDevice::instance() {
    static SoundDevice device;
    return device;
}

void SoundDevice::reset() {
    buffers_.clear();
    log_.clear();
    created_ = false;
    device_released_ = false;
    level_ = 0;
    creations_ = 0;
    locks_ = 0;
    faults = SoundFaults{};
}

SoundBuffer* SoundDevice::buffer(const void* handle) const {
    for (const auto& b : buffers_)
        if (&b->com.base == handle)
            return b.get();
    return nullptr;
}

HRESULT SoundDevice::create(IDirectSound8** out) {
    if (out == nullptr)
        return kInvalidParam;
    *out = nullptr;
    if (faults.fail_device)
        return kGenericFail;
    created_ = true;
    device_released_ = false;
    *out = &g_device;
    return DS_OK;
}

HRESULT SoundDevice::set_cooperative_level(std::uint32_t level) {
    level_ = level;
    return DS_OK;
}

DWORD SoundDevice::release_device() {
    device_released_ = true;
    return 0;
}

HRESULT SoundDevice::create_buffer(const DSBUFFERDESC* desc, IDirectSoundBuffer** out) {
    // DirectSound takes the record's size as a version check.
    if (out == nullptr || desc == nullptr || desc->lpwfxFormat == nullptr ||
        desc->dwSize != sizeof(DSBUFFERDESC))
        return kInvalidParam;
    *out = nullptr;
    if (creations_++ == faults.fail_create_at)
        return kGenericFail;
    const WAVEFORMATEX& f = *desc->lpwfxFormat;
    // DirectSound takes PCM of one or two channels, 8 or 16 bits.
    if (f.wFormatTag != WAVE_FORMAT_PCM || f.nChannels < 1 || f.nChannels > 2 ||
        (f.wBitsPerSample != 8 && f.wBitsPerSample != 16) || f.nSamplesPerSec < 100 ||
        f.nSamplesPerSec > 200000 || desc->dwBufferBytes < 4 || desc->dwBufferBytes > (64u << 20))
        return kInvalidParam;
    auto b = std::make_unique<SoundBuffer>();
    b->com.base.lpVtbl = &kBufferVtbl;
    b->com.owner = b.get();
    b->format = f;
    b->format.nBlockAlign = static_cast<WORD>(f.nChannels * f.wBitsPerSample / 8);
    b->desc = *desc;
    b->data.assign(desc->dwBufferBytes, 0);
    *out = &b->com.base;
    buffers_.push_back(std::move(b));
    return DS_OK;
}

HRESULT SoundDevice::lock(SoundBuffer* b, DWORD offset, DWORD bytes, LPVOID* p1, LPDWORD n1, LPVOID* p2,
                          LPDWORD n2) {
    if (b == nullptr || p1 == nullptr || n1 == nullptr || b->released)
        return kInvalidParam;
    if (locks_++ == faults.fail_lock_at)
        return kGenericFail;
    const DWORD size = static_cast<DWORD>(b->data.size());
    if (offset >= size || bytes > size)
        return kInvalidParam;
    DWORD first = std::min(bytes, size - offset);
    DWORD second = bytes - first;  // wraps to the start
    if (faults.split_lock_at > 0 && second == 0 && faults.split_lock_at < first) {
        second = first - faults.split_lock_at;
        first = faults.split_lock_at;
        *p1 = b->data.data() + offset;
        *n1 = first;
        if (p2 && n2) {
            *p2 = b->data.data() + offset + first;
            *n2 = second;
        }
        return DS_OK;
    }
    *p1 = b->data.data() + offset;
    *n1 = first;
    if (p2 && n2) {
        *p2 = second ? b->data.data() : nullptr;
        *n2 = second;
    }
    return DS_OK;
}

HRESULT SoundDevice::play(SoundBuffer* b, DWORD flags) {
    if (b == nullptr || b->released)
        return kInvalidParam;
    log_.push_back({b, SoundOp::Play, flags, 0});
    b->looping = (flags & DSBPLAY_LOOPING) != 0;
    b->playing = true;
    ++b->plays;
    return DS_OK;
}

HRESULT SoundDevice::stop(SoundBuffer* b) {
    if (b == nullptr || b->released)
        return kInvalidParam;
    // flags 1: it was playing (a stop that silenced something)
    log_.push_back({b, SoundOp::Stop, b->playing ? 1u : 0u, 0});
    b->playing = false;  // the position stays where it is
    return DS_OK;
}

HRESULT SoundDevice::set_volume(SoundBuffer* b, LONG volume) {
    if (b == nullptr || b->released)
        return kInvalidParam;
    log_.push_back({b, SoundOp::Volume, 0, volume});
    if (volume < DSBVOLUME_MIN || volume > DSBVOLUME_MAX)
        return kInvalidParam;
    b->volume = volume;
    return DS_OK;
}

DWORD SoundDevice::release(SoundBuffer* b) {
    if (b == nullptr || b->released)
        return 0;
    log_.push_back({b, SoundOp::Release, 0, 0});
    b->released = true;
    b->playing = false;
    return 0;
}

void SoundDevice::advance(std::vector<std::int16_t>* mix) {
    constexpr int kFrames = kMixRate / kCyclesPerSecond;  // 2450
    std::size_t base = 0;
    if (mix) {
        base = mix->size();
        mix->resize(base + 2 * kFrames, 0);
    }
    for (auto& owned : buffers_) {
        SoundBuffer& b = *owned;
        if (!b.playing)
            continue;
        const double rate = b.format.nSamplesPerSec;
        const int channels = b.format.nChannels;
        const int bytes = b.format.wBitsPerSample / 8;
        const double frames = static_cast<double>(b.data.size()) / (channels * bytes);
        const double step = rate / kMixRate;
        if (!mix) {
            // headless: nothing to mix, so skip to the cycle's end unless the
            // sound ends or wraps within it (then step as when mixing)
            const double end = b.position + kFrames * step;
            if (end < frames) {
                b.position = end;
                continue;
            }
            if (!b.looping) {
                b.playing = false;
                b.position = 0;
                continue;
            }
        }
        const double gain = std::pow(10.0, b.volume / 2000.0);
        for (int i = 0; i < kFrames && b.playing; ++i) {
            if (mix) {
                std::size_t at = static_cast<std::size_t>(b.position);
                for (int ch = 0; ch < 2; ++ch) {
                    std::size_t off = (at * channels + (channels == 2 ? ch : 0)) * bytes;
                    double x = bytes == 1
                                   ? (b.data[off] - 128) / 128.0
                                   : static_cast<std::int16_t>(b.data[off] | b.data[off + 1] << 8) / 32768.0;
                    std::int16_t& out = (*mix)[base + 2 * i + ch];
                    out = static_cast<std::int16_t>(std::clamp(out + x * gain * 32767.0, -32768.0, 32767.0));
                }
            }
            b.position += step;
            if (b.position >= frames) {
                if (b.looping) {
                    b.position -= frames;
                } else {
                    // a one-shot sound stops at its end, back at the start
                    b.playing = false;
                    b.position = 0;
                }
            }
        }
    }
}

namespace {
void put_header(std::FILE* f, std::uint32_t bytes) {
    auto u32 = [f](std::uint32_t v) { std::fwrite(&v, 4, 1, f); };
    auto u16 = [f](std::uint16_t v) { std::fwrite(&v, 2, 1, f); };
    std::fwrite("RIFF", 1, 4, f);
    u32(36 + bytes);
    std::fwrite("WAVEfmt ", 1, 8, f);
    u32(16);
    u16(1);
    u16(2);
    u32(kMixRate);
    u32(kMixRate * 4);
    u16(4);
    u16(16);
    std::fwrite("data", 1, 4, f);
    u32(bytes);
}
}  // namespace

Recorder::Recorder(const std::string& path) {
    file_ = std::fopen(path.c_str(), "wb");
    if (file_)
        put_header(file_, 0);
    cycle_.reserve(2 * kMixRate / kCyclesPerSecond);
}

Recorder::~Recorder() {
    if (!file_)
        return;
    std::fseek(file_, 0, SEEK_SET);
    put_header(file_, bytes_);
    std::fclose(file_);
}

void Recorder::flush_cycle() {
    if (file_ && !cycle_.empty()) {
        std::fwrite(cycle_.data(), sizeof(std::int16_t), cycle_.size(), file_);
        bytes_ += static_cast<std::uint32_t>(cycle_.size() * sizeof(std::int16_t));
    }
    cycle_.clear();
}

}  // namespace kestrane::host

#if defined(_WIN32)
#define KESTRANE_DSOUND_EXPORT __declspec(dllexport)
#else
#define KESTRANE_DSOUND_EXPORT __attribute__((visibility("default")))
#endif

extern "C" KESTRANE_DSOUND_EXPORT HRESULT KDSCALL DirectSoundCreate8(const GUID*, IDirectSound8** out,
                                                                     LPUNKNOWN) {
    return kestrane::host::SoundDevice::instance().create(out);
}
