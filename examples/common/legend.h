// Scales of colours, and the words and numbers beside them.
#pragma once

#include "png_image.h"

#include <string>
#include <vector>

// Colours from 0 to 1, the same distance apart.
struct Ramp {
    std::vector<Colour> stops;
    Colour at(float place) const;
};

// A round step (1, 2 or 5 times a power of ten) that a range has at most so many of.
float roundStep(float range, int most);
// The end of a scale from 0 on that reaches over all values but the outermost hundredth: a round step, at most so many of them.
float scaleEnd(std::vector<float> values, int most);

// Lower case letters, digits and . - / : of a single stroke, `size` high, on a base line that begins at x (align 0), is
// centred there (0.5) or ends there (1).
void writeText(Image& image, const std::string& text, float x, float y, float size, Colour ink, float align = 0);

constexpr int legendHeight = 64;
// A bar of the ramp's colours with ticks at round values from low to high, and a title above it.
void drawLegend(Image& image, const Ramp& ramp, const std::string& title, float low, float high, int left, int top, int width);
