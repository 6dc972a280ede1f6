// SPDX-License-Identifier: MIT
// torvik-bench-program DRAWING ANSWERS TOOLS FILE: writes the Maskor program of a drawing as
// torvik-convert does, but without checking it.
#include "base/large_pages.h"
#include "commands/drawing_run.h"
#include "commands/job/job_reader.h"
#include "commands/target_names.h"
#include "convert/program_files.h"
#include "gcode/dialects.h"
#include "gcode/program_size.h"

#include <iostream>
#include <string_view>

namespace torvik {
namespace {

constexpr std::string_view programName = "torvik-bench-program";

void say(std::string_view message) {
    std::cerr << programName << ": " << message << '\n';
}

void write(char** names) {
    JobReader reader(programName, {names[2], names[3]}, say);
    const Job job = reader.readJob(names[1]);
    const Dialect& maskor = targetNamed(dialects(), "maskor");
    if (programSize(job, reader.tools(), maskor).isTooLong() ||
        !writeProgramFiles(job, reader.tools(), maskor, 1, names[4], Overwriting::everything,
                           reader.logger()))
        throw Failure{ExitCode::job, "the program cannot be written"};
}

} // namespace
} // namespace torvik

int main(int argc, char** argv) {
    torvik::takeHeapInLargePages();
    if (argc == 5)
        return torvik::runEach(
            {argv[1]}, [&](std::size_t) { torvik::write(argv); }, torvik::say);
    torvik::say("usage: torvik-bench-program DRAWING ANSWERS TOOLS FILE");
    return 1;
}
