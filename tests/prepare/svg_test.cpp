// SPDX-License-Identifier: MIT
// SVG pictures as strokes.
#include "prepare/svg/pen_colours.h"
#include "prepare/svg/svg_source.h"
#include "stroke_text.h"

#include <gtest/gtest.h>
#include <string>

namespace torvik {
namespace {

// A picture of 100 mm by 50 mm, where a user unit is a mm and so 40 plotter units.
const std::string usualSize = R"(width="100mm" height="50mm" viewBox="0 0 100 50")";

std::string picture(const std::string& content, const std::string& size = usualSize) {
    return R"(<?xml version="1.0"?><svg xmlns="http://www.w3.org/2000/svg" )"
           R"(xmlns:xlink="http://www.w3.org/1999/xlink" )" +
           size + ">" + content + "</svg>";
}

std::string line(const std::string& attributes = "") {
    return R"(<line x1="0" y1="50" x2="10" y2="40" stroke="black" )" + attributes + "/>";
}

// A shape that is not filled.
std::string shape(const std::string& drawn, const std::string& colour = "black") {
    return "<" + drawn + " fill='none' stroke='" + colour + "'/>";
}

struct Case {
    const char* name;
    std::string content;
    std::string strokes;
    std::string size = usualSize;
};

TEST(Svg, ShapesGroupsStylesAndSizes) {
    const std::vector<Case> cases{
        {"a line, upwards from the lower left corner", line(), "1: 0,0 L400,400"},
        {"a polyline and a polygon",
         shape(R"(polyline points="0,50 1,50 1,49")") + shape(R"(polygon points="0,50 2,50 2,48")"),
         "1: 0,0 L40,0 L40,40; 1: 0,0 L80,0 L80,80 L0,0"},
        {"a circle turned and scaled in groups is a circle",
         R"s(<g transform="translate(20,30) rotate(30)"><g transform="scale(2)">)s" +
             shape(R"(circle r="5")", "blue") + "</g></g>",
         "4: O800,800 r400"},
        {"a circle given as arcs of a path",
         shape(R"(path d="M25 30 A5 5 0 0 1 15 30 A5 5 0 0 1 25 30 Z")"),
         "1: 1000,800 A800,800 -90>800,600 A800,800 -90>600,800 A800,800 -90>800,1000 "
         "A800,800 -90>1000,800"},
        {"a rectangle with round corners keeps their radius",
         shape(R"(rect x="10" y="10" width="30" height="20" rx="5")"),
         "1: 600,1600 L1400,1600 A1400,1400 -90>1600,1400 L1600,1000 A1400,1000 -90>1400,800 "
         "L600,800 A600,1000 -90>400,1000 L400,1400 A600,1400 -90>600,1600"},
        {"a curve stays a curve", shape(R"(path d="M0 50 C 1 50 3 48 3 46")"),
         "1: 0,0 B40,0 120,80>120,160"},
        {"parts of a path are strokes of their own", shape(R"(path d="M0 50 h1 M5 50 v-1 M9 9")"),
         "1: 0,0 L40,0; 1: 200,0 L200,40"},
        {"lengths with units are lengths on the part",
         shape(R"(circle cx="1in" cy="50%" r="25.4mm")"), "1: O3840,1000 r3840"},
        {"rules for a name and for a kind of shape",
         "<style>path{fill:none;stroke:rgb(0%,0%,100%)} #b{stroke:purple}</style>" +
             std::string(R"(<path d="M0 50h1"/><path id="b" d="M0 50h1"/>)"),
         "4: 0,0 L40,0; 8: 0,0 L40,0"},
        {"an area without a line is drawn by its outline",
         R"(<path d="M0 50h1v-1z" fill="#0000ff" stroke="none"/>)", "4: 0,0 L40,0 L40,40 L0,0"},
        {"an area with a line is drawn once, in the line's colour",
         R"(<path d="M0 50h1v-1z" fill="blue" stroke="red"/>)", "2: 0,0 L40,0 L40,40 L0,0"},
        {"what is hidden is not drawn", line(R"(display="none")") + line(R"(visibility="hidden")"),
         ""},
        {"a symbol is drawn where it is used",
         R"(<symbol id="s">)" + line() + R"(</symbol><use xlink:href="#s" x="5"/>)",
         "1: 200,0 L600,400"},
        {"texts and pictures are not drawn",
         R"(<text x="5" y="5" font-size="2em">T</text><image width="5" height="5"/>)", ""},
        {"a view box of other units is stretched to the size", line(), "1: 0,0 L200,200",
         R"(width="50mm" height="25mm" viewBox="0 0 100 50")"},
        {"a view box need not begin at the corner", line(), "1: 400,0 L800,400",
         R"(width="100mm" height="50mm" viewBox="-10 0 100 50")"},
        {"without a view box a user unit is 1/96 inch", line(), "1: 0,0 L105.833,105.833",
         R"(width="96" height="50px")"},
        {"a view box alone counts such units", line(), "1: 0,0 L105.833,105.833",
         R"(viewBox="0 0 96 50")"},
        {"one length brings the other", line(), "1: 0,0 L400,400",
         R"(width="100mm" viewBox="0 0 100 50")"},
        {"a picture of another shape stands in the middle", line(), "1: 2000,0 L2400,400",
         R"(width="200mm" height="50mm" viewBox="0 0 100 50")"},
        {"unless it is stretched", line(), "1: 0,0 L800,400",
         R"(width="200mm" height="50mm" viewBox="0 0 100 50" preserveAspectRatio="none")"},
    };
    for (const Case& one : cases)
        EXPECT_EQ(strokesText(readSvg(picture(one.content, one.size), "a.svg").strokes),
                  one.strokes)
            << one.name;
}

TEST(Svg, ColoursAreShownAndCanBeMapped) {
    const std::string content = line() + line(R"(style="stroke:#12fe10")") + line();
    const auto drawing = readSvg(picture(content), "a.svg", {{{"#12fe10", 7}}});
    ASSERT_EQ(drawing.report.colours.size(), 2U);
    EXPECT_EQ(drawing.report.colours[0].colour, "#000000");
    EXPECT_EQ(drawing.report.colours[0].strokes, 2);
    EXPECT_EQ(drawing.strokes[1].pen, 7);
}

TEST(Svg, CountsWhatIsNotCarriedOver) {
    const auto report =
        readSvg(picture(R"(<defs><clipPath id="c"><rect width="9" height="9"/></clipPath>)"
                        R"(<linearGradient id="g"><stop offset="0" stop-color="red"/>)"
                        R"(<stop offset="1" stop-color="red"/></linearGradient></defs>)"
                        R"(<text>a<tspan>b</tspan></text><image width="1" height="1"/>)"
                        R"s(<path d="M0 0h1v1z" fill="url(#g)" clip-path="url(#c)"/>)s"
                        R"s(<g style="mask:url(#m)">)s" +
                        line(R"(stroke-dasharray="2 1")") + "</g>"),
                "a.svg")
            .report;
    // From texts to instructions without numbers, as they stand in Loss.
    EXPECT_EQ(report.losses, (std::array<long, lossCount>{1, 0, 1, 1, 1, 1, 2}));
    EXPECT_EQ(report.instructions.at("path"), 1);
}

TEST(Svg, RefusesWhatIsNoPicture) {
    for (const char* bytes : {"", "IN;SP1;", "<html/>", "<svg xmlns='http://www.w3.org/2000/svg'>"})
        EXPECT_EQ(refusal([&] { readSvg(bytes, "a.svg"); }).substr(0, 7), "a.svg: ") << bytes;
}

TEST(PenColours, AreTheNearestToTheEye) {
    const std::vector<std::pair<std::uint32_t, int>> cases{
        {0x000000, 1}, {0x333333, 1}, {0xFF0000, 2}, {0xCC1111, 2}, {0x008000, 3},
        {0x33CC33, 3}, {0x0000FF, 4}, {0x808080, 1}, {0x804000, 5}, {0x8B4513, 5},
        {0xFFA500, 6}, {0xFF80C0, 7}, {0xFFC0CB, 7}, {0x400080, 8}, {0x4B0082, 8}};
    for (const auto& [colour, pen] : cases)
        EXPECT_EQ(nearestPen(colour), pen) << colourName(colour);
    EXPECT_EQ(colourName(0x0A0B0C), "#0a0b0c");
}

} // namespace
} // namespace torvik
