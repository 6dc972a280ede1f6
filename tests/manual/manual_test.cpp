// SPDX-License-Identifier: MIT
#include "manual/bash_completion.h"
#include "manual/manual_page.h"
#include "manual/roff.h"

#include <array>
#include <gtest/gtest.h>

namespace torvik {
namespace {

ProgramGuide guide() {
    return {.name = "a-b",
            .summary = "does",
            .usages = {"FILE"},
            .description = "Does it.",
            .options = {{"kind", 'k', "NAME", "which", {"x", "y"}},
                        {"out", 256, "OUT.plt", "where"},
                        {"folder", 257, "DIR", "there"},
                        {"rate", 258, "1.5", "fast"},
                        {"all", 259, "", "every one"}},
            .notes = {{"NOTES", "So:", {{"x", "one"}}}},
            .exits = {{ExitCode::done, "done"}, {ExitCode::file, "no file"}},
            .kinds = {"plt", "svg"}};
}

TEST(Roff, TakesNothingForARequest) {
    const struct {
        const char* text;
        const char* roff;
    } rows[] = {
        {"a-b ~", "a\\-b \\(ti"},
        {".TH\nx\n'y", "\\&.TH\nx\n\\&'y"},
        {"1.5 it's", "1.5 it's"},
        {"C:\\new", "C:\\enew"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(roffText(row.text), row.roff);
}

TEST(ManualPage, SaysAllOfTheGuide) {
    const std::array guides{guide(), ProgramGuide{.name = "other"}};
    const std::string page = manualPage(guides[0], guides, "7.8");
    EXPECT_TRUE(page.starts_with(".TH A\\-B 1 \"\" \"Torvik 7.8\" \"User Commands\"\n"
                                 ".SH NAME\na\\-b \\- does\n"
                                 ".SH SYNOPSIS\n\\fBa\\-b\\fR FILE\n"
                                 ".SH DESCRIPTION\nDoes it.\n"
                                 ".SH OPTIONS\n"
                                 ".TP\n\\fB\\-k\\fR, \\fB\\-\\-kind\\fR \\fINAME\\fR\nwhich\n"))
        << page;
    for (const char* const part : {".TP\n\\fB\\-\\-all\\fR\nevery one\n.SH "
                                   "NOTES\nSo:\n.TP\n\\fBx\\fR\none\n.SH EXIT STATUS\n",
                                   ".TP\n\\fB2\\fR\nno file\n", ".SH SEE ALSO\n\\fBother\\fR(1)\n"})
        EXPECT_NE(page.find(part), std::string::npos) << part;
}

TEST(BashCompletion, KnowsWhatEachValueIs) {
    const std::string script = bashCompletion(guide());
    const auto has = [&](const char* part) { return script.find(part) != std::string::npos; };
    EXPECT_TRUE(has("-k|--kind)\n      COMPREPLY=($(compgen -W 'x y' -- \"$cur\"))\n")) << script;
    EXPECT_TRUE(has("--out)\n      _filedir '@(plt)'\n      return")) << script;
    EXPECT_TRUE(has("--folder)\n      _filedir -d\n      return")) << script;
    EXPECT_TRUE(has("--rate)\n      return")) << script;
    EXPECT_FALSE(has("--all)")) << script;
    EXPECT_TRUE(has("compgen -W '--kind --out --folder --rate --all'")) << script;
    EXPECT_TRUE(script.ends_with("  else\n    _filedir '@(plt|svg)'\n  fi\n} &&\n"
                                 "  complete -F _a_b a-b\n"))
        << script;
}

TEST(HelpText, BreaksLinesAt86Letters) {
    ProgramGuide guide{.name = "p", .usages = {"A", "B"}};
    const std::string ten = "123456789 ";
    for (int i = 0; i < 9; ++i)
        guide.description += ten;
    guide.options = {
        {"long", 'l', "A-VALUE-AS-LONG-AS-THIS", ten + ten + ten + ten + ten + ten + "x"}};
    guide.exits = {{ExitCode::done, "done"}};
    const std::string fits = ten + ten + ten + ten + ten + "123456789";
    EXPECT_EQ(helpText(guide), "Usage: p A\n       p B\n\n" + ten + ten + fits + "\n123456789\n\n" +
                                   "  -l, --long A-VALUE-AS-LONG-AS-THIS\n" + std::string(26, ' ') +
                                   fits + "\n" + std::string(26, ' ') +
                                   "x\n\nExit codes: 0 done.\n");
}

} // namespace
} // namespace torvik
