// The host's tables of named variables, calculator answers and the module's
// state fields, as the module and the scenario runner read and write them.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "host/host.h"

namespace kestrane::host {

// ---------------------------------------------------------------- named variables, calculator

namespace {
// A slot for a text pointer in a small table of recent hits (Fibonacci hashing:
// string literals lie close together, so their low bits alone collide).
std::size_t hit_slot(const char* p, std::size_t slots) {
    return static_cast<std::size_t>((reinterpret_cast<std::uintptr_t>(p) * 0x9E3779B97F4A7C15ull) >> 40) %
           slots;
}
}  // namespace

u32 Host::svc_register_named(const char* name) {
    NamedHit& hit = named_hits_[hit_slot(name, named_hits_.size())];
    if (hit.name == name && hit.id < named_.size() && std::strcmp(named_[hit.id].first.c_str(), name) == 0)
        return hit.id;
    u32 id = 0;
    while (id < named_.size() && named_[id].first != name)
        ++id;
    if (id == named_.size())
        named_.emplace_back(name, 0.0);
    hit = {name, id};
    return id;
}

f64 Host::svc_get_named(u32 id) const {
    return id < named_.size() ? named_[id].second : 0.0;
}

void Host::svc_set_named(u32 id, f64 value) {
    if (id < named_.size())
        named_[id].second = value;
}

void Host::set_named(std::string_view name, f64 value) {
    for (auto& n : named_)
        if (n.first == name) {
            n.second = value;
            return;
        }
    named_.emplace_back(std::string(name), value);
}

std::optional<f64> Host::named(std::string_view name) const {
    for (const auto& n : named_)
        if (n.first == name)
            return n.second;
    return std::nullopt;
}

void Host::set_calc(std::string_view expression, f64 value) {
    // a new expression may be one a hit remembers as having no answer
    if (calc_.insert_or_assign(std::string(expression), value).second)
        for (CalcHit& hit : calc_hits_)
            hit.code = nullptr;
}

u32 Host::svc_calc(const char* code, f64* result) {
    if (result == nullptr)
        return 0;
    *result = 0.0;
    if (code == nullptr)
        return 0;
    CalcHit& hit = calc_hits_[hit_slot(code, calc_hits_.size())];
    if (hit.code != code || std::strcmp(hit.text.c_str(), code) != 0) {
        auto it = calc_.find(std::string_view(code));
        hit.code = code;
        hit.text = code;
        hit.answer = it != calc_.end() ? &it->second : nullptr;
    }
    if (hit.answer != nullptr)
        *result = *hit.answer;
    return 1;
}

// ---------------------------------------------------------------- fields

const FieldInfo* Host::field(std::string_view name) const {
    auto it = field_by_name_.find(name);
    return it == field_by_name_.end() ? nullptr : it->second;
}

f64 Host::read_field(const FieldInfo& f) const {
    const u8* p = static_cast<const u8*>(module_->fields()->state) + f.offset;
    auto get = [p](auto v) {
        std::memcpy(&v, p, sizeof v);
        return static_cast<f64>(v);
    };
    switch (f.type) {
        case kU8:
            return get(u8{});
        case kI8:
            return get(i8{});
        case kU16:
            return get(u16{});
        case kI16:
            return get(i16{});
        case kU32:
            return get(u32{});
        case kI32:
            return get(i32{});
        case kF32:
            return get(f32{});
        case kF64:
            return get(f64{});
    }
    return 0.0;
}

namespace {
template <class T>
T saturate(f64 v) {
    if (std::isnan(v))
        return T{0};
    if constexpr (std::numeric_limits<T>::is_integer) {
        if (v <= static_cast<f64>(std::numeric_limits<T>::min()))
            return std::numeric_limits<T>::min();
        if (v >= static_cast<f64>(std::numeric_limits<T>::max()))
            return std::numeric_limits<T>::max();
        return static_cast<T>(v);
    } else {
        const f64 hi = static_cast<f64>(std::numeric_limits<T>::max());
        return static_cast<T>(std::clamp(v, -hi, hi));
    }
}
}  // namespace

void Host::write_field(const FieldInfo& f, f64 value) {
    u8* p = static_cast<u8*>(module_->fields()->state) + f.offset;
    auto put = [p](auto v) { std::memcpy(p, &v, sizeof v); };
    switch (f.type) {
        case kU8:
            put(saturate<u8>(value));
            break;
        case kI8:
            put(saturate<i8>(value));
            break;
        case kU16:
            put(saturate<u16>(value));
            break;
        case kI16:
            put(saturate<i16>(value));
            break;
        case kU32:
            put(saturate<u32>(value));
            break;
        case kI32:
            put(saturate<i32>(value));
            break;
        case kF32:
            put(saturate<f32>(value));
            break;
        case kF64:
            put(value);
            break;
    }
}

std::optional<f64> Host::field_value(std::string_view name) const {
    const FieldInfo* f = field(name);
    if (f == nullptr)
        return std::nullopt;
    return read_field(*f);
}

bool Host::set_field(std::string_view name, f64 value) {
    const FieldInfo* f = field(name);
    if (f == nullptr)
        return false;
    write_field(*f, value);
    return true;
}

}  // namespace kestrane::host
