// Lists what the module's gauges declare about their images: gauge widths,
// every element with its bitmap, position, pivot and value table, and every
// mouse box. make-table.py turns this into a first bitmap table.
#include <cstdio>
#include <iostream>

#include "host/host.h"

using namespace kestrane;
using kestrane::host::default_module_path;
using kestrane::host::Host;

int main(int argc, char** argv) {
    Host host(argc > 1 ? argv[1] : default_module_path());
    if (!host.ok()) {
        std::cerr << host.error() << '\n';
        return 2;
    }
    for (int i = 0; i < host.gauge_count(); ++i) {
        GaugeHeader* g = host.gauge(i);
        std::cout << "G\t" << i << '\t' << g->name << '\t' << g->size_x_mm << '\n';
        Host::for_each_element(g, [&](Element* e, const std::string& label) {
            if (e->kind == kString) {
                std::cout << "S\t" << i << '\t' << label << '\t' << e->x << '\t' << e->y << '\t'
                          << e->u.str.box_w << '\t' << e->u.str.box_h << '\n';
                return;
            }
            std::cout << "E\t" << i << '\t' << label << '\t' << e->kind << '\t' << e->bitmap << '\t' << e->x
                      << '\t' << e->y << '\t' << e->ref_x << '\t' << e->ref_y << '\t';
            if (e->kind == kNeedle) {
                for (u32 k = 0; k < e->u.needle.table_count; ++k) {
                    const NeedlePoint& p = e->u.needle.table[k];
                    std::cout << (k ? " " : "") << p.x << ',' << p.y << ',' << p.value;
                }
            } else if (e->kind == kMovingImage) {
                std::cout << e->u.moving.min_x << ',' << e->u.moving.max_x << ',' << e->u.moving.min_y << ','
                          << e->u.moving.max_y;
            } else if (e->kind == kSprite) {
                std::cout << e->u.sprite.texture_cx << ',' << e->u.sprite.texture_cy;
            } else if (e->kind == kIcon) {
                std::cout << e->u.icon.image_count;
            }
            std::cout << '\n';
        });
        for (MouseRect* m = g->mouse; m != nullptr && m->row != kRowEnd; ++m) {
            if (m->row == kRowParent || m->row == kRowChild)
                std::cout << "M\t" << i << '\t' << m->x << '\t' << m->y << '\t' << m->w << '\t' << m->h
                          << '\n';
        }
    }
    return 0;
}
