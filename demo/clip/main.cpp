#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// Draws the lesson's recording, a curve that grows on a blackboard, and writes its raw frames to standard output: 24 a
// second, 960 x 540, I420 (a plane of brightness, two of colour at half the size).

namespace {

constexpr int kWidth = 960;
constexpr int kHeight = 540;
constexpr int kFrames = 144;
/// The last second shows the whole curve.
constexpr int kDrawingFrames = 120;
constexpr int kMargin = 60;
constexpr int kGrid = 60;

/// Brightness and the two colours.
using Colour = std::array<std::uint8_t, 3>;
constexpr Colour kBoard{48, 132, 117};
constexpr Colour kLine{70, 131, 116};
constexpr Colour kAxis{190, 128, 126};
constexpr Colour kCurve{200, 68, 158};
constexpr Colour kPoint{235, 128, 128};

struct Plane {
    int scale;
    std::array<std::uint8_t, std::size_t{kWidth} * kHeight> pixels;

    [[nodiscard]] int width() const { return kWidth / scale; }

    [[nodiscard]] int height() const { return kHeight / scale; }

    [[nodiscard]] std::size_t size() const
    {
        return static_cast<std::size_t>(width()) * static_cast<unsigned>(height());
    }

    std::uint8_t& at(int x, int y)
    {
        const int place = y * width() + x;
        return pixels[static_cast<std::size_t>(place)];
    }
};

class Picture {
public:
    Picture()
    {
        for (std::size_t i = 0; i < planes_.size(); ++i) {
            planes_[i].scale = i == 0 ? 1 : 2;
            planes_[i].pixels.fill(kBoard[i]);
        }
    }

    void disc(double x, double y, double radius, const Colour& colour)
    {
        for (std::size_t i = 0; i < planes_.size(); ++i) {
            stamp(planes_[i], {x / planes_[i].scale, y / planes_[i].scale, radius / planes_[i].scale}, colour[i]);
        }
    }

    void line(int x, int y, int toX, int toY, double radius, const Colour& colour)
    {
        const int steps = std::max(toX - x, toY - y);
        for (int step = 0; step <= steps; ++step) {
            disc(toX > x ? x + step : x, toY > y ? y + step : y, radius, colour);
        }
    }

    [[nodiscard]] bool write(std::FILE* file) const
    {
        return std::all_of(planes_.begin(), planes_.end(), [file](const Plane& plane) {
            return std::fwrite(plane.pixels.data(), 1, plane.size(), file) == plane.size();
        });
    }

private:
    struct Disc {
        double x;
        double y;
        double radius;
    };

    /// Pixels at the edge take a part of the colour.
    static void stamp(Plane& plane, const Disc& disc, std::uint8_t value)
    {
        const int reach = static_cast<int>(disc.radius) + 2;
        const int left = static_cast<int>(disc.x) - reach;
        const int top = static_cast<int>(disc.y) - reach;
        for (int y = std::max(0, top); y < std::min(plane.height(), top + 2 * reach); ++y) {
            for (int x = std::max(0, left); x < std::min(plane.width(), left + 2 * reach); ++x) {
                const double distance = std::hypot(x - disc.x, y - disc.y);
                const double part = std::clamp(disc.radius + 0.5 - distance, 0.0, 1.0);
                auto& pixel = plane.at(x, y);
                pixel = static_cast<std::uint8_t>(std::lround(pixel + part * (value - pixel)));
            }
        }
    }

    std::array<Plane, 3> planes_{};
};

double heightAt(double x)
{
    constexpr double kPeriod = (kWidth - 2 * kMargin) / 2.0;
    return kHeight / 2.0 - 150 * std::sin(2 * M_PI * (x - kMargin) / kPeriod);
}

void drawAxes(Picture& picture)
{
    for (int x = kMargin; x <= kWidth - kMargin; x += kGrid) {
        picture.line(x, kMargin, x, kHeight - kMargin, 0.6, kLine);
    }
    for (int y = kHeight / 2 % kGrid + kMargin; y <= kHeight - kMargin; y += kGrid) {
        picture.line(kMargin, y, kWidth - kMargin, y, 0.6, kLine);
    }
    picture.line(kMargin, kMargin, kMargin, kHeight - kMargin, 1.5, kAxis);
    picture.line(kMargin, kHeight / 2, kWidth - kMargin, kHeight / 2, 1.5, kAxis);
}

} // namespace

int main()
{
    static Picture board;
    static Picture frame;
    drawAxes(board);
    // In half pixels, so that no gap shows where the curve is steep.
    int drawn = 2 * kMargin;
    for (int number = 1; number <= kFrames; ++number) {
        const double x =
            kMargin + (kWidth - 2.0 * kMargin) * std::min(1.0, static_cast<double>(number) / kDrawingFrames);
        for (; drawn <= 2 * x; ++drawn) {
            board.disc(drawn / 2.0, heightAt(drawn / 2.0), 3, kCurve);
        }
        frame = board;
        frame.disc(x, heightAt(x), 12, kPoint);
        if (!frame.write(stdout)) {
            std::perror("orken-demo-clip");
            return EXIT_FAILURE;
        }
    }
    return std::fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
