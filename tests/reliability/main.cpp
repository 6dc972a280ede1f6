// SPDX-License-Identifier: MIT
// Walks through the program by chance. The walk that is under way is kept in the file; the first
// one in which something is wrong ends them. usage: walks WALKS ACTIONS FIRST-SEED FILE
#include "app/readable_style.h"
#include "base/numbers.h"
#include "forms/key_guard.h"
#include "forms/plain_texts.h"
#include "tests/reliability/walk.h"

#include <QApplication>

#include <iostream>

namespace torvik {
namespace {

// The record of the walk that is under way.
Record*& onRecord() {
    static Record* record = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
    return record;
}

// Every warning of Qt is a fault, but for what the platform without a screen cannot do.
void takeWarning(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type != QtDebugMsg && type != QtInfoMsg && onRecord() != nullptr &&
        !message.startsWith("This plugin does not support"))
        onRecord()->fault("Qt: " + message.toStdString());
}

int walk(unsigned walks, int actions, unsigned first, const std::filesystem::path& file) {
    std::map<int, unsigned> reached;
    for (unsigned seed = first; seed < first + walks; ++seed) {
        Record record(file, seed);
        onRecord() = &record;
        std::set<int> pages;
        {
            Walk walk(seed, record);
            walk.go(actions);
            pages = walk.pages();
        }
        onRecord() = nullptr;
        if (!record.isGood())
            return EXIT_FAILURE;
        for (const int page : pages)
            ++reached[page];
    }
    std::cout << "walks=" << walks << " actions=" << walks * static_cast<unsigned>(actions);
    const std::array<const char*, 7> names{"start",  "heights", "pens",      "order",
                                           "header", "output",  "hole-sizes"};
    for (const auto& [page, count] : reached)
        std::cout << ' ' << names.at(static_cast<std::size_t>(page - 1)) << '=' << count;
    std::cout << '\n';
    return EXIT_SUCCESS;
}

} // namespace
} // namespace torvik

int main(int argc, char** argv) try {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (argc != 5)
        return EXIT_FAILURE;
    QApplication::setStyle(new torvik::ReadableStyle);
    const torvik::KeyGuard keyGuard;
    const torvik::PlainTexts plainTexts;
    qInstallMessageHandler(torvik::takeWarning);
    const auto number = [&](int i) { return static_cast<unsigned>(std::atoi(argv[i])); };
    return torvik::walk(number(1), static_cast<int>(number(2)), number(3), argv[4]);
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return EXIT_FAILURE;
}
