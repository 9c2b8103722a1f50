#include "frame/state.h"

#include <cstddef>

namespace kestrane {

constinit AircraftState ac{};

namespace {
constexpr FieldType type_of(u8*) {
    return kU8;
}
constexpr FieldType type_of(i8*) {
    return kI8;
}
constexpr FieldType type_of(u16*) {
    return kU16;
}
constexpr FieldType type_of(i16*) {
    return kI16;
}
constexpr FieldType type_of(u32*) {
    return kU32;
}
constexpr FieldType type_of(i32*) {
    return kI32;
}
constexpr FieldType type_of(f32*) {
    return kF32;
}
constexpr FieldType type_of(f64*) {
    return kF64;
}

constexpr FieldInfo kFields[] = {
#define KESTRANE_FIELD(type, name, load) \
    {#name, type_of(static_cast<type*>(nullptr)), offsetof(AircraftState, name), load},
#include "frame/state_fields.def"
#undef KESTRANE_FIELD
};
}  // namespace

}  // namespace kestrane

extern "C" KEXPORT constinit const kestrane::FieldTable KestraneFields = {
    sizeof(kestrane::kFields) / sizeof(kestrane::kFields[0]),
    &kestrane::ac,
    sizeof(kestrane::AircraftState),
    kestrane::kFields,
};
