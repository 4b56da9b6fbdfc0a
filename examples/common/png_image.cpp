#include "png_image.h"

#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <stdexcept>

#include <png.h>

Colour fromHex(unsigned rgb)
{
    auto linear = [](unsigned level) { return std::pow((level / 255.0f + 0.055f) / 1.055f, 2.4f); };
    return {linear(rgb >> 16 & 255), linear(rgb >> 8 & 255), linear(rgb & 255)};
}

static uint8_t toSrgb(float light)
{
    if (!(light > 0)) return 0;
    if (light >= 1) return 255;
    return static_cast<uint8_t>(
        255 * (light <= 0.0031308f ? 12.92f * light : 1.055f * std::pow(light, 1 / 2.4f) - 0.055f) + 0.5f);
}

Image shrink(const Image& image, int factor)
{
    Image small(image.width / factor, image.height / factor);
    for (int y = 0; y < small.height * factor; ++y)
        for (int x = 0; x < small.width * factor; ++x) {
            Colour& pixel = small.at(x / factor, y / factor);
            pixel = pixel + 1.0f / static_cast<float>(factor * factor) * image.at(x, y);
        }
    return small;
}

void writePng(const Image& image, const std::string& path)
{
    std::vector<uint8_t> bytes;
    bytes.reserve(image.pixels.size() * 3);
    for (const Colour& pixel : image.pixels)
        for (float light : {pixel.r, pixel.g, pixel.b}) bytes.push_back(toSrgb(light));

    png_image png;
    std::memset(&png, 0, sizeof png);
    png.version = PNG_IMAGE_VERSION;
    png.width = static_cast<png_uint_32>(image.width);
    png.height = static_cast<png_uint_32>(image.height);
    png.format = PNG_FORMAT_RGB;
    if (!png_image_write_to_file(&png, path.c_str(), 0, bytes.data(), 0, nullptr)) {
        if (errno != EACCES && errno != ENOENT) std::remove(path.c_str());
        throw std::runtime_error(path + ": cannot be written: " + png.message);
    }
}
