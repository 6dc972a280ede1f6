// SPDX-License-Identifier: MIT
#include "prepare/source/instruction_table.h"

#include <array>

namespace torvik {
namespace {

using P = PenPlotter;
using enum Shape;

// clang-format off
constexpr auto table = std::to_array<Instruction>({
    // Pens, modes, lines
    {"IN", numbers, "[n]", &P::initialise, "start again: pen up at the origin, all settings as at first"},
    {"DF", numbers, "", &P::setDefaults, "settings as at first; place and corners stay"},
    {"SP", numbers, "[pen]", &P::selectPen, "take a pen; 0 or none puts it away"},
    {"PC", numbers, "[pen[,colour...]]", &P::setPenColour, "colour of a pen; with one pen 0 draws, too"},
    {"PU", numbers, "[x,y]...", &P::penUp, "pen up, and move"},
    {"PD", numbers, "[x,y]...", &P::penDown, "pen down, and draw lines"},
    {"PA", numbers, "[x,y]...", &P::plotAbsolute, "coordinates from the origin, and move or draw"},
    {"PR", numbers, "[dx,dy]...", &P::plotRelative, "coordinates from the pen's place, and move or draw"},
    {"PE", encoded, "characters", &P::plotEncoded, "moves and lines as encoded characters"},
    // Arcs and curves
    {"AA", numbers, "x,y,sweep[,chord]", &P::arcAbsolute, "arc about a centre"},
    {"AR", numbers, "dx,dy,sweep[,chord]", &P::arcRelative, "arc about a centre given from the pen's place"},
    {"AT", numbers, "x,y,x,y[,chord]", &P::arcThroughAbsolute, "arc through a point to an end"},
    {"RT", numbers, "dx,dy,dx,dy[,chord]", &P::arcThroughRelative, "arc through a point to an end, both from the pen's place"},
    {"BZ", numbers, "(x,y,x,y,x,y)...", &P::bezierAbsolute, "cubic curves by two control points and an end"},
    {"BR", numbers, "(dx,dy,dx,dy,dx,dy)...", &P::bezierRelative, "cubic curves, all points from where each begins"},
    // Figures
    {"CI", numbers, "radius[,chord]", &P::circle, "circle about the pen's place"},
    {"EA", numbers, "x,y", &P::edgeRectangleAbsolute, "rectangle to the opposite corner"},
    {"ER", numbers, "dx,dy", &P::edgeRectangleRelative, "rectangle to the opposite corner, from the pen's place"},
    {"EW", numbers, "radius,start,sweep[,chord]", &P::edgeWedge, "piece of a pie about the pen's place"},
    {"RA", numbers, "x,y", &P::fillRectangleAbsolute, "filled rectangle; its outline is drawn"},
    {"RR", numbers, "dx,dy", &P::fillRectangleRelative, "filled rectangle from the pen's place; its outline is drawn"},
    {"WG", numbers, "radius,start,sweep[,chord]", &P::fillWedge, "filled piece of a pie; its outline is drawn"},
    {"XT", numbers, "", &P::tickX, "tick mark across an X axis"},
    {"YT", numbers, "", &P::tickY, "tick mark across a Y axis"},
    {"TL", numbers, "[plus[,minus]]", &P::setTickLengths, "lengths of tick marks, in hundredths of the corners' distance"},
    // Polygons
    {"PM", numbers, "[0|1|2]", &P::polygonMode, "begin a polygon, close a part of it, end it"},
    {"EP", numbers, "", &P::edgePolygon, "draw the polygon's edges"},
    {"FP", numbers, "[n]", &P::fillPolygon, "fill the polygon; its outline is drawn"},
    // Units
    {"IP", numbers, "[x,y[,x,y]]", &P::setCorners, "corners P1 and P2"},
    {"IR", numbers, "[x,y[,x,y]]", &P::setCornersInHundredths, "corners P1 and P2 in hundredths of the page"},
    {"SC", numbers, "[x,x,y,y[,kind[,left,bottom]]]", &P::setScale, "units of the drawing's own between P1 and P2"},
    {"RO", numbers, "[0|90|180|270]", &P::rotate, "turn the page"},
    {"PS", numbers, "[length[,width]]", &P::setPage, "size of the page"},
    {"CT", numbers, "[0|1]", &P::setChordMode, "whether chords are angles or distances"},
    // Texts, whose characters must not be taken for instructions
    {"LB", text, "characters", &P::writeLabel, "label, drawn with single strokes"},
    {"BL", text, "characters", &P::keepLabel, "label kept for later"},
    {"PB", numbers, "", &P::writeKeptLabel, "the label kept is written"},
    {"SI", numbers, "[width,height]", &P::setLetterSize, "width and height of letters in cm"},
    {"SR", numbers, "[width,height]", &P::setLetterSizeInHundredths, "width and height of letters in hundredths of the corners' distance"},
    {"DI", numbers, "[x,y]", &P::setLabelDirection, "direction of labels"},
    {"DR", numbers, "[x,y]", &P::setLabelDirectionInHundredths, "direction of labels, in hundredths of the corners' distance"},
    {"SL", numbers, "[slant]", &P::setSlant, "slant of letters, the tangent of its angle"},
    {"ES", numbers, "[n[,n]]", &P::setExtraSpace, "extra space between letters and lines, in cells"},
    {"LO", numbers, "[place]", &P::setLabelOrigin, "which point of a label the pen stands at"},
    {"CP", numbers, "[spaces,lines]", &P::moveByCells, "move by cells and lines; none for the next line"},
    {"CS", numbers, "[n]", &P::setStandardSet, "number of the standard character set"},
    {"CA", numbers, "[n]", &P::setAlternateSet, "number of the alternate character set"},
    {"SS", numbers, "", &P::selectStandardSet, "letters from the standard set"},
    {"SA", numbers, "", &P::selectAlternateSet, "letters from the alternate set"},
    {"SD", numbers, "[kind,value]...", &P::setStandardFont, "standard font, of which the character set is taken"},
    {"WD", text, "characters", &P::ignore, "text on the plotter's own display"},
    {"DT", character, "[character[,mode]]", &P::setTextTerminator, "the character that ends labels; mode 0 writes it, too"},
    {"BP", numbers, "[kind,value...]", &P::ignore, "begin of a plot, with its title"},
    {"CO", comment, "[\"text\"]", &P::ignore, "comment"},
    {"MG", comment, "[\"text\"]", &P::ignore, "message"},
    {"SM", character, "[character]", &P::loseSymbols, "a symbol at every point"},
    {"UC", numbers, "numbers", &P::loseSymbols, "a character of the drawing's own"},
    // What would look different
    {"LT", numbers, "[type[,length[,mode]]]", &P::loseDashes, "line type"},
    {"IW", numbers, "[x,y,x,y]", &P::loseClipping, "window outside which nothing is drawn"},
    {"PG", numbers, "[n]", &P::endPage, "next page"},
    {"AF", numbers, "", &P::endPage, "next page"},
    {"AH", numbers, "", &P::endPage, "next half page"},
    {"FR", numbers, "", &P::endPage, "next frame of the paper"},
    // What changes no stroke
    {"AC", numbers, "[x,y]", &P::ignore, "anchor of fill patterns"},
    {"AD", numbers, "numbers", &P::ignore, "alternate font"},
    {"AP", numbers, "[n]", &P::ignore, "automatic pen lift"},
    {"AS", numbers, "[a[,pen]]", &P::ignore, "acceleration"},
    {"CC", numbers, "[angle]", &P::ignore, "chords of characters"},
    {"CF", numbers, "[mode[,pen]]", &P::ignore, "filling of characters"},
    {"CM", numbers, "[n[,n]]", &P::ignore, "character mode"},
    {"CR", numbers, "numbers", &P::ignore, "colour range"},
    {"CV", numbers, "[n[,n]]", &P::ignore, "curved lines"},
    {"DC", numbers, "", &P::ignore, "end digitising"},
    {"DL", numbers, "numbers", &P::ignore, "download of a character"},
    {"DP", numbers, "", &P::ignore, "digitise"},
    {"DS", numbers, "[n[,n]]", &P::ignore, "places of character sets"},
    {"DV", numbers, "[n[,n]]", &P::ignore, "vertical labels"},
    {"EC", numbers, "[n]", &P::ignore, "paper cutter"},
    {"FI", numbers, "n", &P::ignore, "font"},
    {"FN", numbers, "n", &P::ignore, "second font"},
    {"FS", numbers, "[force[,pen]]", &P::ignore, "pen force"},
    {"FT", numbers, "[type[,spacing[,angle]]]", &P::ignore, "kind of fill"},
    {"GM", numbers, "numbers", &P::ignore, "memory"},
    {"GP", numbers, "numbers", &P::ignore, "group of pens"},
    {"IM", numbers, "[n[,n[,n]]]", &P::ignore, "masks of messages"},
    {"IV", numbers, "[n[,n]]", &P::ignore, "character set into its place"},
    {"KY", numbers, "[n[,n]]", &P::ignore, "keys"},
    {"LA", numbers, "[kind,value]...", &P::ignore, "ends and joins of lines"},
    {"LM", numbers, "[n[,n]]", &P::ignore, "label mode"},
    {"MC", numbers, "[n[,n]]", &P::ignore, "mixing of colours"},
    {"MT", numbers, "[n]", &P::ignore, "kind of paper"},
    {"NP", numbers, "[n]", &P::ignore, "count of pens"},
    {"NR", numbers, "[n]", &P::ignore, "not ready"},
    {"OA", numbers, "", &P::ignore, "answer: place"},
    {"OC", numbers, "", &P::ignore, "answer: commanded place"},
    {"OD", numbers, "", &P::ignore, "answer: digitised point"},
    {"OE", numbers, "", &P::ignore, "answer: error"},
    {"OF", numbers, "", &P::ignore, "answer: units"},
    {"OG", numbers, "", &P::ignore, "answer: group"},
    {"OH", numbers, "", &P::ignore, "answer: limits"},
    {"OI", numbers, "", &P::ignore, "answer: name"},
    {"OK", numbers, "", &P::ignore, "answer: key"},
    {"OL", numbers, "", &P::ignore, "answer: length of a label"},
    {"OO", numbers, "", &P::ignore, "answer: options"},
    {"OP", numbers, "", &P::ignore, "answer: corners"},
    {"OS", numbers, "", &P::ignore, "answer: state"},
    {"OT", numbers, "", &P::ignore, "answer: pens"},
    {"OW", numbers, "", &P::ignore, "answer: window"},
    {"PP", numbers, "[n]", &P::ignore, "place of dots"},
    {"PT", numbers, "[width]", &P::ignore, "pen thickness"},
    {"PW", numbers, "[width[,pen]]", &P::ignore, "pen width"},
    {"QL", numbers, "[n]", &P::ignore, "quality"},
    {"RF", numbers, "numbers", &P::ignore, "pattern of fills"},
    {"RP", numbers, "[n]", &P::ignore, "copies"},
    {"SB", numbers, "[n]", &P::ignore, "kind of characters"},
    {"SG", numbers, "[n]", &P::ignore, "group of pens"},
    {"ST", numbers, "[n]", &P::ignore, "sorting"},
    {"SV", numbers, "[kind[,n[,n]]]", &P::ignore, "screened lines"},
    {"TD", numbers, "[n]", &P::ignore, "control characters in labels"},
    {"TR", numbers, "[n]", &P::ignore, "transparency"},
    {"UL", numbers, "[n[,gaps...]]", &P::ignore, "line type of the drawing's own"},
    {"VA", numbers, "", &P::ignore, "automatic speed"},
    {"VN", numbers, "", &P::ignore, "speed by hand"},
    {"VS", numbers, "[speed[,pen]]", &P::ignore, "pen speed"},
    {"WU", numbers, "[n]", &P::ignore, "units of pen widths"},
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
