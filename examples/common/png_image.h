// Pictures: linear light while they are made, 8 bits of sRGB in the file.
#pragma once

#include <string>
#include <vector>

struct Colour {
    float r = 0, g = 0, b = 0;
};
inline Colour operator+(Colour a, Colour b) { return {a.r + b.r, a.g + b.g, a.b + b.b}; }
inline Colour operator*(Colour a, Colour b) { return {a.r * b.r, a.g * b.g, a.b * b.b}; }
inline Colour operator*(float s, Colour a) { return {s * a.r, s * a.g, s * a.b}; }
inline Colour mix(Colour a, Colour b, float t) { return (1 - t) * a + t * b; }
Colour fromHex(unsigned rgb);  // 0xrrggbb in sRGB, as a painter writes it

struct Image {
    Image(int w, int h, Colour fill = {}) : width(w), height(h), pixels(size_t(w) * h, fill) {}
    Colour& at(int x, int y) { return pixels[size_t(y) * width + x]; }
    const Colour& at(int x, int y) const { return pixels[size_t(y) * width + x]; }

    int width, height;
    std::vector<Colour> pixels;
};

Image shrink(const Image& image, int factor);  // the mean of factor x factor pixels: smooth edges

// Both throw std::runtime_error, and leave no half-written file behind.
void writePng(const Image& image, const std::string& path);
// An animated PNG that runs for ever; what cannot animate it shows the first frame.
void writeAnimation(const std::vector<Image>& frames, int millisecondsEach, const std::string& path);
