#include "png_image.h"

#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <stdexcept>

#include <png.h>
#include <zlib.h>

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

namespace {

std::string encode(const Image& image)
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
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(png);
    std::string file(size, 0);
    if (!png_image_write_to_memory(&png, file.data(), &size, 0, bytes.data(), 0, nullptr)) throw std::runtime_error(png.message);
    file.resize(size);
    return file;
}

void writeFile(const std::string& path, const std::string& bytes)
{
    std::ofstream file(path, std::ios::binary);
    const bool opened = file.is_open();
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (file) return;
    const std::string reason = std::strerror(errno);
    if (opened) std::remove(path.c_str());
    throw std::runtime_error(path + ": cannot be written: " + reason);
}

std::string bigEndian(size_t value, int bytes)
{
    std::string text;
    for (int k = bytes - 1; k >= 0; --k) text += static_cast<char>(value >> 8 * k & 255);
    return text;
}

// Length, name, contents, check sum of name and contents.
std::string chunk(const std::string& named)
{
    const auto sum = crc32(0, reinterpret_cast<const Bytef*>(named.data()), static_cast<uInt>(named.size()));
    return bigEndian(named.size() - 4, 4) + named + bigEndian(sum, 4);
}

}  // namespace

void writePng(const Image& image, const std::string& path) { writeFile(path, encode(image)); }

// The chunks of the first frame's file, with a head of the animation before its pixels (IDAT); those of the other frames
// follow under another name (fdAT). Heads and later pixels are numbered through.
void writeAnimation(const std::vector<Image>& frames, int millisecondsEach, const std::string& path)
{
    std::string all;
    int number = 0;
    for (const Image& frame : frames) {
        const std::string file = encode(frame);
        const bool first = &frame == &frames.front();
        bool headed = false;
        if (first) all = file.substr(0, 8);
        for (size_t at = 8, size; at < file.size(); at += size + 12) {
            size = 0;
            for (size_t k = 0; k < 4; ++k) size = size << 8 | static_cast<uint8_t>(file[at + k]);
            const std::string whole = file.substr(at, size + 12), named = whole.substr(4, size + 4), name = named.substr(0, 4);
            if (name == "IDAT" && !headed) {
                headed = true;
                if (first) all += chunk("acTL" + bigEndian(frames.size(), 4) + bigEndian(0, 4));
                all += chunk("fcTL" + bigEndian(number++, 4) + bigEndian(frame.width, 4) + bigEndian(frame.height, 4) +
                             bigEndian(0, 8) + bigEndian(millisecondsEach, 2) + bigEndian(1000, 2) + bigEndian(0, 2));
            }
            if (name == "IDAT" && !first)
                all += chunk("fdAT" + bigEndian(number++, 4) + named.substr(4));
            else if (first && name != "IEND")
                all += whole;
        }
    }
    writeFile(path, all + chunk("IEND"));
}
