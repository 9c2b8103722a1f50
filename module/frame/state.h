// The aircraft state shared by every gauge: one record, every field at its
// value at load until a gauge's callback or handler writes it.
#pragma once

#include "frame/gauge_abi.h"

namespace kestrane {

struct AircraftState {
#define KESTRANE_FIELD(type, name, load) type name = load;
#include "frame/state_fields.def"
#undef KESTRANE_FIELD
};

extern AircraftState ac;

}  // namespace kestrane
