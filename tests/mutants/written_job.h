// SPDX-License-Identifier: MIT
// A job made up by chance, as it is written for one control.
#pragma once

#include "base/byte_sink.h"
#include "base/logger.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"
#include "tests/check/random_job.h"

namespace torvik {

struct WrittenJob {
    WrittenJob(unsigned start, const Dialect& control, bool hasBillet = false)
        : seed(start), made(seed), dialect(control) {
        if (hasBillet)
            made.takeBillet();
        Logger muted;
        StringSink text;
        writeProgram(made.job, made.tools, dialect, 1, text, muted);
        program = text.bytes();
        if (dialect.needsNumber()) {
            StringSink beside;
            writeSideText(made.job, made.tools, "1", beside, muted);
            sideText = beside.bytes();
        }
    }

    unsigned seed;
    RandomJob made;
    const Dialect& dialect;
    std::string program;
    std::string sideText;
};

} // namespace torvik
