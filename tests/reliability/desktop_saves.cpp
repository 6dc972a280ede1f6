// SPDX-License-Identifier: MIT
// Saves of the desktop program, done in its windows as often as they are ordered. Standard input
// has two lines for each: "prepare" does all that comes before the save and is answered by "ready";
// then comes an order of the fault library (fault_order.h), answered by a line with 0 where the
// user takes it for saved, else 1, a blank, and what the user was told. usage: desktop_saves
// answers|unfinished|tools|settings|program SAMPLES WORK
#include "answers/program_folder.h"
#include "app/readable_style.h"
#include "base/logger.h"
#include "forms/key_guard.h"
#include "forms/plain_texts.h"
#include "tests/reliability/dialog_hands.h"
#include "tools/settings/open_registry.h"
#include "tools/settings_file_reader.h"
#include "tools/tool_store.h"
#include "wizard/frm_main.h"
#include "wizard/output/drive_a.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <array>
#include <dlfcn.h>
#include <filesystem>
#include <iostream>
#include <memory>
#include <stdexcept>

namespace torvik {
namespace {

namespace fs = std::filesystem;

constexpr int outputStep = 6;

// What the user would read; each question is answered so that the work goes on.
class ToldMessages final : public StdMessageBox {
public:
    int intStdMsgBox(const std::string& text, int style, const std::string& /*title*/) override {
        if (style == styleQuestion || style == styleQuestionDefaultNo)
            return buttonYes;
        told += text + " ";
        return style == styleRetryExclamation ? buttonCancel : buttonOk;
    }
    std::string told;
};

class Desk {
public:
    Desk(fs::path samples, fs::path work)
        : m_samples(std::move(samples)), m_work(std::move(work)) {}

    // The program as it is started, on a drawing that has all its answers.
    void open(const char* drive = "disk") {
        m_run.reset();
        const auto copy = [](const fs::path& from, const fs::path& to) {
            fs::create_directories(to.parent_path());
            fs::copy_file(from, to, fs::copy_options::overwrite_existing);
        };
        copy(m_samples / "bracket.plx", savedSettingsFolder() / "bracket.plx");
        copy(m_samples / "Maskor.ini", userSettingsFile());
        copy(m_samples / "bracket.plt", m_work / "bracket.plt");
        fs::remove(savedSettingsFolder() / "bracket.plx.unfinished");
        m_run = std::make_unique<Run>(m_messages);
        m_run->registry->RegistryValuePut(driveASetting, (m_work / drive).string());
        m_run->window.ReadFile(m_work / "bracket.plt");
        settle();
    }
    bool isOpen() const { return m_run != nullptr; }
    void go(int step) {
        for (int i = 0; i < 40 && this->step() != step; ++i)
            press("cmdNext");
        if (this->step() != step)
            throw std::runtime_error("the page is not reached: " + m_messages.told);
    }
    int step() const { return m_run->workshop.job.gintWizardStep; }

    template <typename Control>
    Control& find(const char* name) {
        auto* const control = m_run->window.findChild<Control*>(name);
        if (control == nullptr)
            throw std::runtime_error(std::string("no control ") + name);
        return *control;
    }
    void press(const char* name) {
        find<QAbstractButton>(name).click();
        settle();
    }
    void keepNow(const char* height) {
        find<QLineEdit>("txtGlob0").setText(height);
        QMetaObject::invokeMethod(&find<QTimer>("tmrAutosave"), "timeout");
    }
    // The status line, where it is shown.
    std::string line(const char* name) {
        const auto& label = find<QLabel>(name);
        return label.isHidden() ? "" : label.text().toStdString();
    }
    void begin() {
        m_messages.told.clear();
        m_hands.closed.clear();
    }
    const std::string& told() const { return m_messages.told; }
    bool hasClosed(const char* dialog) const { return m_hands.closed.contains(dialog); }

private:
    // What is there as long as the program runs.
    struct Run {
        explicit Run(ToldMessages& messages)
            : logger({},
                     [&messages](const ErrorReport& report) {
                         messages.told += report.message() + " ";
                     }),
              registry(openRegistry()), workshop{*registry, logger, messages},
              window(workshop, FrameServices{[](int) {}, [] {}, [] {}}) {
            ToolDataLoad(workshop.tools, *registry, logger);
            window.show();
        }
        Logger logger;
        std::unique_ptr<Registry> registry;
        Workshop workshop;
        FrmMain window;
    };

    static void settle() {
        for (int i = 0; i < 4; ++i)
            QApplication::processEvents();
    }

    fs::path m_samples;
    fs::path m_work;
    ToldMessages m_messages;
    DialogHands m_hands;
    std::unique_ptr<Run> m_run;
};

// What the user would say of a save.
struct Said {
    bool isSaved;
    std::string told;
};

struct Save {
    const char* name;
    void (*prepare)(Desk& desk);
    Said (*save)(Desk& desk);
};

void openOnce(Desk& desk) {
    if (!desk.isOpen())
        desk.open();
}

void prepareOutput(Desk& desk, const char* drive) {
    if (desk.isOpen())
        return;
    desk.open(drive);
    desk.go(outputStep);
    desk.press("optOutput2"); // a program with a text beside it
}

void prepareProgram(Desk& desk) {
    prepareOutput(desk, "disk");
}

void prepareAnswers(Desk& desk) {
    prepareOutput(desk, "."); // the program is not what is looked at
}

Said writeProgram(Desk& desk) {
    desk.press("cmdNext");
    return {desk.hasClosed("frmMenu"), desk.told()};
}

Said saveAnswers(Desk& desk) {
    desk.press("cmdNext");
    return {desk.told().empty(), desk.told()};
}

void prepareUnfinished(Desk& desk) {
    openOnce(desk);
    desk.keepNow("51");
}

Said keepUnfinished(Desk& desk) {
    desk.keepNow("52");
    const std::string told = desk.line("lblAnswersUnkept");
    return {told.empty(), told};
}

void prepareTools(Desk& desk) {
    desk.open();
    desk.go(3);
}

Said saveTools(Desk& desk) {
    desk.press("cmdTool");
    const std::string line = desk.line("lblToolsUnsaved");
    return {line.empty() && desk.hasClosed("frmToolSelect"), desk.told() + line};
}

Said saveSetting(Desk& desk) {
    desk.find<QAction>("mnuLanguageGerman").trigger();
    return {desk.told().empty(), desk.told()};
}

constexpr std::array saves{
    Save{"answers", prepareAnswers, saveAnswers},
    Save{"unfinished", prepareUnfinished, keepUnfinished}, Save{"tools", prepareTools, saveTools},
    Save{"settings", openOnce, saveSetting}, Save{"program", prepareProgram, writeProgram}};

template <typename Function>
Function* inShim(const char* name) {
    auto* const found = reinterpret_cast<Function*>(dlsym(RTLD_DEFAULT, name));
    if (found == nullptr)
        throw std::runtime_error("the fault library is not loaded");
    return found;
}

void work(Desk& desk, const Save& save) {
    auto* const takeOrder = inShim<bool(const char*)>("torvikTakeOrder");
    auto* const disarm = inShim<void(const void*)>("torvikArmFault");
    for (std::string order; std::getline(std::cin, order);) {
        if (order == "prepare") {
            save.prepare(desk);
            std::cout << "ready" << std::endl;
            continue;
        }
        desk.begin();
        if (!takeOrder(order.c_str()))
            throw std::runtime_error("no order: " + order);
        Said said = save.save(desk);
        disarm(nullptr);
        std::replace(said.told.begin(), said.told.end(), '\n', ' ');
        std::cout << (said.isSaved ? "0 " : "1 ") << said.told << std::endl;
    }
}

} // namespace
} // namespace torvik

int main(int argc, char** argv) try {
    using namespace torvik;
    const QApplication application(argc, argv);
    if (argc != 4)
        return EXIT_FAILURE;
    QApplication::setStyle(new ReadableStyle);
    const KeyGuard keyGuard;
    const PlainTexts plainTexts;
    const auto save = std::ranges::find(saves, std::string_view(argv[1]),
                                        [](const Save& row) { return row.name; });
    if (save == saves.end())
        return EXIT_FAILURE;
    Desk desk(argv[2], argv[3]);
    work(desk, *save);
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return EXIT_FAILURE;
}
