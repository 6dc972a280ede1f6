// SPDX-License-Identifier: MIT
// The dialects of the machine controls, one row of one table each. A statement is a text with
// places in braces: {tool} {offset} {speed} {dwell} {toolChange} {number}, see expand().
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace torvik {

struct ToolList;

// Codes of the targets.
inline constexpr std::int16_t targetWinCam = 1;
inline constexpr std::int16_t targetWinNc = 2;
inline constexpr std::int16_t targetMaskor = 3;
inline constexpr std::int16_t targetKestra = 4;

// A line of the program: with a block number ("N4 ..."), or as it stands.
struct Statement {
    std::string_view text;
    bool numbered = true;
};

struct Dialect {
    std::int16_t code;
    std::string_view name;       // as the user reads it
    std::string_view optionName; // as the command line takes it

    double feedDivisor; // stored feeds are mm/min
    int feedDecimals;
    double dwellFactor; // stored dwells are seconds
    int dwellDecimals;

    std::span<const Statement> opening; // before the header comment
    std::span<const Statement> openingAfterHeader;
    std::string_view commentOpener; // empty: no header in the program
    std::string_view commentCloser;
    std::string_view retract;              // to the tool change height before another tool
    std::span<const Statement> toolUnload; // where a tool has been loaded before
    std::span<const Statement> tool;
    std::string_view spindle;
    std::string_view dwell;
    std::span<const Statement> end;

    // Programs with a number go to the diskette as prefix + number, with a text file beside them;
    // the others are files with an extension.
    std::string_view diskettePrefix;
    std::string_view extension;
    // Of the Save dialog, for programs that are files: title, what its filter calls them, and the
    // setting that remembers the folder.
    std::string_view saveTitle;
    std::string_view saveKind;
    std::string_view folderSetting;
    bool isUsual = false; // proposed to a user who has chosen none yet

    bool needsNumber() const { return !diskettePrefix.empty(); }
};

// All the targets, in the order of their codes.
std::span<const Dialect> dialects();

// Other rows in place of the table's while one lives, for trying a row before it joins the table.
class OtherDialects {
public:
    explicit OtherDialects(std::span<const Dialect> others);
    ~OtherDialects();
    OtherDialects(const OtherDialects&) = delete;
    OtherDialects& operator=(const OtherDialects&) = delete;

private:
    std::span<const Dialect> m_before;
};
// The row of a code; for any code without one, a row that writes no statement of any dialect.
const Dialect& dialectFor(std::int16_t code);

// What the places of a statement stand for.
struct StatementValues {
    const ToolList* tools = nullptr; // of {tool} and {offset}
    std::int16_t toolPlace = 0;
    float spindleSpeed = 0;
    float toolChangeHeight = 0;
    double dwell = 0; // in the dialect's own unit
    int dwellDecimals = 0;
    std::int16_t programNumber = 0;
};

// Appends the statement with its places filled: {tool} the tool number, {offset} 2 x tool - 1,
// {speed} "0", {dwell}, {toolChange} "0.00", {number} plain, {number4} "0000". Raises Overflow
// where an offset leaves 16 bits, and SubscriptOutOfRange where a statement names a tool that is
// not in the list.
void expand(std::string& out, std::string_view statement, const StatementValues& values);

} // namespace torvik
