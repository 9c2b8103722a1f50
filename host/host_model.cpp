// The host aircraft model switch and traces of a run.
#include <cstdio>

#include "host/host.h"
#include "host/model/aircraft.h"

namespace kestrane::host {

void Host::set_aircraft(bool on) {
    if (!on) {
        model_.reset();
        return;
    }
    model_ = std::make_unique<model::Aircraft>();
    model_->reset(*this);
}

bool Host::trace_to(const std::string& path) {
    trace_ = std::make_unique<std::ofstream>(path, std::ios::trunc);
    if (!*trace_)
        trace_.reset();
    return trace_ != nullptr;
}

// A header names the columns; rows follow from the next simulated second.
void Host::trace_items(const std::vector<TraceItem>& items) {
    trace_items_ = items;
    if (!trace_)
        return;
    *trace_ << "time";
    for (const TraceItem& t : items) {
        switch (t.kind) {
            case TraceItem::Field:
                *trace_ << ',' << t.name;
                break;
            case TraceItem::Token:
                *trace_ << ",token " << t.id;
                break;
            case TraceItem::Named:
                *trace_ << ",named " << t.name;
                break;
        }
    }
    *trace_ << '\n';
}

void Host::trace_row() {
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.6g", token(kTokenSimTime));
    *trace_ << buf;
    for (const TraceItem& t : trace_items_) {
        double v = 0.0;
        switch (t.kind) {
            case TraceItem::Field:
                v = field_value(t.name).value_or(0.0);
                break;
            case TraceItem::Token:
                v = token(t.id);
                break;
            case TraceItem::Named:
                v = named(t.name).value_or(0.0);
                break;
        }
        std::snprintf(buf, sizeof buf, ",%.6g", v);
        *trace_ << buf;
    }
    *trace_ << '\n';
}

}  // namespace kestrane::host
