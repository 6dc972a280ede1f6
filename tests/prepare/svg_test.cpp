// SPDX-License-Identifier: MIT
// SVG pictures as strokes.
#include "prepare/source/pen_colours.h"
#include "prepare/svg/svg_source.h"
#include "stroke_text.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

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

void expectStrokes(const std::vector<Case>& cases) {
    for (const Case& one : cases)
        EXPECT_EQ(strokesText(readSvg(picture(one.content, one.size), "a.svg").strokes),
                  one.strokes)
            << one.name;
}

std::string leftOutText(const SourceReport& report) {
    std::string text;
    for (const auto& [reason, count] : report.leftOut)
        text += (text.empty() ? "" : ", ") + reason + ": " + std::to_string(count);
    return text;
}

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
         "1: 1000,800 A800,800 -180>600,800 A800,800 -180>1000,800"},
        {"a rectangle with round corners keeps their radius",
         shape(R"(rect x="10" y="10" width="30" height="20" rx="5")"),
         "1: 600,1600 L1400,1600 A1400,1400 -90>1600,1400 L1600,1000 A1400,1000 -90>1400,800 "
         "L600,800 A600,1000 -90>400,1000 L400,1400 A600,1400 -90>600,1600"},
        {"the edge of an area is closed, a line stays a line",
         "<path d='M0 50h1v-1M5 50h1'/><path d='M0 50h1v-1' stroke='black'/>",
         "1: 0,0 L40,0 L40,40 L0,0; 1: 200,0 L240,0; 1: 0,0 L40,0 L40,40"},
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
        {"pictures are not drawn", R"(<image width="5" height="5"/>)", ""},
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
    expectStrokes(cases);
}

TEST(Svg, PathCommands) {
    // The path begins at the lower left corner.
    const auto path = [](const std::string& data) { return shape("path d='M0 50" + data + "'"); };
    expectStrokes({
        {"pairs after a move are lines, relative after a relative one",
         shape("path d='m1,49-1 1,1,0'"), "1: 40,40 L0,0 L40,0"},
        {"numbers need no blanks", path("l.5.5-1e0-1V40H10"),
         "1: 0,0 L20,-20 L-20,20 L-20,400 L400,400"},
        {"a smooth curve mirrors the handle", path("c1 0 2 1 3 0s1 1 2 1"),
         "1: 0,0 B40,0 80,-40>120,0 B160,40 160,-40>200,-40"},
        {"a smooth curve after none begins without a handle", path("s1 1 2 1"),
         "1: 0,0 B0,0 40,-40>80,-40"},
        {"a quadratic curve, and one that goes on", path("q3 0 3-3t3 3"),
         "1: 0,0 B80,0 120,40>120,120 B120,200 160,160>240,0"},
        {"flags written together", path("a5 5 0 0110 0a5,5,0,1,0-10,0"),
         "1: 0,0 A200,0 -180>400,0 A200,0 180>0,0"},
        {"the small and the large arc", path("a5 5 0 0 0 5 5m0 0a5 5 0 1 0-5-5"),
         "1: 0,0 A200,0 90>200,-200; 1: 200,-200 A200,0 270>0,0"},
        {"a radius of zero makes a line", path("a0 5 0 1 0 10 0"), "1: 0,0 L400,0"},
        {"radii too small grow", path("a1 1 0 0 1 10 0"), "1: 0,0 A200,0 -180>400,0"},
        {"an arc to its own start is none", path("a5 5 0 1 0 0 0h1"), "1: 0,0 L40,0"},
        {"a turned ellipse that the map makes round",
         "<g transform='scale(1 2)'>" + shape("path d='M0 0A1 2 90 0 1 4 0'") + "</g>",
         "1: 0,2000 A80,2000 -180>160,2000"},
        {"after a close the next part begins at its start", path("h1v-1zh-1"),
         "1: 0,0 L40,0 L40,40 L0,0; 1: 0,0 L-40,0"},
        {"what comes before an error is drawn", path("h1 x9"), "1: 0,0 L40,0"},
        {"a line to its own place is a dot", path("h0"), "1: 0,0"},
    });
}

TEST(Svg, TransformsAndViewports) {
    // A line of 1 mm from the upper left corner to the right.
    const auto under = [](const std::string& transform) {
        return "<g transform='" + transform + "'>" + shape("line x2='1'") + "</g>";
    };
    const std::string box = shape("rect width='10' height='10'");
    const std::string symbol = "<symbol id='s' viewBox='0 0 10 10'>" + box + "</symbol>";
    expectStrokes({
        {"a list works from its end", under("translate(1,2) scale(2)"), "1: 40,1920 L120,1920"},
        {"a matrix", under("matrix(0 1 -1 0 3 4)"), "1: 120,1840 L120,1800"},
        {"a rotation about a centre", under("rotate(90 1 0)"), "1: 40,2040 L40,2000"},
        {"a rotation about half a centre is not understood", under("rotate(90 1)"),
         "1: 0,2000 L40,2000"},
        {"skews", under("skewY(45)") + under("translate(0 1)skewX(45)"),
         "1: 0,2000 L40,1960; 1: 0,1960 L40,1960"},
        {"a transform as a property of a style",
         "<g style='transform:translate(1px,0px) rotate(90deg)'>" + shape("line x2='1'") + "</g>",
         "1: 40,2000 L40,1960"},
        {"a mirrored arc turns the other way",
         "<g transform='scale(-1 1)'>" + shape("path d='M0 0A1 1 0 0 1 2 0'") + "</g>",
         "1: 0,2000 A-40,2000 180>-80,2000"},
        {"an ellipse that the map makes round is a circle",
         "<g transform='scale(2 1)'>" + shape("circle r='0'") + shape("ellipse rx='1' ry='2'") +
             "</g>",
         "1: O0,2000 r80"},
        {"a picture within has its own view box",
         "<svg x='10' width='20' height='20' viewBox='0 0 10 10'>" + box + "</svg>",
         "1: 400,2000 L1200,2000 L1200,1200 L400,1200 L400,2000"},
        {"and may stand at its far end",
         "<svg width='20' height='10' viewBox='0 0 10 10' preserveAspectRatio='xMaxYMin meet'>" +
             box + "</svg>",
         "1: 400,2000 L800,2000 L800,1600 L400,1600 L400,2000"},
        {"or fill all of it",
         "<svg width='20' height='10' viewBox='0 0 10 10' preserveAspectRatio='xMidYMid slice'>" +
             box + "</svg>",
         "1: 0,2200 L800,2200 L800,1400 L0,1400 L0,2200"},
        {"a symbol is as large as its use says",
         symbol + "<use href='#s' x='5' width='20' height='20'/>",
         "1: 200,2000 L1000,2000 L1000,1200 L200,1200 L200,2000"},
        {"a symbol without a size fills the picture", symbol + "<use href='#s'/>",
         "1: 1000,2000 L3000,2000 L3000,0 L1000,0 L1000,2000"},
        {"a use takes over the colour of what is around it",
         "<defs><path id='p' d='M0 0h1'/></defs><g fill='none' stroke='red'><use href='#p'/></g>",
         "2: 0,2000 L40,2000"},
        {"a switch draws the first that is meant",
         "<switch><foreignObject/><g requiredExtensions='x'>" + box + "</g><g>" + under("") +
             "</g></switch>",
         "1: 0,2000 L40,2000"},
        {"radii of corners are clamped", shape("rect width='2' height='4' rx='9' ry='1'"),
         "1: 40,2000 A40,1960 -90>80,1960 L80,1880 A40,1880 -90>40,1840 A40,1880 -90>0,1880 "
         "L0,1960 A40,1960 -90>40,2000"},
    });
}

TEST(Svg, StyleSheetsAndColours) {
    // The pens of lines from a sheet and lines.
    const auto pens = [](const std::string& content) {
        std::string text;
        for (const Stroke& stroke : readSvg(picture(content), "a.svg").strokes)
            text += std::to_string(stroke.pen);
        return text;
    };
    const struct {
        const char* name;
        std::string content, expected;
    } cases[] = {
        {"a sheet is stronger than an attribute, an id than a class, a class than a name",
         "<style>.a{stroke:blue} line{stroke:green} #x{stroke:red}</style>"
         "<line class='b a' x2='1' stroke='red'/><line id='x' class='a' x2='1'/><line x2='1'/>",
         "423"},
        {"the style of the element is stronger, what is important strongest",
         "<style>line{stroke:red!important} path{stroke:red}</style>"
         "<line x2='1' style='stroke:blue'/><path d='M0 0h1' style='stroke:blue'/>",
         "24"},
        {"anywhere within, directly within, lists, any, comments, attributes",
         "<style>/* } */ <![CDATA[ g line,.q>line{stroke:red} g>line{stroke:blue}"
         " *{stroke:green} [x2='2']{stroke:purple} ]]></style>"
         "<g><a><line x2='1'/></a><line x2='1'/></g><a class='q'><line x2='1'/></a>"
         "<line x2='1'/><line x2='2'/>",
         "24238"},
        {"colours in all forms",
         "<g fill='none'><path d='M0 0h1' stroke='#F00'/><path d='M0 0h1' stroke='#f00f'/>"
         "<path d='M0 0h1' stroke='#0000ff80'/><path d='M0 0h1' stroke='RGB(255, 0, 0)'/>"
         "<path d='M0 0h1' stroke='rgba(0 0 255 / 50%)'/><path d='M0 0h1' "
         "stroke='hsl(120,100%,25%)'/>"
         "<path d='M0 0h1' stroke='hsla(240deg 100% 50% / .5)'/>"
         "<g color='blue'><path d='M0 0h1' stroke='currentColor'/></g></g>",
         "22424344"},
        {"a gradient is seen as the middle of its colours, a missing one as what follows it",
         "<linearGradient id='g'><stop stop-color='#00f'/><stop "
         "style='stop-color:#00f'/></linearGradient>"
         "<radialGradient id='h' href='#g'/><g stroke='url(\"#h\") red'><line x2='1'/></g>"
         "<line x2='1' stroke='url(#x) red'/><line x2='1' stroke='url(#x) rgb(0%,0%,100%)'/>"
         "<line x2='1' color='red' stroke='url(#x) currentColor'/>",
         "4242"},
        {"comments in a style",
         "<line x2='1' style='/*a:b*/stroke:/*c*/red/*d*/;/*e*/color/*f*/:blue'/>", "2"},
        {"display and visibility",
         "<g visibility='hidden'><line x2='1' visibility='visible' stroke='red'/></g>"
         "<g display='none'><line x2='1' display='inline' stroke='red'/></g>"
         "<g opacity='0'><line x2='1' stroke='red'/></g>",
         "2"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(pens(one.content), one.expected) << one.name;
}

TEST(Svg, SizesInEveryUnit) {
    const struct {
        const char* name;
        std::string size;
        double width; // of a rectangle of 96 user units
        SourceOptions options = {};
        const char* remark = "";
    } cases[] = {
        {"inches", "width='1in' height='1in'", 25.4},
        {"centimetres and a view box", "width='9.6cm' height='9.6cm' viewBox='0 0 96 96'", 96},
        {"points", "width='72pt' height='72pt' viewBox='0 0 96 96'", 25.4},
        {"picas", "width='6pc' height='6pc' viewBox='0 0 96 96'", 25.4},
        {"hundredths are those of the view box",
         "width='100%' height='100%' viewBox='0 0 96 96'",
         25.4,
         {},
         "the size is in pixels; 96 to the inch are taken"},
        {"no size at all", "", 25.4, {}, "the size is in pixels; 96 to the inch are taken"},
        {"Inkscape before 0.92",
         "width='90' height='90' viewBox='0 0 96 96' inkscape:version='0.91 r1'",
         25.4,
         {},
         "the size is in pixels; 90 to the inch are taken, as in Inkscape 0.91"},
        {"newer ones",
         "width='96' height='96' inkscape:version='0.92.3'",
         25.4,
         {},
         "the size is in pixels; 96 to the inch are taken"},
        {"as the user says",
         "width='96' height='96' inkscape:version='0.91'",
         50.8,
         {.dpi = 48},
         "the size is in pixels; 48 to the inch are taken, as asked for"},
        {"which changes no millimetres",
         "width='96mm' height='96mm' viewBox='0 0 96 96'",
         96,
         {.dpi = 48}},
    };
    for (const auto& one : cases) {
        const auto drawing =
            readSvg(picture(shape("rect width='96' height='96'"), one.size), "a.svg", one.options);
        const StrokeExtents extents = extentsOf(drawing.strokes);
        EXPECT_NEAR(extents.high.x - extents.low.x, one.width * 40, 1e-6) << one.name;
        EXPECT_NEAR(extents.low.y, 0, 1e-6) << one.name;
        EXPECT_EQ(drawing.report.remarks.empty() ? "" : drawing.report.remarks[0], one.remark)
            << one.name;
    }
    const auto drawing = readSvg("<!-- Generator: Adobe Illustrator 26 --><svg viewBox='0 0 72 72'>"
                                 "<path d='M0 0H72'/></svg>",
                                 "a.svg");
    EXPECT_EQ(strokesText(drawing.strokes), "1: 0,1016 L1016,1016");
}

TEST(Svg, EveryShapeIsDrawnOrCounted) {
    const struct {
        const char* name;
        std::string content, leftOut;
    } cases[] = {
        {"hidden ones",
         "<path d='M0 0h1' visibility='hidden'/><g style='display:none'><line x2='1'/></g>",
         "hidden shapes: 2"},
        {"without line and fill",
         "<path d='M0 0h1' fill='none'/><line x2='1'/>"
         "<path d='M0 0h1' fill='transparent' stroke='#f000'/>",
         "shapes without a visible line or fill: 3"},
        {"of no size",
         "<rect width='5'/><circle r='0'/><path d='M1 1'/><path d='x'/>"
         "<g transform='scale(0)'><path d='M0 0h1'/></g>",
         "shapes of no size: 5"},
        {"never used",
         "<defs><line/><clipPath><line/></clipPath></defs><symbol><line/></symbol><mask><line/></"
         "mask>",
         "shapes of clip paths, masks, patterns and markers: 2, shapes that are kept for use and "
         "not used: 2"},
        {"of other languages", "<metadata><line/></metadata><x:y xmlns:x='z'><line/></x:y>",
         "shapes within elements that are not drawn: 2"},
        {"within a text, a shape and a use",
         "<text x='1'><path d='M0 0h1'/><tspan><rect/><text/></tspan></text>"
         "<line><line x2='1' stroke='red'/></line><use href='#none'><circle r='1'/></use>",
         "shapes within texts, uses and other shapes: 5, shapes without a visible line or fill: 1, "
         "texts without letters: 1, uses of shapes that the file does not hold: 1"},
        {"used but missing", "<use href='#none'/>",
         "uses of shapes that the file does not hold: 1"},
        {"rules that are not understood",
         "<style>a:hover{fill:red} @media print{b{fill:red}}</style>",
         "rules of style sheets that are not understood: 2"},
    };
    for (const auto& one : cases) {
        const auto drawing = readSvg(picture(one.content), "a.svg");
        EXPECT_EQ(strokesText(drawing.strokes), "") << one.name;
        EXPECT_EQ(leftOutText(drawing.report), one.leftOut) << one.name;
    }
}

TEST(Svg, ColoursAreShownAndCanBeMapped) {
    const std::string content = line() + line(R"(style="stroke:#12fe10")") + line();
    const auto drawing = readSvg(picture(content), "a.svg", {.pens = {{"#12fe10", 7}}});
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
                "a.svg", {.texts = false})
            .report;
    // From texts to instructions without numbers, as they stand in Loss.
    EXPECT_EQ(report.losses, (std::array<long, lossCount>{1, 0, 1, 1, 1, 1, 2}));
    EXPECT_EQ(report.instructions.at("path"), 1);
    EXPECT_EQ(leftOutText(report), "shapes of clip paths, masks, patterns and markers: 1");
}

TEST(Svg, EntitiesOfThePicture) {
    const std::string head =
        "<!DOCTYPE svg PUBLIC 'x' 'http://none' [<!ENTITY ns 'http://www.w3.org/2000/svg'>"
        "<!ENTITY w '1'><!ENTITY far SYSTEM 'file:///etc/passwd'>]>";
    EXPECT_EQ(strokesText(readSvg(head + "<v:svg xmlns:v='&ns;' viewBox='0 0 9 9' width='9mm'>"
                                         "<v:path d='M0 9h&w;&amp;'/></v:svg>",
                                  "a.svg")
                              .strokes),
              "1: 0,0 L40,0");
}

TEST(Svg, RefusesWhatIsNoPictureAndWhatNeverEnds) {
    std::string bomb = "<path id='u0' d='M0 0h1'/>";
    std::string entities = "<!DOCTYPE svg [<!ENTITY e0 '0123456789'>";
    for (int i = 1; i < 10; ++i) {
        const std::string use = "<use href='#u" + std::to_string(i - 1) + "'/>";
        bomb += "<g id='u" + std::to_string(i) + "'>" + use + use + use + use + use + "</g>";
        const std::string entity = "&e" + std::to_string(i - 1) + ";";
        entities += "<!ENTITY e" + std::to_string(i) + " '" + entity + entity + entity + entity +
                    entity + entity + "'>";
    }
    std::string deep;
    for (int i = 0; i < 400; ++i)
        deep += "<g>";
    const std::pair<std::string, const char*> rows[] = {
        {"", "line 1: "},
        {"IN;SP1;", "line 1: "},
        {"<html/>", "this is no SVG picture"},
        {"<svg xmlns='http://www.w3.org/2000/svg'>\n<g>", "line 2: "},
        {picture("<g id='a'><use href='#a'/></g>"), "the element \"a\" uses itself"},
        {picture(bomb), "the picture draws the same elements more than 500000 times"},
        {entities + "]><svg>&e9;</svg>", "the picture's entities make it larger"},
        {"<!DOCTYPE svg [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><svg>&a;</svg>",
         "the picture's entities hold one another"},
        {"<svg>" + deep, "line 1: "},
        {picture("<path d='M0 0h1e9'/>"), "a place lies more than 100 m from the origin"},
    };
    for (const auto& [bytes, message] : rows)
        EXPECT_EQ(refusal([&, &text = bytes] {
                      readSvg(text, "a.svg");
                  }).find("a.svg: " + std::string(message)),
                  0U)
            << message;
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
