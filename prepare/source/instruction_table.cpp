// SPDX-License-Identifier: MIT
#include "prepare/source/instruction_table.h"

#include <array>

namespace torvik {
namespace {

using P = PenPlotter;
using enum Shape;
using enum Effect;

// clang-format off
constexpr auto table = std::to_array<Instruction>({
    // Pens, modes, lines
    {"IN", numbers, nothing, "[n]", &P::initialise, "start again: pen up at the origin, all settings as at first"},
    {"DF", numbers, nothing, "", &P::setDefaults, "settings as at first; place and corners stay"},
    {"SP", numbers, places, "[pen]", &P::selectPen, "take a pen; 0 or none puts it away"},
    {"PU", numbers, draws, "[x,y]...", &P::penUp, "pen up, and move"},
    {"PD", numbers, draws, "[x,y]...", &P::penDown, "pen down, and draw lines"},
    {"PA", numbers, draws, "[x,y]...", &P::plotAbsolute, "coordinates from the origin, and move or draw"},
    {"PR", numbers, draws, "[dx,dy]...", &P::plotRelative, "coordinates from the pen's place, and move or draw"},
    {"PE", encoded, draws, "characters", &P::plotEncoded, "moves and lines as encoded characters"},
    // Arcs and curves
    {"AA", numbers, draws, "x,y,sweep[,chord]", &P::arcAbsolute, "arc about a centre"},
    {"AR", numbers, draws, "dx,dy,sweep[,chord]", &P::arcRelative, "arc about a centre given from the pen's place"},
    {"AT", numbers, draws, "x,y,x,y[,chord]", &P::arcThroughAbsolute, "arc through a point to an end"},
    {"RT", numbers, draws, "dx,dy,dx,dy[,chord]", &P::arcThroughRelative, "arc through a point to an end, both from the pen's place"},
    {"BZ", numbers, draws, "(x,y,x,y,x,y)...", &P::bezierAbsolute, "cubic curves by two control points and an end"},
    {"BR", numbers, draws, "(dx,dy,dx,dy,dx,dy)...", &P::bezierRelative, "cubic curves, all points from where each begins"},
    // Figures
    {"CI", numbers, draws, "radius[,chord]", &P::circle, "circle about the pen's place"},
    {"EA", numbers, draws, "x,y", &P::edgeRectangleAbsolute, "rectangle to the opposite corner"},
    {"ER", numbers, draws, "dx,dy", &P::edgeRectangleRelative, "rectangle to the opposite corner, from the pen's place"},
    {"EW", numbers, draws, "radius,start,sweep[,chord]", &P::edgeWedge, "piece of a pie about the pen's place"},
    {"RA", numbers, draws, "x,y", &P::fillRectangleAbsolute, "filled rectangle; its outline is drawn"},
    {"RR", numbers, draws, "dx,dy", &P::fillRectangleRelative, "filled rectangle from the pen's place; its outline is drawn"},
    {"WG", numbers, draws, "radius,start,sweep[,chord]", &P::fillWedge, "filled piece of a pie; its outline is drawn"},
    {"XT", numbers, draws, "", &P::tickX, "tick mark across an X axis"},
    {"YT", numbers, draws, "", &P::tickY, "tick mark across a Y axis"},
    {"TL", numbers, nothing, "[plus[,minus]]", &P::setTickLengths, "lengths of tick marks, in hundredths of the corners' distance"},
    // Polygons
    {"PM", numbers, draws, "[0|1|2]", &P::polygonMode, "begin a polygon, close a part of it, end it"},
    {"EP", numbers, draws, "", &P::edgePolygon, "draw the polygon's edges"},
    {"FP", numbers, draws, "[n]", &P::fillPolygon, "fill the polygon; its outline is drawn"},
    // Units
    {"IP", numbers, places, "[x,y[,x,y]]", &P::setCorners, "corners P1 and P2"},
    {"IR", numbers, places, "[x,y[,x,y]]", &P::setCornersInHundredths, "corners P1 and P2 in hundredths of the page"},
    {"SC", numbers, places, "[x,x,y,y[,kind[,left,bottom]]]", &P::setScale, "units of the drawing's own between P1 and P2"},
    {"RO", numbers, places, "[0|90|180|270]", &P::rotate, "turn the page"},
    {"PS", numbers, places, "[length[,width]]", &P::setPage, "size of the page"},
    {"CT", numbers, nothing, "[0|1]", &P::setChordMode, "whether chords are angles or distances"},
    // Texts, whose characters must not be taken for instructions
    {"LB", text, draws, "characters", &P::loseText, "label"},
    {"BL", text, nothing, "characters", &P::ignore, "label kept for later"},
    {"PB", numbers, draws, "", &P::loseText, "the label kept is written"},
    {"WD", text, nothing, "characters", &P::ignore, "text on the plotter's own display"},
    {"DT", character, nothing, "[character[,mode]]", &P::setTextTerminator, "the character that ends labels"},
    {"BP", numbers, nothing, "[kind,value...]", &P::ignore, "begin of a plot, with its title"},
    {"CO", comment, nothing, "[\"text\"]", &P::ignore, "comment"},
    {"MG", comment, nothing, "[\"text\"]", &P::ignore, "message"},
    {"SM", character, nothing, "[character]", &P::loseSymbols, "a symbol at every point"},
    {"UC", numbers, draws, "numbers", &P::loseSymbols, "a character of the drawing's own"},
    // What would look different
    {"LT", numbers, nothing, "[type[,length[,mode]]]", &P::loseDashes, "line type"},
    {"IW", numbers, nothing, "[x,y,x,y]", &P::loseClipping, "window outside which nothing is drawn"},
    {"PG", numbers, nothing, "[n]", &P::endPage, "next page"},
    {"AF", numbers, nothing, "", &P::endPage, "next page"},
    {"AH", numbers, nothing, "", &P::endPage, "next half page"},
    {"FR", numbers, nothing, "", &P::endPage, "next frame of the paper"},
    // What changes no stroke
    {"AC", numbers, nothing, "[x,y]", &P::ignore, "anchor of fill patterns"},
    {"AD", numbers, nothing, "numbers", &P::ignore, "alternate font"},
    {"AP", numbers, nothing, "[n]", &P::ignore, "automatic pen lift"},
    {"AS", numbers, nothing, "[a[,pen]]", &P::ignore, "acceleration"},
    {"CA", numbers, nothing, "[n]", &P::ignore, "alternate characters"},
    {"CC", numbers, nothing, "[angle]", &P::ignore, "chords of characters"},
    {"CF", numbers, nothing, "[mode[,pen]]", &P::ignore, "filling of characters"},
    {"CM", numbers, nothing, "[n[,n]]", &P::ignore, "character mode"},
    {"CP", numbers, nothing, "[spaces,lines]", &P::ignore, "move by character cells"},
    {"CR", numbers, nothing, "numbers", &P::ignore, "colour range"},
    {"CS", numbers, nothing, "[n]", &P::ignore, "characters"},
    {"CV", numbers, nothing, "[n[,n]]", &P::ignore, "curved lines"},
    {"DC", numbers, nothing, "", &P::ignore, "end digitising"},
    {"DI", numbers, nothing, "[x,y]", &P::ignore, "direction of labels"},
    {"DL", numbers, nothing, "numbers", &P::ignore, "download of a character"},
    {"DP", numbers, nothing, "", &P::ignore, "digitise"},
    {"DR", numbers, nothing, "[x,y]", &P::ignore, "direction of labels"},
    {"DS", numbers, nothing, "[n[,n]]", &P::ignore, "places of character sets"},
    {"DV", numbers, nothing, "[n[,n]]", &P::ignore, "vertical labels"},
    {"EC", numbers, nothing, "[n]", &P::ignore, "paper cutter"},
    {"ES", numbers, nothing, "[n[,n]]", &P::ignore, "spaces between characters"},
    {"FI", numbers, nothing, "n", &P::ignore, "font"},
    {"FN", numbers, nothing, "n", &P::ignore, "second font"},
    {"FS", numbers, nothing, "[force[,pen]]", &P::ignore, "pen force"},
    {"FT", numbers, nothing, "[type[,spacing[,angle]]]", &P::ignore, "kind of fill"},
    {"GM", numbers, nothing, "numbers", &P::ignore, "memory"},
    {"GP", numbers, nothing, "numbers", &P::ignore, "group of pens"},
    {"IM", numbers, nothing, "[n[,n[,n]]]", &P::ignore, "masks of messages"},
    {"IV", numbers, nothing, "[n[,n]]", &P::ignore, "character set into its place"},
    {"KY", numbers, nothing, "[n[,n]]", &P::ignore, "keys"},
    {"LA", numbers, nothing, "[kind,value]...", &P::ignore, "ends and joins of lines"},
    {"LM", numbers, nothing, "[n[,n]]", &P::ignore, "label mode"},
    {"LO", numbers, nothing, "[place]", &P::ignore, "origin of labels"},
    {"MC", numbers, nothing, "[n[,n]]", &P::ignore, "mixing of colours"},
    {"MT", numbers, nothing, "[n]", &P::ignore, "kind of paper"},
    {"NP", numbers, nothing, "[n]", &P::ignore, "count of pens"},
    {"NR", numbers, nothing, "[n]", &P::ignore, "not ready"},
    {"OA", numbers, nothing, "", &P::ignore, "answer: place"},
    {"OC", numbers, nothing, "", &P::ignore, "answer: commanded place"},
    {"OD", numbers, nothing, "", &P::ignore, "answer: digitised point"},
    {"OE", numbers, nothing, "", &P::ignore, "answer: error"},
    {"OF", numbers, nothing, "", &P::ignore, "answer: units"},
    {"OG", numbers, nothing, "", &P::ignore, "answer: group"},
    {"OH", numbers, nothing, "", &P::ignore, "answer: limits"},
    {"OI", numbers, nothing, "", &P::ignore, "answer: name"},
    {"OK", numbers, nothing, "", &P::ignore, "answer: key"},
    {"OL", numbers, nothing, "", &P::ignore, "answer: length of a label"},
    {"OO", numbers, nothing, "", &P::ignore, "answer: options"},
    {"OP", numbers, nothing, "", &P::ignore, "answer: corners"},
    {"OS", numbers, nothing, "", &P::ignore, "answer: state"},
    {"OT", numbers, nothing, "", &P::ignore, "answer: pens"},
    {"OW", numbers, nothing, "", &P::ignore, "answer: window"},
    {"PC", numbers, nothing, "[pen[,colour...]]", &P::ignore, "colour of a pen"},
    {"PP", numbers, nothing, "[n]", &P::ignore, "place of dots"},
    {"PT", numbers, nothing, "[width]", &P::ignore, "pen thickness"},
    {"PW", numbers, nothing, "[width[,pen]]", &P::ignore, "pen width"},
    {"QL", numbers, nothing, "[n]", &P::ignore, "quality"},
    {"RF", numbers, nothing, "numbers", &P::ignore, "pattern of fills"},
    {"RP", numbers, nothing, "[n]", &P::ignore, "copies"},
    {"SA", numbers, nothing, "", &P::ignore, "alternate characters"},
    {"SB", numbers, nothing, "[n]", &P::ignore, "kind of characters"},
    {"SD", numbers, nothing, "[kind,value]...", &P::ignore, "standard font"},
    {"SG", numbers, nothing, "[n]", &P::ignore, "group of pens"},
    {"SI", numbers, nothing, "[width,height]", &P::ignore, "size of characters"},
    {"SL", numbers, nothing, "[slant]", &P::ignore, "slant of characters"},
    {"SR", numbers, nothing, "[width,height]", &P::ignore, "size of characters"},
    {"SS", numbers, nothing, "", &P::ignore, "standard characters"},
    {"ST", numbers, nothing, "[n]", &P::ignore, "sorting"},
    {"SV", numbers, nothing, "[kind[,n[,n]]]", &P::ignore, "screened lines"},
    {"TD", numbers, nothing, "[n]", &P::ignore, "control characters in labels"},
    {"TR", numbers, nothing, "[n]", &P::ignore, "transparency"},
    {"UL", numbers, nothing, "[n[,gaps...]]", &P::ignore, "line type of the drawing's own"},
    {"VA", numbers, nothing, "", &P::ignore, "automatic speed"},
    {"VN", numbers, nothing, "", &P::ignore, "speed by hand"},
    {"VS", numbers, nothing, "[speed[,pen]]", &P::ignore, "pen speed"},
    {"WU", numbers, nothing, "[n]", &P::ignore, "units of pen widths"},
});
// clang-format on

static_assert(table.size() < 256);

constexpr std::size_t letters = 26;

constexpr std::size_t cell(char first, char second) {
    return static_cast<std::size_t>(first - 'A') * letters + static_cast<std::size_t>(second - 'A');
}

// The row of each pair of letters, counted from 1; 0 for none.
constexpr auto rows = [] {
    std::array<unsigned char, letters * letters> result{};
    for (std::size_t i = 0; i < table.size(); ++i)
        result[cell(table[i].mnemonic[0], table[i].mnemonic[1])] =
            static_cast<unsigned char>(i + 1);
    return result;
}();

} // namespace

std::span<const Instruction> instructionTable() {
    return table;
}

const Instruction* findInstruction(Mnemonic mnemonic) {
    const std::size_t row = rows[cell(mnemonic[0], mnemonic[1])];
    return row == 0 ? nullptr : &table[row - 1];
}

} // namespace torvik
