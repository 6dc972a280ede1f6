// SPDX-License-Identifier: MIT
// What was answered survives the end of the program, whatever ends it.
#include "answers/saved_answers.h"
#include "base/files.h"
#include "tests/wizard/main_window_fixture.h"
#include "wizard/globals_page.h"
#include "wizard/header_page.h"
#include "wizard/order_page.h"
#include "wizard/pens/pen_page.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTableWidget>

#include <csignal>
#include <ctime>

namespace torvik {
namespace {

constexpr const char* walkVariable = "TORVIK_TEST_WALK"; // how far the child goes
constexpr const char* homeVariable = "TORVIK_TEST_HOME"; // and in which folder

class AutosaveTest : public MainWindowTest {
protected:
    struct Action {
        std::function<void()> run;
        bool isStep = false; // to another page
    };

    QTimer& timer() { return find<QTimer>("tmrAutosave"); }
    std::filesystem::path file() { return folder.path() / "PlotSave/drawing.plx.unfinished"; }
    // Opens the drawing; says whether the user was asked to go on.
    bool openAgain(int answer) {
        messages.answers = {answer};
        window->ReadFile(drawing);
        settle();
        messages.answers.clear();
        return messages.take().starts_with("Torvik|36|Go on where you stopped at ");
    }
    void startAgain() {
        window.reset();
        job = {};
        start();
    }
    void chooseTool(int row) {
        answers.expect("frmToolSelect", [row](QDialog& dialog) {
            dialog.findChild<QTableWidget*>()->selectRow(row);
            DialogAnswers::press("cmdOk")(dialog);
        });
        click("cmdTool");
    }

    // All that the window shows of the answers, and those of the pages that are not on show.
    std::string state() {
        std::string text = shown();
        for (const QWidget* const control : window->findChildren<QWidget*>()) {
            if (!control->isVisible())
                continue;
            std::string value;
            if (const auto* const box = qobject_cast<const QLineEdit*>(control))
                value = box->text().toStdString() + (box->isEnabled() ? "" : " closed");
            else if (const auto* const option = qobject_cast<const QAbstractButton*>(control))
                value = option->isChecked() ? "chosen" : "";
            // On the last page labels tell how far the trial of the program has come; the hint
            // of the heights follows the focus.
            else if (const auto* const said = qobject_cast<const QLabel*>(control);
                     said != nullptr && !said->objectName().isEmpty() &&
                     said->objectName() != u"lblHeightHint" && job.gintWizardStep < 6)
                value = said->text().toStdString();
            if (!value.empty())
                text += "\n" + control->objectName().toStdString() + " " + value;
        }
        Job typed = job;
        if (job.gintWizardStep == 2)
            window->findChild<GlobalsPage*>()->storeTyped(typed.answers);
        if (job.gintWizardStep == 3)
            window->findChild<PenPage*>()->storeTyped(typed.answers);
        if (job.gintWizardStep == 4)
            window->findChild<OrderPage*>()->storeTyped(typed.answers);
        if (job.gintWizardStep == 5)
            window->findChild<HeaderPage*>()->storeTyped(typed.answers);
        if (!typed.answers.gblnOrderSet)
            typed.answers.gintOrder.fill(0);
        SavedAnswers all = answersOfJob(typed, workshop.tools);
        all.sngOrderCount = 0; // means nothing
        return text + "\n" + formatAnswers(all);
    }

    // A pupil's way from the opened drawing to the last step.
    std::vector<Action> walk() {
        std::vector<Action> actions;
        const auto types = [&](const char* box, const char* text) {
            actions.push_back({[this, box, text] { type(box, text); }});
        };
        const auto clicks = [&](const char* button) {
            actions.push_back({[this, button] { click(button); }});
        };
        const auto steps = [&] { actions.push_back({[this] { click("cmdNext"); }, true}); };
        const auto takesTool = [&](int row) {
            actions.push_back({[this, row] { chooseTool(row); }});
        };
        types("txtGlob0", "40");
        types("txtGlob1", "5.5");
        types("txtGlob2", "1");
        clicks("optUnits0");
        steps(); // the black lines
        types("txtDet0", "4000");
        clicks("optCut0");
        types("txtDet1", "600");
        types("txtDet2", "100");
        takesTool(0);
        types("txtDet3", "3");
        types("txtDet4", "1.2");
        types("txtDet5", "0");
        types("txtDet5", "0.2");
        types("txtDet6", "250");
        steps(); // the red circles, which are drilled
        actions.push_back({[this] {
                               messages.answers = {buttonYes};
                               click("optCut0");
                               messages.take();
                           },
                           true});
        takesTool(1);
        types("txtDet0", "900");
        types("txtDet3", "0"); // a zero that says something
        types("txtDet1", "80");
        types("txtDet2", "6.");
        clicks("chkPeck");
        types("txtDet4", "2");
        steps();
        types("txtDet0", "700");
        clicks("optCut0");
        takesTool(2);
        types("txtDet1", "70");
        types("txtDet2", "4");
        types("txtDet3", "0.5");
        steps();           // the blue lines
        clicks("optCut1"); // are left out
        steps();
        clicks("cmdDown");
        steps();
        types("txtHead1", "Jo \"J\" Ö");
        types("txtHead5", "Acrylic");
        types("txtHead8", "12,5");
        steps();
        return actions;
    }

    // Walks to the action, each one before it seen by the timer, and is killed right behind it.
    // Leaves what was to be seen before and after it.
    void walkAndDie(std::size_t count) {
        const std::filesystem::path home = std::getenv(homeVariable);
        setenv("TORVIK_HOME", home.c_str(), 1);
        const auto note = [&](const char* name) { std::ofstream(home / name) << state(); };
        start();
        drawing = home / "drawing.plt";
        openAgain(buttonNo);
        timer().setInterval(1);
        const std::vector<Action> actions = walk();
        for (std::size_t i = 0; i < count; ++i) {
            QSignalSpy looked(&timer(), &QTimer::timeout);
            EXPECT_TRUE(looked.wait());
            if (i + 1 == count)
                timer().setInterval(std::numeric_limits<int>::max());
            note("before");
            actions[i].run();
        }
        note("after");
        std::raise(SIGKILL);
    }
};

TEST_F(AutosaveTest, AKillAtAnyOfFortyPlacesLosesAtMostTheBoxThatIsTypedIn) {
    if (qEnvironmentVariableIsSet(walkVariable)) {
        walkAndDie(static_cast<std::size_t>(qEnvironmentVariableIntValue(walkVariable)));
        return;
    }
    const std::vector<Action> actions = walk();
    ASSERT_EQ(actions.size(), 40U);
    drawing = folder.file("drawing.plt", threePens);
    for (std::size_t count = 1; count <= actions.size(); ++count) {
        SCOPED_TRACE("killed behind action " + std::to_string(count));
        std::filesystem::remove_all(folder.path() / "PlotSave");
        QProcess child;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(walkVariable, QString::number(count));
        for (const char* name : {homeVariable, "TMPDIR"}) // what it leaves goes with the folder
            environment.insert(name, QString::fromStdString(folder.path().string()));
        child.setProcessEnvironment(environment);
        child.start(QApplication::applicationFilePath(),
                    {"--gtest_filter=AutosaveTest.AKillAtAny*"});
        ASSERT_TRUE(child.waitForFinished());
        ASSERT_EQ(child.exitStatus(), QProcess::CrashExit)
            << child.readAllStandardOutput().toStdString();
        startAgain();
        EXPECT_LE(timer().interval(), 2000);
        openAgain(buttonYes);
        const std::string before = readWholeFile(folder.path() / "before", 1 << 20);
        const std::string after = readWholeFile(folder.path() / "after", 1 << 20);
        EXPECT_NE(before, after);
        const bool isAsBefore = !actions[count - 1].isStep && state() == before;
        EXPECT_EQ(state(), isAsBefore ? before : after);
    }
}

TEST_F(AutosaveTest, WhatWasAnsweredIsOfferedUntilANo) {
    startDrawing();
    type("txtGlob1", "5");
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(file()); }, 2000));
    startAgain();
    EXPECT_TRUE(openAgain(buttonNo));
    EXPECT_EQ(text("txtGlob1"), "");
    EXPECT_FALSE(openAgain(buttonYes)) << "after a No";

    type("txtGlob1", "6"); // and at once another drawing, which is refused
    job.output.gblnUnsaved = false;
    window->ReadFile(folder.file("broken.plt", "SP9;PD10,10;"));
    EXPECT_EQ(std::exchange(errors, {}).size(), 1U);
    startAgain();
    EXPECT_TRUE(openAgain(buttonYes));
    EXPECT_EQ(shown() + text("txtGlob1"), "picGlobals Back Next6");
    type("txtGlob1", "7");
    messages.answers = {buttonYes};
    window->close(); // without a program
    messages.take();
    startAgain();
    EXPECT_TRUE(openAgain(buttonYes));
    EXPECT_EQ(text("txtGlob1"), "7");
    job.output.gblnUnsaved = false;
}

TEST_F(AutosaveTest, AWrittenProgramNeedsNothingMoreUntilSomethingIsAnswered) {
    startSample("bracket");
    const auto unfinished = folder.path() / "PlotSave/bracket.plx.unfinished";
    const std::string saved = readWholeFile(folder.path() / "PlotSave/bracket.plx", 1 << 20);
    go(5);
    type("txtHead1", "Jo");
    go(6);
    EXPECT_TRUE(std::filesystem::exists(unfinished));
    EXPECT_EQ(readWholeFile(folder.path() / "PlotSave/bracket.plx", 1 << 20), saved);
    click("optOutput4");
    answers.expect("dlgSave", DialogAnswers::file(folder.path() / "a.iso"));
    answers.expect("frmMenu", [&](QDialog& dialog) {
        EXPECT_FALSE(std::filesystem::exists(unfinished));
        DialogAnswers::press("cmdSave")(dialog);
    });
    click("cmdNext");
    click("cmdBack");
    EXPECT_FALSE(std::filesystem::exists(unfinished));
    type("txtHead1", "Ann");
    click("cmdBack");
    EXPECT_TRUE(std::filesystem::exists(unfinished));
}

TEST_F(AutosaveTest, WhereNothingCanBeKeptThisIsLoggedOnceAndNobodyIsStopped) {
    const auto log = folder.path() / "test.log";
    logger = Logger(log, [](const ErrorReport&) { ADD_FAILURE(); });
    folder.file("PlotSave", ""); // no folder
    startDrawing();
    type("txtGlob1", "5");
    click("optUnits0");
    for (const char* button : {"cmdNext", "cmdBack", "cmdNext"})
        click(button);
    EXPECT_EQ(shown(), "picDetails Back -Next");
    EXPECT_TRUE(label("lblAnswersUnkept").starts_with("Your answers could not be kept in "));
    const std::string text = readWholeFile(log, 1 << 20);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << text;
    EXPECT_NE(text.find("Autosave"), std::string::npos);
    std::filesystem::remove(folder.path() / "PlotSave");
    click("cmdBack");
    EXPECT_FALSE(find<QLabel>("lblAnswersUnkept").isVisible());
    job.output.gblnUnsaved = false;
}

} // namespace
} // namespace torvik
