#include "frame/host.h"

namespace kestrane::host {

u32 read_bcd(ModuleVar& var) {
    const HostServices* s = services();
    if (s == nullptr)
        return 0;
    s->lookup_var(&var);
    return var.value.bcd;
}

void send_event(u32 event, u32 value) {
    const HostServices* s = services();
    if (s != nullptr)
        s->trigger_key_event(event, value);
}

u32 window_toggle(u32 ident) {
    const HostServices* s = services();
    if (s == nullptr)
        return 0;
    return s->panel_window_toggle(ident);
}

f64 named_get(const char* name) {
    const HostServices* s = services();
    if (s == nullptr)
        return 0.0;
    return s->get_named_variable_value(s->register_named_variable(name));
}

void named_set(const char* name, f64 value) {
    const HostServices* s = services();
    if (s == nullptr)
        return;
    s->set_named_variable_value(s->register_named_variable(name), value);
}

f64 calc(const char* expression) {
    const HostServices* s = services();
    f64 result = 0.0;
    if (s != nullptr)
        s->execute_calculator_code(expression, &result, nullptr, nullptr);
    return result;
}

}  // namespace kestrane::host
