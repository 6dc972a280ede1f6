// SPDX-License-Identifier: MIT
// From the coordinates that a drawing is written in to plotter units: the corners P1 and P2 (IP,
// IR), scaling between them (SC), rotation by quarter turns (RO) and the page (PS).
#pragma once

#include "prepare/strokes.h"

#include <optional>
#include <span>

namespace torvik {

class Frame {
public:
    Frame() { update(); }

    // SC: four numbers or more; none switches scaling off. False where the numbers scale nothing.
    bool setScale(std::span<const double> numbers);
    // IP: one or two corners in plotter units; none brings the page's own back.
    bool setCorners(std::span<const double> numbers);
    // IR: the same in hundredths of the page.
    bool setCornersInHundredths(std::span<const double> numbers);
    // RO: 0, 90, 180 or 270 degrees.
    bool setRotation(double degrees);
    // PS: length and width.
    bool setPage(std::span<const double> numbers);
    // DF: scaling off, the rest stays.
    void unscale();

    Point toPlotter(Point user) const {
        // Most pages are not turned, and every place of a drawing goes this way.
        if (m_quarters == 0)
            return {user.x * m_scaleX + m_shift.x + 0.0, user.y * m_scaleY + m_shift.y + 0.0};
        return toTurnedPage(user);
    }
    Point vectorToPlotter(Point user) const; // without the shift
    Point toUser(Point plotter) const;

    // Whether circles stay circles.
    bool keepsCircles() const;
    // The factor of lengths where circles stay circles.
    double factor() const { return std::fabs(m_scaleX); }
    bool isMirrored() const { return (m_scaleX < 0) != (m_scaleY < 0); }

    // A length given along the page's own directions, as tick marks are.
    Point pageVector(Point vector) const;
    Point cornerDistance() const { return m_high - m_low; }

    // Width and height of letters where the drawing sets none: plotters for small paper write
    // smaller ones than those whose paper is told.
    Point usualLetter() const { return m_ownPage ? Point{114, 150} : Point{74.8, 107.6}; }

    // Whether a scale hung on corners that the drawing never gave.
    bool guessedCorners() const { return m_guessedCorners; }

private:
    enum class Fit { stretched, isotropic, factors };
    struct Scale {
        Point from; // the user's coordinates at P1 ...
        Point to;   // ... and at P2, or the plotter units of one user unit
        Fit fit = Fit::stretched;
        Point leftOver{50, 50}; // hundredths of the free space to the left and below
    };

    Point page() const;
    Point toTurnedPage(Point user) const;
    void setDefaultCorners();
    bool moveCorners(std::span<const double> numbers, Point unit);
    void update();
    void updateScale(const Scale& scale);

    Point m_pageSize{11040, 7721};
    bool m_ownPage = false;
    Point m_low{603, 521};
    Point m_high{10603, 7721};
    bool m_ownCorners = false;
    bool m_guessedCorners = false;
    int m_quarters = 0;
    std::optional<Scale> m_scale;

    double m_scaleX = 1;
    double m_scaleY = 1;
    Point m_shift;
};

} // namespace torvik
