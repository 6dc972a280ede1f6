// SPDX-License-Identifier: MIT
// The colour tree: one node for each used pen, with one child for each of its hole sizes, as plain
// data that a tree view can show.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace torvik {

struct Answers;
struct Position;
class Logger;

struct ColourNode {
    std::string key; // the colour's name, for a hole size followed by its number as "00"
    std::string text;
    std::int16_t image = 0; // see the runs below
    bool expanded = false;
    bool bold = false; // the page on show is about this node
    std::vector<ColourNode> children;
};

// The image list holds four pictures for each pen colour, in four runs of eight.
inline constexpr std::int16_t imageCut = 0;      // + pen
inline constexpr std::int16_t imageOmitted = 8;  // + pen
inline constexpr std::int16_t imageCircles = 16; // + pen
inline constexpr std::int16_t imageHole = 24;    // + pen

// Builds gudtColourTree from the pens and their settings.
void CreateTree(const Answers& answers, Position& position, Logger& logger);

// The node of one used pen, by its number, as CreateTree makes it. Raises SubscriptOutOfRange for a
// pen outside 1 to 8.
ColourNode colourNode(const Answers& answers, std::int16_t number);

} // namespace torvik
