// The sound device calls the player makes. On Windows they are DirectSound 8
// itself; elsewhere the same calls, of the same shape, are provided by the
// process that loads the module (the stand-in host), the way the operating
// system provides DirectSound on Windows. A process that provides none
// leaves DirectSoundCreate8 null and the module runs silent. A provider
// (KESTRANE_DSOUND_PROVIDER) uses the portable declarations on every system,
// with DirectSound's calling convention.
#pragma once

#if defined(_WIN32) && !defined(KESTRANE_DSOUND_PROVIDER)

#include <dsound.h>
#include <mmsystem.h>
#include <windows.h>

#define KESTRANE_HAS_DIRECTSOUND_CREATE() true

#else

#include <cstdint>

#if defined(_WIN32) && !defined(_WIN64)
#define KDSCALL __stdcall
#else
#define KDSCALL
#endif

typedef std::int32_t HRESULT;
typedef std::uint32_t DWORD;
typedef std::uint16_t WORD;
typedef std::int32_t LONG;
typedef void* LPVOID;
typedef DWORD* LPDWORD;
typedef void* HWND;
typedef void* LPUNKNOWN;

struct GUID {
    std::uint32_t d1;
    std::uint16_t d2, d3;
    std::uint8_t d4[8];
};

#pragma pack(push, 1)
struct WAVEFORMATEX {
    WORD wFormatTag;
    WORD nChannels;
    DWORD nSamplesPerSec;
    DWORD nAvgBytesPerSec;
    WORD nBlockAlign;
    WORD wBitsPerSample;
    WORD cbSize;
};
#pragma pack(pop)

struct DSBUFFERDESC {
    DWORD dwSize;
    DWORD dwFlags;
    DWORD dwBufferBytes;
    DWORD dwReserved;
    WAVEFORMATEX* lpwfxFormat;
    GUID guid3DAlgorithm;
};

struct IDirectSoundBuffer;
struct IDirectSound8;

// Buffer calls, in DirectSound's order (only those the player uses are filled
// by every provider; the others may be null).
struct IDirectSoundBufferVtbl {
    HRESULT(KDSCALL* QueryInterface)(IDirectSoundBuffer*, const GUID*, void**);
    DWORD(KDSCALL* AddRef)(IDirectSoundBuffer*);
    DWORD(KDSCALL* Release)(IDirectSoundBuffer*);
    HRESULT(KDSCALL* GetCaps)(IDirectSoundBuffer*, void*);
    HRESULT(KDSCALL* GetCurrentPosition)(IDirectSoundBuffer*, LPDWORD, LPDWORD);
    HRESULT(KDSCALL* GetFormat)(IDirectSoundBuffer*, WAVEFORMATEX*, DWORD, LPDWORD);
    HRESULT(KDSCALL* GetVolume)(IDirectSoundBuffer*, LONG*);
    HRESULT(KDSCALL* GetPan)(IDirectSoundBuffer*, LONG*);
    HRESULT(KDSCALL* GetFrequency)(IDirectSoundBuffer*, LPDWORD);
    HRESULT(KDSCALL* GetStatus)(IDirectSoundBuffer*, LPDWORD);
    HRESULT(KDSCALL* Initialize)(IDirectSoundBuffer*, IDirectSound8*, const DSBUFFERDESC*);
    HRESULT(KDSCALL* Lock)(IDirectSoundBuffer*, DWORD, DWORD, LPVOID*, LPDWORD, LPVOID*, LPDWORD, DWORD);
    HRESULT(KDSCALL* Play)(IDirectSoundBuffer*, DWORD, DWORD, DWORD);
    HRESULT(KDSCALL* SetCurrentPosition)(IDirectSoundBuffer*, DWORD);
    HRESULT(KDSCALL* SetFormat)(IDirectSoundBuffer*, const WAVEFORMATEX*);
    HRESULT(KDSCALL* SetVolume)(IDirectSoundBuffer*, LONG);
    HRESULT(KDSCALL* SetPan)(IDirectSoundBuffer*, LONG);
    HRESULT(KDSCALL* SetFrequency)(IDirectSoundBuffer*, DWORD);
    HRESULT(KDSCALL* Stop)(IDirectSoundBuffer*);
    HRESULT(KDSCALL* Unlock)(IDirectSoundBuffer*, LPVOID, DWORD, LPVOID, DWORD);
    HRESULT(KDSCALL* Restore)(IDirectSoundBuffer*);
};

struct IDirectSoundBuffer {
    const IDirectSoundBufferVtbl* lpVtbl;
};

struct IDirectSound8Vtbl {
    HRESULT(KDSCALL* QueryInterface)(IDirectSound8*, const GUID*, void**);
    DWORD(KDSCALL* AddRef)(IDirectSound8*);
    DWORD(KDSCALL* Release)(IDirectSound8*);
    HRESULT(KDSCALL* CreateSoundBuffer)(IDirectSound8*, const DSBUFFERDESC*, IDirectSoundBuffer**, LPUNKNOWN);
    HRESULT(KDSCALL* GetCaps)(IDirectSound8*, void*);
    HRESULT(KDSCALL* DuplicateSoundBuffer)(IDirectSound8*, IDirectSoundBuffer*, IDirectSoundBuffer**);
    HRESULT(KDSCALL* SetCooperativeLevel)(IDirectSound8*, HWND, DWORD);
    HRESULT(KDSCALL* Compact)(IDirectSound8*);
    HRESULT(KDSCALL* GetSpeakerConfig)(IDirectSound8*, LPDWORD);
    HRESULT(KDSCALL* SetSpeakerConfig)(IDirectSound8*, DWORD);
    HRESULT(KDSCALL* Initialize)(IDirectSound8*, const GUID*);
    HRESULT(KDSCALL* VerifyCertification)(IDirectSound8*, LPDWORD);
};

struct IDirectSound8 {
    const IDirectSound8Vtbl* lpVtbl;
};

typedef IDirectSoundBuffer* LPDIRECTSOUNDBUFFER;
typedef IDirectSound8* LPDIRECTSOUND8;

#define DS_OK 0
#define FAILED(hr) (static_cast<HRESULT>(hr) < 0)
#define DSSCL_NORMAL 1
#define DSBPLAY_LOOPING 0x1
#define DSBSTATUS_PLAYING 0x1
#define DSBSTATUS_LOOPING 0x4
#define DSBCAPS_STATIC 0x2
#define DSBCAPS_CTRLFREQUENCY 0x20
#define DSBCAPS_CTRLPAN 0x40
#define DSBCAPS_CTRLVOLUME 0x80
#define DSBCAPS_GETCURRENTPOSITION2 0x10000
#define DSBVOLUME_MIN (-10000)
#define DSBVOLUME_MAX 0
#define WAVE_FORMAT_PCM 1

#define IDirectSound8_Release(p) (p)->lpVtbl->Release(p)
#define IDirectSound8_CreateSoundBuffer(p, a, b, c) (p)->lpVtbl->CreateSoundBuffer(p, a, b, c)
#define IDirectSound8_SetCooperativeLevel(p, a, b) (p)->lpVtbl->SetCooperativeLevel(p, a, b)
#define IDirectSoundBuffer_Release(p) (p)->lpVtbl->Release(p)
#define IDirectSoundBuffer_Lock(p, a, b, c, d, e, f, g) (p)->lpVtbl->Lock(p, a, b, c, d, e, f, g)
#define IDirectSoundBuffer_Unlock(p, a, b, c, d) (p)->lpVtbl->Unlock(p, a, b, c, d)
#define IDirectSoundBuffer_Play(p, a, b, c) (p)->lpVtbl->Play(p, a, b, c)
#define IDirectSoundBuffer_Stop(p) (p)->lpVtbl->Stop(p)
#define IDirectSoundBuffer_SetVolume(p, a) (p)->lpVtbl->SetVolume(p, a)
#define IDirectSoundBuffer_GetStatus(p, a) (p)->lpVtbl->GetStatus(p, a)

// Provided by the loading process; weak in the module so that a process
// without sound still loads it.
#if defined(KESTRANE_DSOUND_PROVIDER)
extern "C" HRESULT KDSCALL DirectSoundCreate8(const GUID* device, IDirectSound8** out, LPUNKNOWN outer);
#else
extern "C" HRESULT DirectSoundCreate8(const GUID* device, IDirectSound8** out, LPUNKNOWN outer)
    __attribute__((weak));
#endif

#define KESTRANE_HAS_DIRECTSOUND_CREATE() (&DirectSoundCreate8 != nullptr)

inline HWND GetActiveWindow() {
    return nullptr;
}

#endif
