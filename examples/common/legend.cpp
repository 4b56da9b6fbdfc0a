#include "legend.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <sstream>

namespace {

struct Point {
    float x, y;
};

// Strokes of each sign, in pairs of digits x y: base line at 2, small letters up to 6, tall ones to 8. A stroke is a line
// from point to point; with ~ a curve that the points draw to them, with @ a closed curve.
const std::map<char, const char*> signs = {{'0', "@024245480805"}, {'1', "072822"}, {'2', "~0708484502 0242"},
    {'3', "~0708484515 ~1545420203"}, {'4', "3832 380444"}, {'5', "480805 ~052646420203"}, {'6', "@02424606 ~040838"},
    {'7', "084812"}, {'8', "@05454808 @02424505"}, {'9', "@04444808 ~464212"}, {'.', "0202"}, {'-', "0434"}, {'/', "0248"},
    {':', "0202 0505"}, {'a', "@02424606 4642"}, {'b', "0802 @02424606"}, {'c', "~454606024243"}, {'d', "4842 @02424606"},
    {'e', "0444 ~444606024243"}, {'f', "~381816 1612 0636"}, {'g', "@02424606 4642 ~42400001"}, {'h', "0802 ~04064644 4442"},
    {'i', "0602 0808"}, {'j', "~26212000 2828"}, {'k', "0802 3603 1432"}, {'l', "0802"},
    {'m', "0602 ~04063634 3432 ~34366664 6462"}, {'n', "0602 ~04064644 4442"}, {'o', "@02424606"}, {'p', "0600 @02424606"},
    {'q', "4640 @02424606"}, {'r', "0602 ~040636"}, {'s', "~4546060444420203"}, {'t', "1814 ~141232 0636"},
    {'u', "0604 ~04024244 4642"}, {'v', "062246"}, {'w', "0622354266"}, {'x', "0642 0246"}, {'y', "0622 4610"},
    {'z', "06460242"}};

// The lines of a stroke. A curve is a quadratic spline: pieces from middle to middle of the points' distances.
std::vector<Point> lines(const std::string& stroke)
{
    const bool closed = stroke[0] == '@', curved = closed || stroke[0] == '~';
    std::vector<Point> points, path;
    for (size_t k = curved; k + 1 < stroke.size(); k += 2)
        points.push_back({static_cast<float>(stroke[k] - '0'), static_cast<float>(stroke[k + 1] - '0')});
    if (!curved) return points;
    const auto middle = [](Point a, Point b) { return Point{(a.x + b.x) / 2, (a.y + b.y) / 2}; };
    const size_t n = points.size();
    for (size_t k = closed ? 0 : 1; k < (closed ? n : n - 1); ++k) {
        const Point a = points[(k + n - 1) % n], b = points[k], c = points[(k + 1) % n];
        const Point from = !closed && k == 1 ? a : middle(a, b), to = !closed && k == n - 2 ? c : middle(b, c);
        for (int step = 0; step <= 8; ++step) {
            const float t = static_cast<float>(step) / 8, u = 1 - t;
            path.push_back({u * u * from.x + 2 * u * t * b.x + t * t * to.x, u * u * from.y + 2 * u * t * b.y + t * t * to.y});
        }
    }
    return path;
}

float distance(Point p, Point a, Point b)
{
    const float dx = b.x - a.x, dy = b.y - a.y, square = dx * dx + dy * dy;
    const float t = square > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / square, 0.0f, 1.0f) : 0;
    return std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
}

}  // namespace

Colour Ramp::at(float place) const
{
    const auto last = static_cast<int>(stops.size()) - 1;
    const float scaled = std::clamp(place, 0.0f, 1.0f) * static_cast<float>(last);
    const int stop = std::min(static_cast<int>(scaled), last - 1);
    return mix(stops[stop], stops[stop + 1], scaled - static_cast<float>(stop));
}

float roundStep(float range, int most)
{
    const float ideal = range / static_cast<float>(most);
    if (!(ideal > 0)) return 1;
    const float decade = std::pow(10.0f, std::floor(std::log10(ideal)));
    for (float round : {1.0f, 2.0f, 5.0f})
        if (round * decade >= ideal) return round * decade;
    return 10 * decade;
}

float scaleEnd(std::vector<float> values, int most)
{
    const auto place = values.begin() + static_cast<std::ptrdiff_t>(values.size() * 99 / 100);
    std::nth_element(values.begin(), place, values.end());
    const float step = roundStep(*place, most);
    return step * std::max(1.0f, std::ceil(*place / step - 1e-3f));
}

void writeText(Image& image, const std::string& text, float x, float y, float size, Colour ink, float align)
{
    const float unit = size / 6, half = 0.4f * unit;
    std::vector<std::vector<Point>> strokes;
    float right = 0;  // of the text so far, in units
    for (char c : text) {
        const auto sign = signs.find(c);
        float width = sign == signs.end() ? 2 : 0;  // a space
        std::istringstream words(sign == signs.end() ? "" : sign->second);
        for (std::string stroke; words >> stroke;) {
            strokes.push_back(lines(stroke));
            for (Point& p : strokes.back()) {
                width = std::max(width, p.x);
                p.x += right;
            }
        }
        right += width + 2;
    }
    const float left = x - align * (right - 2) * unit;
    for (const auto& stroke : strokes) {
        std::vector<Point> path;
        for (Point p : stroke) path.push_back({left + p.x * unit, y - (p.y - 2) * unit});
        const auto [low, high] = std::minmax_element(path.begin(), path.end(), [](Point a, Point b) { return a.x < b.x; });
        const auto [top, bottom] = std::minmax_element(path.begin(), path.end(), [](Point a, Point b) { return a.y < b.y; });
        const int x0 = std::max(0, static_cast<int>(low->x - half - 1)), y0 = std::max(0, static_cast<int>(top->y - half - 1));
        for (int row = y0; row < image.height && static_cast<float>(row) < bottom->y + half + 1; ++row)
            for (int column = x0; column < image.width && static_cast<float>(column) < high->x + half + 1; ++column) {
                const Point centre{static_cast<float>(column) + 0.5f, static_cast<float>(row) + 0.5f};
                float nearest = distance(centre, path.front(), path.front());
                for (size_t k = 0; k + 1 < path.size(); ++k) nearest = std::min(nearest, distance(centre, path[k], path[k + 1]));
                Colour& pixel = image.at(column, row);
                pixel = mix(pixel, ink, std::clamp(half + 0.5f - nearest, 0.0f, 1.0f));
            }
    }
}

void drawLegend(Image& image, const Ramp& ramp, const std::string& title, float low, float high, int left, int top, int width)
{
    const Colour ink = fromHex(0x33302c);
    constexpr int bar = 26, thick = 14;
    writeText(image, title, static_cast<float>(left), static_cast<float>(top + 14), 13, ink);
    for (int x = 0; x < width; ++x)
        for (int y = 0; y < thick; ++y)
            image.at(left + x, top + bar + y) = ramp.at((static_cast<float>(x) + 0.5f) / static_cast<float>(width));
    const float step = roundStep(high - low, std::max(1, width / 80));  // the numbers have room
    const int decimals = std::max(0, static_cast<int>(std::ceil(-std::log10(step) - 1e-3f)));
    for (float k = std::ceil(low / step - 1e-3f); k * step <= high + 1e-3f * step; ++k) {
        char number[32];
        std::snprintf(number, sizeof number, "%.*f", decimals, k * step + 0.0f);
        const float x = static_cast<float>(left) + (k * step - low) / (high - low) * static_cast<float>(width - 1);
        for (int y = 0; y < 5; ++y) image.at(static_cast<int>(std::lround(x)), top + bar + thick + y) = ink;
        writeText(image, number, x, static_cast<float>(top + 62), 11, ink, 0.5f);
    }
}
