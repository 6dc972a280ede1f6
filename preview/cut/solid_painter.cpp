// SPDX-License-Identifier: MIT
#include "preview/cut/solid_painter.h"

#include "base/threads.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace torvik {
namespace {

constexpr float room = 1.03F;     // round the piece
constexpr float viewAngle = 0.5F; // radians from the lower to the upper edge
constexpr int stripRows = 16;     // pixels, what a thread takes at a time
constexpr float never = 1e30F;

struct Vector {
    float x;
    float y;
    float z;
};

Vector operator+(Vector a, Vector b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
Vector operator*(Vector a, float b) {
    return {a.x * b, a.y * b, a.z * b};
}

QRgb shaded(QRgb colour, float light) {
    const auto part = [light](int value) {
        return static_cast<int>(std::min(static_cast<float>(value) * light, 255.0F));
    };
    return qRgb(part(qRed(colour)), part(qGreen(colour)), part(qBlue(colour)));
}

class SolidPainter {
public:
    SolidPainter(const SolidCells& cells, const SolidCamera& camera, QSize size);

    void paintRow(QRgb* line, int y, int width) const;

private:
    QRgb colourOf(Vector ray) const;
    QRgb walk(Vector ray, float enter, bool fromTop, int side) const;
    QRgb wall(std::uint8_t facing) const { return shaded(wallColour, m_wallLight[facing]); }

    static constexpr QRgb wallColour = 0xFFE2CFA8;

    const SolidCells& m_cells;
    QRgb m_background;
    QRgb m_hole;
    Vector m_eye{};
    Vector m_corner{}; // the ray of the picture's upper left corner
    Vector m_right{};  // from pixel to pixel
    Vector m_down{};
    std::array<float, 256> m_wallLight{};
};

SolidPainter::SolidPainter(const SolidCells& cells, const SolidCamera& camera, QSize size)
    : m_cells(cells), m_background(camera.background), m_hole(shaded(camera.background, 0.8F)) {
    const auto turn = static_cast<float>(camera.turn);
    const auto lift = static_cast<float>(camera.lift);
    const auto width = static_cast<float>(cells.columns);
    const auto depth = static_cast<float>(cells.rows);
    const Vector back{std::cos(turn) * std::cos(lift), std::sin(turn) * std::cos(lift),
                      std::sin(lift)};
    const Vector right{-std::sin(turn), std::cos(turn), 0};
    const Vector up{-std::cos(turn) * std::sin(lift), -std::sin(turn) * std::sin(lift),
                    std::cos(lift)};
    // So far that a ball round all of it can be seen, in a narrow window too.
    const float narrow =
        std::min(1.0F, static_cast<float>(size.width()) / static_cast<float>(size.height()));
    const float ball = room * std::hypot(width, depth, cells.thickness) / 2;
    const float far = ball / std::sin(std::atan(std::tan(viewAngle / 2) * narrow));
    const Vector middle{width / 2, depth / 2, -cells.thickness / 2};
    m_eye = middle + back * (far / static_cast<float>(camera.zoom));
    const float step = 2 * std::tan(viewAngle / 2) / static_cast<float>(size.height());
    m_right = right * step;
    m_down = up * -step;
    m_corner = back * -1 + m_right * (0.5F - static_cast<float>(size.width()) / 2) +
               m_down * (0.5F - static_cast<float>(size.height()) / 2);
    // The light comes from the left behind who looks.
    const float light = turn - 0.9F;
    for (std::size_t i = 0; i < m_wallLight.size(); ++i) {
        const float facing = static_cast<float>(i) * 2 * std::numbers::pi_v<float> / 256;
        m_wallLight[i] = 0.45F + 0.45F * std::max(0.0F, std::cos(facing - light));
    }
}

void SolidPainter::paintRow(QRgb* line, int y, int width) const {
    Vector ray = m_corner + m_down * static_cast<float>(y);
    for (int x = 0; x < width; ++x, ray = ray + m_right)
        line[x] = colourOf(ray);
}

// Where the ray enters the billet's box, and through which of its faces.
QRgb SolidPainter::colourOf(Vector ray) const {
    const auto width = static_cast<float>(m_cells.columns);
    const auto depth = static_cast<float>(m_cells.rows);
    if (ray.z >= 0)
        return m_background; // the eye stands above the surface
    const auto slab = [](float eye, float way, float high, float& low, float& far) {
        if (way == 0) {
            low = eye < 0 || eye > high ? never : -never;
            far = never;
            return;
        }
        low = -eye / way;
        far = (high - eye) / way;
        if (low > far)
            std::swap(low, far);
    };
    float enterX = 0;
    float leaveX = 0;
    float enterY = 0;
    float leaveY = 0;
    slab(m_eye.x, ray.x, width, enterX, leaveX);
    slab(m_eye.y, ray.y, depth, enterY, leaveY);
    const float enterZ = -m_eye.z / ray.z;
    const float leaveZ = (-m_cells.thickness - m_eye.z) / ray.z;
    const float enter = std::max({enterX, enterY, enterZ});
    if (enter >= std::min({leaveX, leaveY, leaveZ}))
        return m_background;
    if (enter == enterZ)
        return walk(ray, enter, true, 0);
    const int side = enter == enterX ? (ray.x > 0 ? 128 : 0) : (ray.y > 0 ? 192 : 64);
    return walk(ray, enter, false, side);
}

// From cell to cell until the ray meets a top or a wall.
QRgb SolidPainter::walk(Vector ray, float enter, bool fromTop, int side) const {
    const Vector at = m_eye + ray * enter;
    int column = std::clamp(static_cast<int>(at.x), 0, m_cells.columns - 1);
    int row = std::clamp(static_cast<int>(at.y), 0, m_cells.rows - 1);
    std::ptrdiff_t cell = std::ptrdiff_t{row} * m_cells.columns + column;
    const float* const heights = m_cells.heights.data();
    if (!fromTop && at.z <= heights[cell])
        return wall(static_cast<std::uint8_t>(side));

    const int stepX = ray.x > 0 ? 1 : -1;
    const int stepY = ray.y > 0 ? 1 : -1;
    const std::ptrdiff_t rowStep = std::ptrdiff_t{stepY} * m_cells.columns;
    const float eachX = ray.x == 0 ? never : std::fabs(1 / ray.x);
    const float eachY = ray.y == 0 ? never : std::fabs(1 / ray.y);
    const auto next = [](float eye, float way, int place) {
        return way == 0 ? never : (static_cast<float>(place + (way > 0 ? 1 : 0)) - eye) / way;
    };
    float nextX = next(m_eye.x, ray.x, column);
    float nextY = next(m_eye.y, ray.y, row);
    for (;;) {
        const bool isX = nextX < nextY;
        const float leave = isX ? nextX : nextY;
        const float height = m_eye.z + ray.z * leave;
        if (height <= heights[cell]) {
            if (heights[cell] <= -m_cells.thickness)
                return m_hole;
            return m_cells.tops[static_cast<std::size_t>(cell)];
        }
        if (isX) {
            nextX += eachX;
            column += stepX;
            cell += stepX;
            if (column < 0 || column >= m_cells.columns)
                return m_background;
        } else {
            nextY += eachY;
            row += stepY;
            cell += rowStep;
            if (row < 0 || row >= m_cells.rows)
                return m_background;
        }
        if (height <= heights[cell])
            return wall(m_cells.walls[static_cast<std::size_t>(cell)]);
    }
}

} // namespace

void SolidCamera::turnBy(double turned, double lifted) {
    turn = std::remainder(turn + turned, 2 * std::numbers::pi);
    lift = std::clamp(lift + lifted, leastLift, mostLift);
}

void SolidCamera::zoomBy(double factor) {
    zoom = std::clamp(zoom * factor, leastZoom, mostZoom);
}

void paintSolid(QImage& image, const SolidCells& cells, const SolidCamera& camera, int threads) {
    const SolidPainter painter(cells, camera, image.size());
    QRgb* const pixels = reinterpret_cast<QRgb*>(image.bits());
    const std::ptrdiff_t lineLength = image.bytesPerLine() / std::ptrdiff_t{sizeof(QRgb)};
    const int width = image.width();
    const int height = image.height();
    inThreads((height + stripRows - 1) / stripRows, threads, [&](int strip) {
        const int first = strip * stripRows;
        for (int y = first; y < std::min(first + stripRows, height); ++y)
            painter.paintRow(pixels + y * lineLength, y, width);
    });
}

} // namespace torvik
