// SPDX-License-Identifier: MIT
#include "prepare/svg/size.h"

#include "base/picture.h"
#include "prepare/svg/svg_names.h"
#include "prepare/svg/text_reader.h"

#include <utility>

namespace torvik::svg {
namespace {

constexpr double usualPixels = 96;

struct Pixels {
    double perInch = usualPixels;
    std::string reason;
};

// Inkscape counted 90 pixels to the inch before its version 0.92.
bool isOldInkscape(std::string_view version) {
    TextReader reader(trimmed(version));
    if (!reader.take('0') || !reader.take('.'))
        return false;
    const auto minor = reader.takeNumber();
    return minor && *minor < 92;
}

Pixels pixelsOf(const Document& document, const SourceOptions& options) {
    constexpr double pixelsOfOldInkscape = 90;
    constexpr double pixelsOfIllustrator = 72;
    if (options.dpi)
        return {*options.dpi, "as asked for"};
    const std::string_view version = document.root().attribute("inkscape:version").value();
    if (isOldInkscape(version))
        return {pixelsOfOldInkscape,
                "as in Inkscape " + std::string(version.substr(0, version.find(' ')))};
    if (document.generator().find("Adobe Illustrator") != std::string::npos)
        return {pixelsOfIllustrator, "as in Adobe Illustrator"};
    return {};
}

std::string remarkOn(const Pixels& pixels) {
    std::string number = formatFixed(pixels.perInch, 2);
    number.resize(number.find_last_not_of('0') + 1);
    if (number.back() == '.')
        number.pop_back();
    return "the size is in pixels; " + number + " to the inch are taken" +
           (pixels.reason.empty() ? "" : ", " + pixels.reason);
}

} // namespace

PictureSize sizeOf(const Document& document, const SourceOptions& options) {
    const Pixels pixels = pixelsOf(document, options);
    const pugi::xml_node root = document.root();
    const std::string_view widthText = root.attribute("width").value();
    const std::string_view heightText = root.attribute("height").value();
    const auto box = viewBoxOf(root.attribute("viewBox").value());
    PictureSize size;
    size.rules.pixelsPerInch = pixels.perInch;
    auto width = lengthOf(widthText, size.rules, box ? box->width : 0);
    auto height = lengthOf(heightText, size.rules, box ? box->height : 0);
    if (box && !width)
        width = height ? *height * box->width / box->height : box->width;
    if (box && !height)
        height = *width * box->height / box->width;
    if (width && height && *width > 0 && *height > 0) {
        size.width = *width;
        size.height = *height;
        if (box)
            size.map = viewBoxMap(*box, {0, 0, *width, *height},
                                  root.attribute("preserveAspectRatio").value());
    }
    size.rules.width = box ? box->width : size.width;
    size.rules.height = box ? box->height : size.height;
    if (!hasRealUnit(widthText) && !hasRealUnit(heightText))
        size.remark = remarkOn(pixels);
    return size;
}

} // namespace torvik::svg
