// Draws the film of the first start, frame after frame, as raw RGB on the standard output: a drop
// falls into the dark, its ring becomes a well, the tide rises in it, and what stands there in the
// end is the program's mark. Lengths are in the mark's own units, of which its picture is 128 wide,
// from its middle; times in seconds.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <thread>
#include <vector>

namespace {

// make_film names the size and the rate too.
constexpr int width = 1456;
constexpr int height = 962;
constexpr int framesPerSecond = 30;
constexpr double duration = 5.0;
/// The mark is a third of the picture's height.
constexpr double unitsPerPixel = 128.0 * 3.0 / height;
constexpr double halfHeight = height / 2.0 * unitsPerPixel;

// What happens when.
constexpr double fallBegins = 0.10;
constexpr double impact = 0.80;
constexpr double rimStands = 1.75;
constexpr double tideBegins = 1.35;
constexpr double tideStands = 2.90;
constexpr double lightsBegin = 1.90;

// The mark, as in logo-mark.svg.
constexpr double rimRadius = 62;
constexpr double wellRadius = 49;
constexpr double waveLength = 98;
constexpr double backOpacity = 0.52;

struct Rgb {
    double r, g, b;
};
Rgb operator+(Rgb a, Rgb b) {
    return {a.r + b.r, a.g + b.g, a.b + b.b};
}
Rgb operator*(Rgb a, double k) {
    return {a.r * k, a.g * k, a.b * k};
}
Rgb mix(Rgb a, Rgb b, double t) {
    return a * (1 - t) + b * t;
}

struct Point {
    double x, y;
};

constexpr Rgb base{6 / 255.0, 9 / 255.0, 9 / 255.0};
constexpr Rgb primary{0.29, 0.87, 0.50};
constexpr Rgb soft{0.74, 0.99, 0.84};

double ramp(double from, double to, double at) {
    return std::clamp((at - from) / (to - from), 0.0, 1.0);
}
double smooth(double from, double to, double at) {
    const double t = ramp(from, to, at);
    return t * t * (3 - 2 * t);
}
double easeOut(double t) {
    return 1 - (1 - t) * (1 - t) * (1 - t);
}
double gauss(double x) {
    return std::exp(-x * x);
}
/// How much of a pixel lies inside an edge that is this far away; below zero is inside.
double coverage(double distance, double pixel = unitsPerPixel) {
    return std::clamp(0.5 - distance / pixel, 0.0, 1.0);
}

struct Stop {
    double at;
    Rgb color;
};

template <std::size_t count>
Rgb gradient(const std::array<Stop, count>& stops, double at) {
    for (std::size_t i = 1; i < count; ++i)
        if (at <= stops[i].at)
            return mix(stops[i - 1].color, stops[i].color, ramp(stops[i - 1].at, stops[i].at, at));
    return stops.back().color;
}

Rgb rgb(int code) {
    return {(code >> 16) / 255.0, (code >> 8 & 255) / 255.0, (code & 255) / 255.0};
}

Rgb wellColor(Point p) {
    static const std::array<Stop, 4> stops = {
        {{0, rgb(0xd2ffe3)}, {0.36, rgb(0x52ea90)}, {0.70, rgb(0x22bd6c)}, {1, rgb(0x0c7444)}}};
    return gradient(stops, std::hypot(p.x + 24, p.y + 58) / 138);
}

/// One of the two waves, at a time.
struct Wave {
    double level, height, shift;

    /// Below zero in the water.
    double distance(Point p) const {
        const double angle = 2 * M_PI * (p.x - shift) / waveLength;
        const double slope = height * 2 * M_PI / waveLength * std::cos(angle);
        return (level + height * std::sin(angle) - p.y) / std::sqrt(1 + slope * slope);
    }
};

// As in logo-mark.svg.
constexpr Wave frontAtRest{.level = 6, .height = 10, .shift = -49};
constexpr Wave backAtRest{.level = -5, .height = 9, .shift = 6};

/// How far the water is from its rest: from 1 to 0.
double unrestAt(double t) {
    return 1 - smooth(tideBegins, tideStands + 0.6, t);
}

/// The water comes up with a swell, runs to and fro, and comes to rest as the mark's wave.
Wave waveAt(double t, const Wave& rest, double direction) {
    const double rise = easeOut(ramp(tideBegins, tideStands, t));
    const double unrest = unrestAt(t);
    const double swell = std::sin((t - tideBegins) * 5.0) * 9 * unrest * rise;
    return {rest.level + (1 - rise) * 72 - swell * (direction > 0 ? 1 : 0.6),
            rest.height * (1 + 0.9 * unrest * std::cos((t - tideBegins) * 3.4)),
            rest.shift + direction * 150 * unrest * unrest};
}

struct Frame {
    explicit Frame(double time)
        : t(time),
          since(time - impact),
          // Seen from the side at first, then from above.
          tilt(0.30 + 0.70 * smooth(impact + 0.15, rimStands, time)),
          rim(smooth(impact, rimStands, time)),
          front(waveAt(time, frontAtRest, 1)),
          back(waveAt(time, backAtRest, -1)) {}

    double t, since, tilt, rim;
    Wave front, back;
};

/// The lights of the window's canvas, so that the film ends in what it gives way to.
Rgb canvas(const Frame& frame, Point p) {
    struct Light {
        double x, y, radius, opacity;  // in shares of the window, which is 1120 by 740 points
    };
    constexpr std::array<Light, 3> lights = {
        {{0.20, 0.08, 680, 0.14}, {0.90, 1.10, 780, 0.17}, {0.73, 0.59, 600, 0.08}}};
    Rgb color = base * smooth(0, 0.4, frame.t);
    const double on = smooth(lightsBegin, duration - 0.6, frame.t);
    const double pointsPerUnit = 740 / (2 * halfHeight);
    for (const auto& light : lights) {
        const double x = p.x * pointsPerUnit + 560 - light.x * 1120;
        const double y = p.y * pointsPerUnit + 370 - light.y * 740;
        const double near = smooth(1, 0, std::hypot(x, y) / light.radius);
        color = mix(color, primary, near * light.opacity * on);
    }
    // The welcome screen's light from above, which the drop takes along.
    const double above = smooth(1, 0, std::hypot(p.x, p.y + halfHeight) / (halfHeight * 1.1));
    return mix(color, primary, above * 0.12 * (1 - smooth(fallBegins, impact + 0.4, frame.t)));
}

Rgb drop(const Frame& frame, Point p) {
    const double fallen = ramp(fallBegins, impact, frame.t);
    const double y = -(halfHeight + 12) * (1 - fallen * fallen);
    const double tail = 6 + 70 * fallen;
    const double along = std::clamp((y - p.y) / tail, 0.0, 1.0);  // 0 at the drop
    const double beside = std::hypot(p.x, p.y - (y - along * tail));
    const double thickness = 2.6 * (1 - along) + 0.4;
    const double fade = (1 - along) * (1 - along);
    return soft * (coverage(beside - thickness, 1.4) * fade) +
           primary * (gauss(beside / (thickness * 5)) * 0.45 * fade);
}

/// What the impact throws up.
Rgb spray(const Frame& frame, Point p) {
    if (frame.since > 0.9) return {0, 0, 0};
    Rgb sum{0, 0, 0};
    for (int i = 0; i < 9; ++i) {
        const double side = (i - 4) * 13.0 + std::sin(i * 7.3) * 6;
        const double up = 150 - std::abs(i - 4) * 17.0 + std::cos(i * 3.1) * 22;
        const double x = side * frame.since * 2.4;
        const double y = -up * frame.since + 210 * frame.since * frame.since;
        const double size = 1.5 + 0.7 * std::sin(i * 5.0);
        const double far = std::hypot(p.x - x, p.y - y);
        if (far > 20) continue;
        const double fade = 1 - smooth(0.35, 0.85, frame.since);
        sum = sum + soft * (coverage(far - size, 1.2) * fade) +
              primary * (gauss(far / 6) * 0.16 * fade);
    }
    return sum;
}

/// Rings that run out over the water that is not yet seen.
Rgb ripples(const Frame& frame, Point p) {
    Rgb sum = soft * (gauss(std::hypot(p.x, p.y) / 16) * std::exp(-frame.since * 7));
    const double far = std::hypot(p.x, p.y / frame.tilt);
    for (int i = 0; i < 3; ++i) {
        const double age = frame.since - 0.17 * i;
        if (age < 0) continue;
        const double radius = 150 * easeOut(std::min(age / 1.9, 1.0));
        const double strength = std::pow(std::max(1 - age / 1.7, 0.0), 1.6) * (0.55 - 0.13 * i);
        const double away = std::abs(far - radius);
        sum = sum + primary * ((gauss(away / 1.3) + gauss(away / 7) * 0.30) * strength);
    }
    return sum;
}

/// Small lights that rise through the water.
double bubbles(const Frame& frame, Point p) {
    double sum = 0;
    for (int i = 0; i < 8; ++i) {
        const double age = frame.t - tideBegins - 0.35 - 0.16 * i;
        if (age < 0) continue;
        const double x = std::sin(i * 12.9) * 34 + std::sin(age * 3 + i) * 2;
        const double y = 54 - age * (17 + 5 * std::sin(i * 4.7));
        const double size = 1.2 + 0.8 * std::sin(i * 2.3 + 1);
        sum += coverage(std::hypot(p.x - x, p.y - y) - size, 1.2) * (1 - smooth(1.2, 2.0, age));
    }
    return std::min(sum, 1.0) * 0.5;
}

Rgb inWell(const Frame& frame, Point p) {
    Rgb color = mix(base, primary, 0.05);
    const Rgb far = mix(rgb(0x8df7b8), rgb(0x22bd6c), ramp(-18, 20, p.y - frame.back.level - 5));
    color = mix(color, far, coverage(frame.back.distance(p)) * backOpacity);
    const double distance = frame.front.distance(p);
    const double crest = gauss((distance + 1.5) / 1.8) * 0.6 * unrestAt(frame.t);
    Rgb water = mix(wellColor(p), soft, crest);
    water = mix(water, soft, bubbles(frame, p));
    return mix(color, water, coverage(distance));
}

Rgb drawn(const Frame& frame, Point p) {
    Rgb color = canvas(frame, p);
    if (frame.since < 0.02) color = color + drop(frame, p);
    if (frame.since < 0) return color;

    const double far = std::hypot(p.x, p.y / frame.tilt);
    const double outer = rimRadius * easeOut(ramp(impact, rimStands, frame.t));
    const double inner = outer - (rimRadius - wellRadius) * (0.10 + 0.90 * frame.rim);
    const double pixel = unitsPerPixel / std::max(frame.tilt, 0.45);
    const double shown = smooth(0, 0.25, frame.since);

    const double pulse = 1 + 0.35 * gauss((frame.t - tideStands) / 0.5);
    const double away = std::max(far - outer, 0.0);
    color = color + primary * ((gauss(away / 26) * 0.20 + gauss(away / 75) * 0.13) * shown * pulse);
    color = color + ripples(frame, p);

    if (far < outer + 1) {
        const double inside = coverage(far - inner - 1, pixel) * shown;
        color = mix(color, inWell(frame, p), inside);
        const double ring = coverage(far - outer, pixel) * coverage(inner - far, pixel);
        color = mix(color, wellColor(p), ring * shown);
    }
    return color + spray(frame, p);
}

std::uint8_t byteOf(double value, double dither) {
    return static_cast<std::uint8_t>(std::clamp(value * 255 + dither, 0.0, 255.0));
}

void drawRows(const Frame& frame, std::vector<std::uint8_t>& picture, int first, int step) {
    std::uint32_t random = 2463534242u + static_cast<std::uint32_t>(first);
    for (int row = first; row < height; row += step) {
        for (int column = 0; column < width; ++column) {
            random ^= random << 13;
            random ^= random >> 17;
            random ^= random << 5;
            const double dither = random / 4294967296.0;
            const Point p{(column + 0.5 - width / 2.0) * unitsPerPixel,
                          (row + 0.5 - height / 2.0) * unitsPerPixel};
            const Rgb color = drawn(frame, p);
            auto* pixel = &picture[static_cast<std::size_t>(row * width + column) * 3];
            pixel[0] = byteOf(color.r, dither);
            pixel[1] = byteOf(color.g, dither);
            pixel[2] = byteOf(color.b, dither);
        }
    }
}

}  // namespace

int main() {
    std::vector<std::uint8_t> picture(static_cast<std::size_t>(width) * height * 3);
    const int workers = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
    for (int i = 0; i < static_cast<int>(duration * framesPerSecond); ++i) {
        const Frame frame(static_cast<double>(i) / framesPerSecond);
        std::vector<std::jthread> threads;
        for (int first = 0; first < workers; ++first)
            threads.emplace_back([&, first] { drawRows(frame, picture, first, workers); });
        threads.clear();
        std::fwrite(picture.data(), 1, picture.size(), stdout);
    }
    return std::ferror(stdout) ? 1 : 0;
}
