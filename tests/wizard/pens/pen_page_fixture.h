// SPDX-License-Identifier: MIT
// A pen page on a small drawing, with a main window that only notes what it is asked and a message
// box whose answers are given beforehand.
#pragma once

#include "forms/number_box.h"
#include "job/colour_tree.h"
#include "tests/job/drawing.h"
#include "wizard/pens/pen_page.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <deque>
#include <gtest/gtest.h>

namespace torvik {

class NotingHost : public WizardHost {
public:
    void setNextEnabled(bool enabled) override {
        next = enabled;
        ++nextChanges;
    }
    void focusNext() override { focus = true; }
    void updateTree() override { calls += "tree "; }
    void PlotLines() override { calls += "lines "; }
    void clearPreview() override { calls += "clear "; }
    void plotBlink(const std::vector<std::int16_t>& paths, bool visible) override {
        blinking = paths;
        shown = visible;
    }
    void startFlashing(int milliseconds) override { interval = milliseconds; }
    void stopFlashing() override { calls += "stop "; }
    void startToolSelection() override { calls += "tools "; }
    void leavePensBackward() override { calls += "backward "; }
    void leavePensForward() override { calls += "forward "; }

    std::string takeCalls() { return std::exchange(calls, {}); }

    bool next = false;
    int nextChanges = 0;
    bool focus = false; // was given to cmdNext
    std::string calls;
    std::vector<std::int16_t> blinking;
    bool shown = true;
    int interval = 0;
};

class ScriptedMessages : public StdMessageBox {
public:
    int intStdMsgBox(const std::string& text, int style, const std::string& title) override {
        asked += title + "|" + std::to_string(style) + "|" + text;
        if (answers.empty())
            return buttonOk;
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::string take() { return std::exchange(asked, {}); }

    std::string asked;
    std::deque<int> answers;
};

class NoRegistry : public Registry {
    std::string storedValueGet(std::string_view, std::string_view usual) const override {
        return std::string(usual);
    }
    std::optional<std::string> storedText(std::string_view) const override { return {}; }
    bool store(const Values&) override { return true; }
};

// Black: a line. Red: circles of radius 1.5, 2.5 and 1.5. Blue: a line. Settings groups: Black 1,
// Red 2 and, by size, 3 and 4, Blue 5.
inline constexpr const char* threePens =
    "SP1;PU0,0;PD400,0;SP2;PU400,400;CI60;PU800,400;CI100;PU1200,400;CI60;"
    "SP4;PU0,800;PD400,800;";

// What every page works on; whatever is logged as an error fails the test.
class PageTest : public testing::Test {
protected:
    ~PageTest() override { EXPECT_EQ(errors, std::vector<std::string>{}); }

    NotingHost host;
    ScriptedMessages messages;
    NoRegistry registry;
    std::vector<std::string> errors;
    Logger logger{{}, [this](const ErrorReport& report) { errors.push_back(report.message()); }};
    Workshop workshop{registry, logger, messages};
    Job& job = workshop.job;
};

class PenPageTest : public PageTest {
protected:
    void open(const std::string& drawing = threePens) {
        job = setUpDrawing(drawing);
        job.gintWizardStep = 3;
        useSeconds(false);
        CreateTree(job.answers, job.position, logger);
        workshop.tools.gudtTools = {{7, "Slot drill", 6}, {3, "Drill", 3}, {4, "Drill", 5.01F}};
        workshop.tools.gintToolCount = 3;
        page.show();
        QApplication::setActiveWindow(&page);
        page.ShowPen(1);
    }
    void useSeconds(bool seconds) {
        job.answers.gsngFeedFactor = seconds ? 60 : 1;
        job.answers.gstrFeedUnits = seconds ? "(mm/sec)" : "(mm/min)";
    }
    // A complete group to cut, with a final pass.
    static Settings cut() { return {1, 12000, 600, 300, 150, 3, 1, 0.2F, 0, false, true}; }
    // A complete group to drill in pecks.
    static Settings drill(std::int16_t tool) {
        return {tool, 2000, 0, 0, 100, 8, 2, 0, 0.5F, true, true};
    }

    NumberBox& box(int row) { return *find<NumberBox>("txtDet", row); }
    QRadioButton& option(int index) { return *find<QRadioButton>("optCut", index); }
    QPushButton& tool() { return *page.findChild<QPushButton*>("cmdTool"); }
    QCheckBox& peck() { return *page.findChild<QCheckBox*>("chkPeck"); }
    template <typename Control>
    Control* find(const char* name, int index) {
        return page.findChild<Control*>(name + QString::number(index));
    }
    std::string label(const char* name) {
        return page.findChild<QLabel*>(name)->text().toStdString();
    }

    void type(int row, const char* keys) {
        box(row).setFocus();
        box(row).selectAll();
        QTest::keyClicks(&box(row), keys);
    }
    void paste(int row, const char* text) {
        box(row).setFocus();
        box(row).selectAll();
        box(row).insert(text);
    }
    void fill(std::initializer_list<const char*> texts) {
        int row = 0;
        for (const char* text : texts)
            type(row++, text);
    }
    void choose(int index) {
        QTest::mouseClick(&option(index), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    }

    // The boxes as "text", "~" for an empty one, in brackets where it is closed, none where hidden.
    std::string rows() {
        std::string all;
        for (int row = 0; row < 7; ++row) {
            const NumberBox& at = box(row);
            EXPECT_EQ(at.isEnabled(), !at.isReadOnly()) << row;
            EXPECT_EQ(at.palette().color(QPalette::Base) == QColor(192, 192, 192), at.isReadOnly())
                << row;
            if (at.isHidden())
                continue;
            const std::string text = at.text().isEmpty() ? "~" : at.text().toStdString();
            all += (all.empty() ? "" : " ") + (at.isEnabled() ? text : "(" + text + ")");
        }
        return all;
    }
    // The choice, the tool, whether the tool button and Next can be pressed.
    std::string state() {
        std::string text = option(0).isChecked()   ? "machine"
                           : option(1).isChecked() ? "leave"
                                                   : "-";
        text += " " + label("lblToolNumber");
        text += tool().isEnabled() ? " tool" : "";
        return text + (host.next ? " next" : "");
    }
    const ColourNode& node(std::size_t i) { return job.position.gudtColourTree.at(i); }

    PenPage page{workshop, host};
};

} // namespace torvik
