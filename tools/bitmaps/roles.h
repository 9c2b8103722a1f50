// The images of the module's bitmaps, drawn with cairo by role (panel, dial,
// needle, drum, sphere, card, bank scale, lamp, flag, knob, button, switch,
// area, pointer, bar, lever, image).
#pragma once

#include <cairo.h>

#include <string>
#include <vector>

namespace kestrane::bitmaps {

// One line of bitmaps.tsv.
struct Bitmap {
    int id = 0;
    std::string gauge;
    int w = 0, h = 0;
    std::string role, caption, colour, params;
};

// The fields of `s` between separators.
std::vector<std::string> split(const std::string& s, char sep);

// A new RGB24 surface of the bitmap's size with its image drawn.
cairo_surface_t* render(const Bitmap& b);

}  // namespace kestrane::bitmaps
