// SPDX-License-Identifier: MIT
#include "base/error_trap.h"
#include "base/errors.h"
#include "base/files.h"
#include "base/logger.h"
#include "tests/base/temporary_folder.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

class LoggerTest : public testing::Test {
protected:
    // The log without its dates, in lines that end as Windows or others have it.
    std::string logged() const {
        std::string text = readWholeFile(file, 1 << 20);
        std::erase(text, '\r');
        for (std::size_t at = 0; at < text.size(); at = text.find('\n', at) + 1)
            text.erase(at, std::string_view("2024-01-31 12:00:00 ").size());
        return text;
    }

    TemporaryFolder folder;
    std::filesystem::path file = folder.path() / "torvik.log";
    std::vector<std::string> reports;
    Logger logger{file, [this](const ErrorReport& report) { reports.push_back(report.message()); }};
};

TEST_F(LoggerTest, ATrappedErrorIsLoggedAndReportedWithItsLocation) {
    EXPECT_TRUE(withErrorTrap(logger, {"WriteGcodes", "modHpgl"}, [] {}));
    EXPECT_FALSE(withErrorTrap(logger, {"WriteGcodes", "modHpgl"},
                               [] { throw FileError("a\nb.plt", "a number is too large", 3); }));
    EXPECT_FALSE(
        withQuietErrorTrap(logger, {"sngArcCos", "modHpgl"}, [] { throw DivisionByZero(); }));
    EXPECT_EQ(reports, std::vector<std::string>{"An error has occurred in WriteGcodes (modHpgl):\n"
                                                "a\nb.plt, line 3: a number is too large."});
    EXPECT_EQ(logged(), "error WriteGcodes (modHpgl): a b.plt, line 3: a number is too large\n"
                        "error sngArcCos (modHpgl): a number was divided by zero\n");
}

TEST_F(LoggerTest, TheEndOfTheMemoryIsSaidInPlainWordsAndOfTheFile) {
    EXPECT_FALSE(withErrorTrap(logger, {"A", "mod"},
                               [] { namingFile("a.plt", [] { throw std::bad_alloc(); }); }));
    EXPECT_FALSE(withErrorTrap(logger, {"A", "mod"}, [] { throw std::bad_alloc(); }));
    EXPECT_EQ(logged(), "error A (mod): a.plt: there is not enough memory\n"
                        "error A (mod): there is not enough memory\n");
}

TEST_F(LoggerTest, TheSwitchesChooseWhatIsLogged) {
    const auto logAll = [this] {
        logger.logError("A", "mod", "x");
        logger.trace("A", "mod");
        logger.trace("B", "mod");
        logger.info("A", "frm", "y");
    };
    logAll();
    EXPECT_EQ(logged(), "error A (mod): x\n") << "without switches errors alone are logged";
    std::filesystem::remove(file);
    logger.setSwitches(LogSwitches::fromTexts("0", "1", "-1", " frm, B,,"));
    logAll();
    EXPECT_EQ(logged(), "trace A (mod)\n") << "excluded are a module and a procedure";
    logger.setSwitches(LogSwitches::fromTexts("no", "", "1", ""));
    logAll();
    EXPECT_EQ(logged(), "trace A (mod)\ninfo A (frm): y\n") << "a text that is no number is off";
    logger.reportError("A", "mod", "z");
    EXPECT_EQ(reports.size(), 1U) << "an error that is not logged is still reported";
}

TEST_F(LoggerTest, EqualMessagesAreCountedAndAFullLogIsPutAside) {
    for (int i = 0; i < 120; ++i)
        logger.logError("A", "mod", "x");
    logger.logError("A", "mod", "y");
    EXPECT_EQ(logged(), "error A (mod): x\nerror A (mod): x (10 times in a row)\n"
                        "error A (mod): x (100 times in a row)\nerror A (mod): y\n");
    folder.file("torvik.log", std::string(1'000'000, 'x'));
    logger.logError("A", "mod", "z");
    EXPECT_EQ(logged(), "error A (mod): z\n");
    EXPECT_EQ(std::filesystem::file_size(folder.path() / "torvik.log.old"), 1'000'000U);
}

TEST_F(LoggerTest, ALogThatCannotBeWrittenStopsNobody) {
    Logger elsewhere(folder.path() / "missing" / "torvik.log");
    EXPECT_FALSE(withErrorTrap(elsewhere, {"A", "mod"}, [] { throw Overflow(); }));
}

} // namespace
} // namespace torvik
