// SPDX-License-Identifier: MIT
#include "prepare/svg/view_box.h"

#include "prepare/svg/text_reader.h"

#include <algorithm>
#include <array>

namespace torvik::svg {
namespace {

// Which part of the room left over comes before: "Min" none, "Mid" half, "Max" all.
double partBefore(std::string_view alignment) {
    if (alignment == "Min")
        return 0;
    return alignment == "Max" ? 1 : 0.5;
}

} // namespace

std::optional<Rectangle> viewBoxOf(std::string_view text) {
    TextReader reader(trimmed(text));
    std::array<double, 4> numbers{};
    for (double& number : numbers) {
        const auto read = reader.takeNumber();
        if (!read)
            return {};
        number = *read;
        reader.skipSeparator();
    }
    if (!(numbers[2] > 0 && numbers[3] > 0))
        return {};
    return Rectangle{numbers[0], numbers[1], numbers[2], numbers[3]};
}

Affine viewBoxMap(const Rectangle& viewBox, const Rectangle& viewport, std::string_view aspect) {
    TextReader reader(trimmed(aspect));
    std::string_view alignment = reader.takeName();
    reader.skipBlanks();
    if (alignment == "defer") {
        alignment = reader.takeName();
        reader.skipBlanks();
    }
    double x = viewport.width / viewBox.width;
    double y = viewport.height / viewBox.height;
    double left = 0;
    double top = 0;
    if (alignment != "none") {
        x = y = reader.rest() == "slice" ? std::max(x, y) : std::min(x, y);
        // "xMidYMax"
        const bool isNamed = alignment.size() == 8;
        left = (viewport.width - viewBox.width * x) *
               partBefore(isNamed ? alignment.substr(1, 3) : "Mid");
        top = (viewport.height - viewBox.height * y) *
              partBefore(isNamed ? alignment.substr(5, 3) : "Mid");
    }
    return moved({viewport.x + left, viewport.y + top}) * scaled(x, y) *
           moved({-viewBox.x, -viewBox.y});
}

} // namespace torvik::svg
