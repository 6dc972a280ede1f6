// SPDX-License-Identifier: MIT
// The cases of tests/golden, one folder each. A folder holds a drawing, its answers and the tools;
// beside them either the expected programs of any targets ("expected.wincam", ".wincam.txt",
// ".winnc", ".winnc.txt", ".mxc", ".iso"), or "arguments" of a call, one a line, and its "exit"
// code. "expected.stderr" is what the call says on standard error, by default nothing; for a target
// of its own, "expected.iso.stderr". In expected files {folder} stands for the case's folder and
// {home} for the program's own.
#include "answers/import_drawing.h"
#include "base/logger.h"
#include "commands/target_names.h"
#include "gcode/dialects.h"
#include "gcode/program_output.h"
#include "gcode/program_size.h"
#include "tests/convert/conversion.h"
#include "tools/settings_file_reader.h"
#include "tools/tool_store.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

namespace fs = std::filesystem;

std::string replaced(std::string text, const std::string& place, const std::string& value) {
    for (auto at = text.find(place); at != text.npos; at = text.find(place, at + value.size()))
        text.replace(at, place.size(), value);
    return text;
}

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        if (!line.empty())
            lines.push_back(line);
    return lines;
}

// Runs the call in a copy of the folder: the copy must then hold what it held, and the programs.
void expectRun(const fs::path& folder, const std::vector<std::string>& arguments, int exit,
               const Files& programs, const std::string& stderrName) {
    std::string call = "cd " + folder.string() + " && torvik-convert";
    for (const std::string& argument : arguments)
        call += " " + argument;
    SCOPED_TRACE(call);
    Conversion conversion;
    fs::copy(folder, conversion.work(),
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    const auto expected = [&](std::string text) {
        text = replaced(std::move(text), "{folder}", conversion.work().string());
        return replaced(std::move(text), "{home}", conversion.home().string());
    };
    Files files = filesOf(conversion.work());
    for (const auto& [name, bytes] : programs)
        files[name] = expected(bytes);
    const std::string said = files.contains(stderrName) ? expected(files[stderrName]) : "";
    EXPECT_EQ(conversion.run(arguments), exit);
    EXPECT_EQ(conversion.err, said);

    const Files found = filesOf(conversion.work());
    for (const auto& [name, bytes] : files)
        EXPECT_EQ(found.contains(name) ? found.at(name) : "(no such file)", bytes) << name;
    EXPECT_EQ(found.size(), files.size()) << "another file was left";
    EXPECT_EQ(filesOf(conversion.home()), Files{});
    EXPECT_EQ(filesOf(conversion.config()), Files{});
}

// The lines of the case's program are counted before it is written.
void expectCounted(const fs::path& folder, const char* target, const std::string& program) {
    Logger muted;
    ToolList tools;
    ToolDataLoad(
        tools, SettingsFileReader(folder / "Maskor.ini", SettingsFileReader::IfUnreadable::raises),
        muted);
    Job job;
    importDrawingWithAnswers(job, folder / "drawing.plt", tools, folder / "drawing.plx", muted);
    EXPECT_EQ(programSize(job, tools, targetNamed(dialects(), target)).lines, lineEndsIn(program))
        << folder;
}

TEST(Golden, EachFolderGivesWhatItExpects) {
    const struct {
        const char* target;
        const char* ending;
        const char* program;
    } targets[] = {{"wincam", "wincam", "%MPF12"},
                   {"winnc", "winnc", "oprg12"},
                   {"maskor", "mxc", "drawing.mxc"},
                   {"kestra", "iso", "drawing.iso"}};
    int runs = 0;
    for (const auto& entry : fs::directory_iterator(TORVIK_GOLDEN)) {
        Files files = filesOf(entry.path());
        if (files.contains("arguments")) {
            expectRun(entry.path(), linesOf(files["arguments"]), std::stoi(files.at("exit")), {},
                      "expected.stderr");
            ++runs;
            continue;
        }
        for (const auto& target : targets) {
            const std::string expected = std::string("expected.") + target.ending;
            if (!files.contains(expected))
                continue;
            const std::string own = expected + ".stderr";
            Files programs{{std::string("out/") + target.program, files[expected]}};
            if (files.contains(expected + ".txt"))
                programs["out/" + std::string(target.program) + ".txt"] = files[expected + ".txt"];
            expectRun(entry.path(),
                      {"drawing.plt", "--answers", "drawing.plx", "--tools", "Maskor.ini",
                       "--target", target.target, "--number", "12", "--output-dir", "out"},
                      0, programs, files.contains(own) ? own : "expected.stderr");
            expectCounted(entry.path(), target.target, files[expected]);
            ++runs;
        }
    }
    EXPECT_GT(runs, 30) << "the folder of the cases is not the one meant";
}

} // namespace
} // namespace torvik
