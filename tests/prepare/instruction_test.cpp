// SPDX-License-Identifier: MIT
// What each instruction of the pen language draws.
#include "prepare/source/hpgl_source.h"
#include "prepare/source/instruction_table.h"
#include "stroke_text.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace torvik {
namespace {

struct Case {
    const char* name;
    std::string drawing;
    std::string expected;
};

// The characters of one encoded number, base 64 or 32.
std::string encoded(long value, int base = 64) {
    unsigned long bits = value < 0 ? static_cast<unsigned long>(-value) * 2 + 1
                                   : static_cast<unsigned long>(value) * 2;
    const auto b = static_cast<unsigned long>(base);
    std::string text;
    for (; bits >= b; bits /= b)
        text += static_cast<char>(63 + bits % b);
    return text + static_cast<char>((base == 64 ? 191 : 95) + bits);
}

std::string pair(long x, long y, int base = 64) {
    return encoded(x, base) + encoded(y, base);
}

const std::vector<Case>& cases() {
    static const std::vector<Case> table{
        {"IN lifts the pen and goes back to the origin and to plotter units",
         "SP2;SC0,1,0,1;PR;PD5,5;IN;PD10,0;", "2: 0,0 L50000,36000; 2: 0,0 L10,0"},
        {"IN brings the page's own corners back and turns it back",
         "IP0,0,9,9;RO90;IN;SC0,1,0,1;PU0,0;PD1,1", "1: 603,521 L10603,7721"},
        {"DF goes back to plotter units, the usual end of labels and short marks",
         "IP0,0,1000,1000;SC0,1,0,1;DT#;TL9,9;DF;LBPD9,9\x03PD10,0;XT",
         "1: 0,0 L10,0; 1: 10,-5 L10,5"},
        {"SP without a number puts the pen away, and nothing is drawn",
         "SP3;PD10,0;SP;PD20,0;SP0PD30,0;SP1;PD40,0", "3: 0,0 L10,0; 1: 30,0 L40,0"},
        {"PC gives pen 0 a colour, with which it draws", "SP0;PC0,9,9,9;PD9,0;PC0;PD9,9",
         "0: 0,0 L9,0"},
        {"SP may part a stroke", "SP1;PD10,0;SP2;PD10,10;PU", "1: 0,0 L10,0; 2: 10,0 L10,10"},
        {"PU moves through its pairs without drawing", "PU1,2,30,40;PD50,60", "1: 30,40 L50,60"},
        {"after a bare PD PA draws", "PU;PA5,5;PD;PA10,5,10,10;PU;PA0,0", "1: 5,5 L10,5 L10,10"},
        {"the pen stays down over what is no move", "PD;VS5;LT;CO\"a\";RO;PA10,0", "1: 0,0 L10,0"},
        {"a pair without its second number is passed over", "PD10,0,99", "1: 0,0 L10,0"},
        {"PR makes PD and PU relative until PA", "PU10,10;PD;PR5,0,0,5;PU1,1;PD2,2;PA;PD0,0",
         "1: 10,10 L15,10 L15,15; 1: 16,16 L18,18 L0,0"},
        {"PR counts in own units", "IP0,0,100,100;SC2,12,0,10;PU2,0;PR1,1;PD2,-1",
         "1: 10,10 L30,0"},
        {"signs and points part numbers, too", "PU 1 2;PD-3-4+5,+6.5.5 7",
         "1: 1,2 L-3,-4 L5,6.5 L0.5,7"},
        {"an exponent belongs to its number and a mnemonic does not", "PD1E1,2e1EA30,30",
         "1: 0,0 L10,20; 1: 10,20 L30,20 L30,30 L10,30 L10,20"},
        {"line breaks may part numbers", "PD\r\n10,\n0\r,\t10 10", "1: 0,0 L10,0 L10,10"},
        {"a line of no length draws nothing", "PU5,5;PD;PA9,9,9,9;PU", "1: 5,5 L9,9"},
        {"pen down and up without a move is a dot", "PU7,8;PD;PU;PD7,8;PU;PA9,9", "1: 7,8; 1: 7,8"},
        {"a figure drawn with the pen down leaves no dot", "PU7,8;PD;CI5;PU", "1: O7,8 r5"},

        {"PE is relative and draws", "PU100,100;PE" + pair(10, -5) + pair(0, 20) + ";PD0,0",
         "1: 100,100 L110,95 L110,115 L0,0"},
        {"PE takes every flag, in base 32, too",
         "PE7>" + encoded(3, 32) + ":" + encoded(2, 32) + "<" + pair(80, -8, 32) + "=" +
             pair(16, 12, 32) + pair(8, 8, 32) + "<" + pair(8, 0, 32) + pair(0, 8, 32) + ";",
         "2: 10,-1 L2,1.5 L3,2.5; 2: 4,2.5 L4,3.5"},
        {"PE makes larger steps of fraction bits below 0",
         "PE>" + encoded(-2) + pair(3, 4) + pair(1, 0) + ";", "1: 0,0 L12,16 L16,16"},
        {"PE takes flags with bit 8 set", "PE\xbc" + pair(5, 6) + pair(1, 1) + ";", "1: 5,6 L6,7"},
        {"PE counts in the drawing's own units and leaves relative moves on",
         "IP0,0,1000,1000;SC0,10,0,10;PR1,1;PE" + pair(2, 3) + ";PD0,1",
         "1: 100,100 L300,400 L300,500"},
        {"PE passes over white space", "PE" + encoded(3) + "\n " + encoded(4) + ";", "1: 0,0 L3,4"},
        {"PE ends the pen up after a lone <", "PD1,0;PE<;PA5,5;PD6,5", "1: 0,0 L1,0; 1: 5,5 L6,5"},

        {"AA draws about a centre", "PU100,0;PD;AA0,0,90;PD0,0", "1: 100,0 A0,0 90>0,100 L0,0"},
        {"AA with the pen up only moves", "PU100,0;AA0,0,-90,5;PD0,0", "1: 0,-100 L0,0"},
        {"AA of 360 is two halves", "PU10,0;PD;AA0,0,360", "1: 10,0 A0,0 180>-10,0 A0,0 180>10,0"},
        {"AR takes own units", "IP0,0,90,90;SC0,9,0,9;PU1,0;PD;AR-1,0,90", "1: 10,0 A0,0 90>0,10"},
        {"AT goes round by its point", "PU10,0;PD;AT0,-10,0,10", "1: 10,0 A0,0 -270>0,10"},
        {"AT to its start is a circle", "PD;AT20,0,0,0", "1: 0,0 A10,0 180>20,0 A10,0 180>0,0"},
        {"RT counts from the pen's place", "PU11,10;PD;RT-1,1,-2,0", "1: 11,10 A10,10 180>9,10"},
        {"BZ draws curves one after the other", "PD;BZ0,10,10,10,10,0,10,-5,20,-5,20,0",
         "1: 0,0 B0,10 10,10>10,0 B10,-5 20,-5>20,0"},
        {"BR counts all points of a curve from its start", "PU10,10;PD;BR0,5,5,5,5,0,1,1,2,2,3,3",
         "1: 10,10 B10,15 15,15>15,10 B16,11 17,12>18,13"},

        {"CI does not part a stroke", "PD10,0;CI-3,5;PD20,0", "1: 0,0 L10,0 L20,0; 1: O10,0 r3"},
        {"EA stays where it was", "PU1,1;EA3,2;PD0,0", "1: 1,1 L3,1 L3,2 L1,2 L1,1; 1: 1,1 L0,0"},
        {"ER counts from the pen's place", "PU10,10;ER20,-5", "1: 10,10 L30,10 L30,5 L10,5 L10,10"},
        {"RA draws its outline", "PU1,1;RA3,2", "1: 1,1 L3,1 L3,2 L1,2 L1,1"},
        {"RR draws its outline", "PU1,1;RR2,1", "1: 1,1 L3,1 L3,2 L1,2 L1,1"},
        {"EW is two edges and an arc", "PU9,9;EW5,90,90", "1: 9,9 L9,14 A9,9 90>4,9 L9,9"},
        {"a negative radius begins opposite", "EW-5,0,-90", "1: 0,0 L-5,0 A0,0 -90>0,5 L0,0"},
        {"WG draws its outline", "WG5,0,90,5", "1: 0,0 L5,0 A0,0 90>0,5 L0,0"},
        {"WG of a full turn is a circle", "PU1,2;WG5,30,-360", "1: O1,2 r5"},
        {"TL sets the lengths of marks in hundredths of the corners' distance",
         "IP0,0,2000,1000;TL2,1;XT;TL3;YT;TL;XT", "1: 0,-10 L0,20; 1: 0,0 L60,0; 1: 0,-5 L0,5"},
        {"a tick within a stroke does not part it", "IP0,0,1000,1000;TL1;PD5,0;XT;PD9,0",
         "1: 0,0 L5,0 L9,0; 1: 5,0 L5,10"},

        {"PM keeps a polygon, closes it, and EP draws it", "PU10,10;PM0;PD20,10,20,20;PM2;EP;PD0,0",
         "1: 10,10 L20,10 L20,20 L10,10; 1: 10,10 L0,0"},
        {"EP leaves out edges drawn with the pen up", "PM;PD10,0;PU10,10;PD0,10;PM2;EP",
         "1: 0,0 L10,0; 1: 10,10 L0,10 L0,0"},
        {"PM1 begins another part of the polygon at the next place",
         "PM0;PD9,0,9,9;PM1;PD3,3,5,3,5,5;PM2;EP", "1: 0,0 L9,0 L9,9 L0,0; 1: 3,3 L5,3 L5,5 L3,3"},
        {"a circle in a polygon is a part of its own", "PU5,5;PM0;CI2;PM2;EP", "1: O5,5 r2"},
        {"edges may be arcs and curves", "PU10,0;PM0;PD;AA0,0,180;BR0,5,5,5,5,0;PM2;EP",
         "1: 10,0 A0,0 180>-10,0 B-10,5 -5,5>-5,0 L10,0"},
        {"where the pen goes up from a closed outline, no edge leads to the next one",
         "PM0;PD9,0,9,9,0,0;PU3,3;PD5,3,5,5,3,3;PU7,3;PD8,3,8,4,7,3;PM2;FP",
         "1: 0,0 L9,0 L9,9 L0,0; 1: 3,3 L5,3 L5,5 L3,3; 1: 7,3 L8,3 L8,4 L7,3"},
        {"nor does EP draw one", "PM0;PU1,1;PD9,1,9,9,1,1;PU;PA2,2;PD;PA3,2,3,3,2,2;PM2;EP",
         "1: 1,1 L9,1 L9,9 L1,1; 1: 2,2 L3,2 L3,3 L2,2"},
        {"FP after EP draws only what the pen left out", "PM;PD10,0;PU10,10;PD0,10;PM2;EP;FP",
         "1: 0,0 L10,0; 1: 10,10 L0,10 L0,0; 1: 10,0 L10,10"},
        {"FP draws edges of the pen up, too", "PM0;PU9,0,9,9;PM2;FP", "1: 0,0 L9,0 L9,9 L0,0"},
        {"EP after FP draws nothing more", "PM0;PD9,0,9,9;PM2;FP;EP", "1: 0,0 L9,0 L9,9 L0,0"},
        {"EP by another pen after FP does", "SP1;PM0;PD9,0,9,9;PM2;FP;SP2;EP",
         "1: 0,0 L9,0 L9,9 L0,0; 2: 0,0 L9,0 L9,9 L0,0"},
        {"EP without a polygon draws nothing", "EP;FP;PM2;EP", ""},

        {"SC stretches P1 to P2", "IP10,20,110,220;SC0,10,0,10;PU1,1;PD10,10", "1: 20,40 L110,220"},
        {"SC keeps shapes with 1", "IP0,0,200,100;SC0,10,0,10,1;PU0,0;PD10,10", "1: 50,0 L150,100"},
        {"SC keeps shapes with 1, with free space where it is told",
         "IP0,0,2000,1000;SC0,10,0,10,1,0,0;PD10,10;CI1", "1: 0,0 L1000,1000; 1: O1000,1000 r100"},
        {"SC keeps shapes with 1 on high paper, too",
         "IP0,0,1000,2000;SC0,10,0,10,1,50,25;PU0,0;PD10,10", "1: 0,250 L1000,1250"},
        {"SC over no distance is passed over", "SC5,5,0,1;PD10,0", "1: 0,0 L10,0"},
        {"SC takes units' sizes with 2", "IP9,9,90,90;SC5,40,7,20,2;PU5,7;PD6,8", "1: 9,9 L49,29"},
        {"SC without numbers switches scaling off", "SC0,1,0,1;SC;PD10,10", "1: 0,0 L10,10"},
        {"a scale that swaps left and right turns arcs round",
         "IP0,0,100,100;SC100,0,0,100;PU10,0;PD;AA0,0,90", "1: 90,0 A100,0 -90>100,10"},
        {"IP alone moves both corners", "IP0,0,9,9;SC0,9,0,9;IP5,5;PU0,0;PD9,9", "1: 5,5 L14,14"},
        {"IP without numbers brings the page's corners back",
         "IP0,0,100,100;IP;SC0,10,0,10;PU0,0;PD10,10", "1: 603,521 L10603,7721"},
        {"IR counts in hundredths of the page, whose corners it brings back without numbers",
         "PS4000,2000;IR25,50,75,100;SC0,1,0,1;PU0,0;PD1,1;IR;PU0,0;PD1,1",
         "1: 1000,1000 L3000,2000; 1: 0,0 L4000,2000"},
        {"RO turns the page", "PS4000,2000;RO90;PU0,0;PD100,0", "1: 4000,0 L4000,100"},
        {"RO turns relative moves and arcs", "PS4000,2000;RO180;PU100,0;PD;PR0,10;AA0,0,90",
         "1: 3900,2000 L3900,1990 A4000,2000 90>4010,1900"},
        {"RO without a number turns back", "RO90;RO;PD10,0", "1: 0,0 L10,0"},

        {"LB goes on over lines, and in lower case", "lbPD9,9;\r\nPU5,5;\x03pd2,0", "1: 0,0 L2,0"},
        {"DT sets labels' end", "DT#;LBPD9,9;\x03;#PD2,0;DT;LBPD7,7\x03PD3,0", "1: 0,0 L2,0 L3,0"},
        {"DT may say whether its character is written, too", "DT*,1;LBPD9,9*PD2,0", "1: 0,0 L2,0"},
        {"a label without its end is over with its line", "LBPD9,9;\nPD2,0", "1: 0,0 L2,0"},
        {"BL and WD keep their text", "BLPD9,9\x03WDPD8,8\x03PD2,0", "1: 0,0 L2,0"},
        {"BP has its title in quotes", "BP1,\"PD9,9;\",5,1;PD2,0", "1: 0,0 L2,0"},
        {"BP and CO may be bare, MG quoted", "BP;CO;PD2,0;BPPD3,0MG\"PD9,9;\"", "1: 0,0 L2,0 L3,0"},
        {"CO is quoted or ends with ;", "CO\"PD9,9;\"PD2,0;CO PD8,8;PD3,0", "1: 0,0 L2,0 L3,0"},
        {"SM takes one character", "SMP;PD2,0;SM;PD3,0", "1: 0,0 L2,0 L3,0"},
        {"UC draws nothing", "UC99,5,5,-99,3;PD2,0", "1: 0,0 L2,0"},
        {"LT, IW and pages change no line", "LT2,4;IW0,0,1,1;PD9,0;PG;AF;AH;FR;", "1: 0,0 L9,0"},
        {"CT counts its number", "CT1;CI5", "1: O0,0 r5"},
        {"what changes no stroke is passed over", "PT0.3;VS20;PC1,255,0,0;OE;PD2,0", "1: 0,0 L2,0"},
        {"an unknown instruction is passed over", "XY1,2,3;PD2,0;ZZPD3,0", "1: 0,0 L2,0 L3,0"},

        // What stands around a drawing
        {"device escapes are skipped", "\x1b.(\x1b.I81;;17:\x1b.@:IN;PD2,0;\x1b.)", "1: 0,0 L2,0"},
        {"so are those that lost their escape", "\x1b.(;.I81;;17:.N;19:IN;PD2,0;.)", "1: 0,0 L2,0"},
        {"a printer's set-up before and after the drawing is passed over",
         "\x1b%-12345X@PJL SET PD9,9\r\n@PJL ENTER LANGUAGE=PCL\r\n\033E\x1b&l1O "
         "PD8,8;\x1b*b7WPD7,7;;\x1b%0BIN;PD2,0;\x1b%0APD6,6;\033E\x1b%-12345X@PJL EOJ "
         "NAME=\"PD5,5\"\r\n",
         "1: 0,0 L2,0"},
        {"a job line that enters the language begins the drawing",
         "\x1b%-12345X@PJL COMMENT PD9,9\n@PJL enter language = hpgl2\nPD2,0;\x1b%-12345XPD3,3",
         "1: 0,0 L2,0"},
        {"a reset alone does not end a drawing that never began by an escape",
         "\033EIN;PD2,0;\033EPD3,0", "1: 0,0 L2,0 L3,0"},
    };
    return table;
}

// The letter I is a line in the middle of its width. In the first lines a letter is 100 wide and
// 200 high, which makes cells of 150 and lines 400 apart.
const std::vector<Case>& labelCases() {
    const std::string size = "SI.25,.5;";
    static const std::vector<Case> table{
        {"LB writes letter by letter, and the pen goes on behind the last one",
         size + "PD;LBII\x03PA300,50", "1: 50,200 L50,0; 1: 200,200 L200,0; 1: 300,0 L300,50"},
        {"a new line begins below where the pen came from",
         size + "PU10,0;LBII\r\nI\x03LB\r\nI\x03",
         "1: 60,200 L60,0; 1: 210,200 L210,0; 1: 60,-200 L60,-400; 1: 60,-600 L60,-800"},
        {"the pen steps back, half a step back, and a line up", size + "LBI\bI\v\tI\x03",
         "1: 50,200 L50,0; 1: 50,200 L50,0; 1: 125,600 L125,400"},
        {"DI sets the direction, in which the next line begins at the pen",
         size + "LBI\x03"
                "DI0,1;LBI\x03"
                "DI;LBI\r\nI\x03",
         "1: 50,200 L50,0; 1: -50,50 L150,50; 1: 200,350 L200,150; 1: 200,-50 L200,-250"},
        {"DR counts in the corners' distances", "IP0,0,2000,1000;DR1,2;" + size + "LBI\x03",
         "1: -106.066,176.777 L35.355,35.355"},
        {"SR counts in hundredths of the corners' distance",
         "IP0,0,2000,1000;SR5,20;LBI\x03SR;LBI\x03", "1: 50,200 L50,0; 1: 157.5,15 L157.5,0"},
        {"without a size letters are small, or larger on paper whose size is told",
         "LBI\x03PS4000,2000;PU0,0;LBI\x03", "1: 37.4,107.6 L37.4,0; 1: 57,150 L57,0"},
        {"a negative width writes to the left", "SI-.25,.5;LBI\x03", "1: -50,200 L-50,0"},
        {"SL leans letters over", size + "SL1;LBI\x03SL;LBI\x03",
         "1: 250,200 L50,0; 1: 200,200 L200,0"},
        {"ES adds parts of cells and lines", size + "ES1,.5;LBII\r\nI\x03",
         "1: 50,200 L50,0; 1: 350,200 L350,0; 1: 50,-400 L50,-600"},
        {"LO puts each line's middle to the pen", size + "LO5;LBII\rI\x03",
         "1: -75,100 L-75,-100; 1: 75,100 L75,-100; 1: 0,100 L0,-100"},
        {"LO above 10 keeps half a letter away",
         size + "LO11;LBI\x03PU0,0;LO19LBI\x03PU0,0;LO14;LBI\x03",
         "1: 100,300 L100,100; 1: -100,-100 L-100,-300; 1: 0,300 L0,100"},
        {"CP moves by cells and lines",
         size + "CP2,1;LBI\x03"
                "CP;LBI\x03",
         "1: 350,600 L350,400; 1: 50,200 L50,0"},
        {"RO turns labels", "PS4000,2000;RO90;PU0,0;" + size + "LBI\x03", "1: 3800,50 L4000,50"},
        {"DT with mode 0 writes its character, too", size + "DTI;LBIDTI,0;LBIPD200,0",
         "1: 50,200 L50,0; 1: 150,0 L200,0"},
        {"BL keeps a label that PB writes", size + "BLI\x03PU9,0;PB", "1: 59,200 L59,0"},
        {"a label within a polygon is not written", "PM;LBI\x03PM2;PD1,0", "1: 0,0 L1,0"},
    };
    return table;
}

TEST(Instructions, WriteLabels) {
    for (const Case& one : labelCases())
        EXPECT_EQ(strokesText(readHpgl(one.drawing, "test.plt").strokes), one.expected) << one.name;
}

TEST(Instructions, TakeLettersFromTheSetThatIsSelected) {
    const std::string umlaut = strokesText(readHpgl("LB\xC3\x84\x03", "").strokes); // UTF-8
    EXPECT_EQ(std::count(umlaut.begin(), umlaut.end(), ':'), 5); // of A and its two dots
    for (const char* const drawing :
         {"CS33LB[\x03", "CA33LB\x0E[\x03", "CA33;SA;LB[\x03", "SA;CS33;SSLB[\x03", "LB\xD8\x03",
          "SD1,14LB\xC4\x03", "CA33;SA;LB\x0F\x0E[\x03"})
        EXPECT_EQ(strokesText(readHpgl(drawing, "").strokes), umlaut) << drawing;
    const SourceReport report = readHpgl("LB\xE3\x80\x03LB \x03LB\x81\x03LO10;SI1;", "").report;
    EXPECT_EQ(report.texts, 2);
    EXPECT_EQ(report.unknownLetters,
              3); // no UTF-8, and none of the three bytes stands for a letter
    EXPECT_EQ(report.lost(Loss::malformed), 2);
}

TEST(Instructions, DrawWhatTheirRowSays) {
    SourceOptions options;
    options.texts = false;
    for (const Case& one : cases()) {
        const SourceDrawing drawing = readHpgl(one.drawing, "test.plt", options);
        EXPECT_EQ(strokesText(drawing.strokes), one.expected) << one.name;
        EXPECT_EQ(drawing.report.strayCharacters, 0) << one.name;
    }
}

TEST(Instructions, HaveACaseForEveryRowThatDoesSomething) {
    std::set<std::string> seen;
    std::vector<Case> all = cases();
    all.insert(all.end(), labelCases().begin(), labelCases().end());
    all.push_back({"", "CS;CA;SS;SA;SD;ES;", ""});
    for (const Case& one : all)
        for (const auto& [name, count] : readHpgl(one.drawing, "test.plt").report.instructions)
            seen.insert(name);
    for (const Instruction& row : instructionTable()) {
        EXPECT_EQ(findInstruction({row.mnemonic[0], row.mnemonic[1]}), &row) << row.mnemonic;
        const bool isIdle = row.perform == &PenPlotter::ignore && row.shape == Shape::numbers;
        EXPECT_TRUE(isIdle || seen.contains(std::string(row.mnemonic))) << row.mnemonic;
    }
}

// Where units differ in X and Y an arc is a piece of an ellipse.
TEST(Instructions, DrawEllipsesWhereUnitsDiffer) {
    const auto drawing = readHpgl("IP0,0,2000,1000;SC0,10,0,10;PU5,5;CI2;", "test.plt");
    ASSERT_EQ(drawing.strokes.size(), 1U);
    ASSERT_EQ(drawing.strokes[0].segments.size(), 8U);
    for (const Segment& segment : drawing.strokes[0].segments) {
        const Point onCircle{(segment.end.x - 1000) / 200, (segment.end.y - 500) / 100};
        EXPECT_NEAR(length(onCircle), 2, 1e-9);
    }
}

TEST(SourceReport, CountsWhatIsNotCarriedOver) {
    SourceOptions options;
    options.texts = false;
    const auto report =
        readHpgl("LBa\x03;LBb\x03;FP;RA1,1;WG1,0,9;LT2;LT;LT3,4;IW;IW0,0,1,1;SM*;SM;UC1;CI9,45;"
                 "AA5,5,90,30;PD1;AA1;SP0;PD9,9;CI4;?!;QQ;QQ1,2;PG",
                 "test.plt", options)
            .report;
    // From texts to instructions without numbers, as they stand in Loss.
    EXPECT_EQ(report.losses, (std::array<long, lossCount>{2, 2, 3, 2, 1, 0, 0, 2, 2, 1, 0, 2}));
    EXPECT_EQ(report.strayCharacters, 2);
    EXPECT_EQ(report.unknown.at("QQ"), 2);
}

TEST(SourceReport, SaysWhatWasTakenForGranted) {
    EXPECT_TRUE(readHpgl("PD1,1;SP2;PD2,2", "").report.drewBeforePen);
    EXPECT_FALSE(readHpgl("SP2;PD2,2", "").report.drewBeforePen);
    EXPECT_TRUE(readHpgl("SC0,1,0,1;", "").report.guessedCorners);
    EXPECT_FALSE(readHpgl("IP0,0,1,1;SC0,1,0,1;", "").report.guessedCorners);
    EXPECT_EQ(readHpgl("PD1,1;PG;PD2,2", "").report.lost(Loss::pages), 1);
}

TEST(HpglSource, RefusesWithFileLineAndCause) {
    const std::vector<Case> refusals{
        {"a place too far away", "IN;\nPD1,1;\nPD9e9,0;",
         "a.plt, line 3: a place lies more than 100 m from the origin"},
        {"a number that does not fit", "PD1e999,0", "a.plt, line 1: a number is too large"},
        {"more segments than wanted", "PD1,1,2,2,3,3,4,4",
         "a.plt, line 1: the drawing has more than 3 lines, arcs and curves"},
        {"a polygon drawn again and again", "PM;PD1,1;PM2;EP;EP;EP",
         "a.plt, line 1: the drawing has more than 3"},
        {"a text", "Dear all,\nthe drawing of the base plate is not here but in the other letter",
         "a.plt: this is no drawing in HPGL: "},
    };
    SourceOptions options;
    options.segmentLimit = 3;
    for (const Case& one : refusals) {
        const std::string said = refusal([&] { readHpgl(one.drawing, "a.plt", options); });
        EXPECT_EQ(said.substr(0, one.expected.size()), one.expected) << one.name;
    }
}

} // namespace
} // namespace torvik
