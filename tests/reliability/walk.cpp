// SPDX-License-Identifier: MIT
#include "tests/reliability/walk.h"

#include "answers/job_checks.h"
#include "answers/pen_position.h"
#include "tests/reliability/invariants.h"
#include "tools/tool_store.h"
#include "wizard/output/drive_a.h"
#include "wizard/output/output_page.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>
#include <array>

namespace torvik {
namespace {

constexpr int holePage = 7;
constexpr int longestTrial = 120000; // ms

std::string sampleTools() {
    std::ifstream file(std::filesystem::path(TORVIK_SAMPLES) / "Maskor.ini");
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

Walk::Run::Run(Walk& walk)
    : workshop{walk.m_registry, walk.m_logger, walk.m_messages},
      window(workshop, FrameServices{[&walk](int topic) { walk.showHelp(topic); }, [] {},
                                     [&walk] { walk.m_hasEnded = true; }}) {
    ToolDataLoad(workshop.tools, workshop.registry, workshop.logger);
    window.show();
}

Walk::Walk(unsigned seed, Record& record)
    : m_chance(seed), m_record(record), m_programs(m_folder.path() / "programs"),
      m_registry(sampleTools()), m_logger(m_folder.path() / "walk.log",
                                          [this](const ErrorReport& report) {
                                              if (!m_mayFail)
                                                  m_record.fault(report.message());
                                          }),
      m_dialogs(m_chance, record, m_programs, [this] { return drawing(); }) {
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "TORVIK_HOME"})
        qputenv(name, m_folder.path().c_str());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path().c_str());
    std::filesystem::create_directory(m_programs);
    m_registry.RegistryValuePut("PLT File Path", m_folder.path().string());
    m_registry.RegistryValuePut(driveASetting, m_programs.string());
    for (const char* setting : {"CNC File Path", "Kestra File Path"})
        m_registry.RegistryValuePut(setting, m_programs.string());
    start();
}

void Walk::start() {
    m_hasEnded = false;
    m_run = std::make_unique<Run>(*this);
    settle();
}

void Walk::go(int actions) {
    for (int i = 0; i < actions && m_record.isGood(); ++i) {
        act();
        check();
    }
    if (m_record.isGood())
        finish();
    m_dialogs.wantsProgram = true; // the end asks for nothing
}

void Walk::act() {
    struct Action {
        int share;
        const char* name;
        void (Walk::*run)();
    };
    static constexpr std::array actions{Action{30, "type", &Walk::type},
                                        Action{16, "next", &Walk::next},
                                        Action{11, "fill", &Walk::fillPage},
                                        Action{13, "use", &Walk::use},
                                        Action{13, "key", &Walk::key},
                                        Action{5, "access key", &Walk::accessKey},
                                        Action{4, "back", &Walk::back},
                                        Action{3, "menu", &Walk::menu},
                                        Action{2, "resize", &Walk::resize},
                                        Action{2, "point", &Walk::point},
                                        Action{1, "start again", &Walk::endAndStart}};
    if (step() == 1 && m_chance.percent(70)) {
        m_record.note("open");
        open();
        return;
    }
    int place = m_chance.between(1, 100);
    for (const Action& action : actions) {
        place -= action.share;
        if (place > 0)
            continue;
        m_record.note(action.name);
        (this->*action.run)();
        return;
    }
}

std::filesystem::path Walk::drawing() {
    const WalkDrawing made = makeDrawing(m_chance, m_folder.path(), !m_dialogs.wantsProgram);
    m_mayFail |= made.isDamaged;
    return made.file;
}

void Walk::open() {
    if (m_chance.percent(50))
        press("cmdStart");
    else
        m_run->window.ReadFileLater(drawing());
}

// What somebody types who knows what is wanted.
void Walk::fillPage() {
    static constexpr std::array<const char*, 3> heights{"50", "5", "2"};
    static constexpr std::array<const char*, 7> cutting{"12000", "600", "150", "3",
                                                        "1.5",   "0.2", "300"};
    static constexpr std::array<const char*, 5> drilling{"2000", "100", "3", "0.5", "1"};
    const Job& job = m_run->workshop.job;
    if (step() == 2)
        for (int i = 0; i < 3; ++i)
            typeInto(QString("txtGlob%1").arg(i), heights[static_cast<std::size_t>(i)]);
    if (step() == 3) {
        chooseWork();
        const bool isDrilled = currentForm(job) == PenForm::drilling;
        for (std::size_t i = 0; step() == 3 && i < (isDrilled ? drilling.size() : cutting.size());
             ++i)
            typeInto(QString("txtDet%1").arg(i), isDrilled ? drilling[i] : cutting[i]);
    }
    if (step() == 5)
        for (int i = 0; i < static_cast<int>(headerLines); ++i)
            typeInto(QString("txtHead%1").arg(i), i < headerBilletX ? "Bracket" : "250");
}

void Walk::chooseWork() {
    const Workshop& workshop = m_run->workshop;
    const Settings& settings = currentSettings(workshop.job);
    if (currentPen(workshop.job).blnOmit || isOwnPageOfDrilledPen(workshop.job) ||
        isInList(workshop.tools, settings.intTool))
        return;
    press("optCut0");
    if (step() == 3 && find<QPushButton>("cmdTool").isEnabled())
        press("cmdTool");
}

void Walk::type() {
    std::vector<QLineEdit*> boxes;
    for (QWidget* const control : usableControls(m_run->window))
        if (auto* const box = qobject_cast<QLineEdit*>(control))
            boxes.push_back(box);
    if (!boxes.empty())
        m_record.note("  " + typeByChance(*m_chance.oneOf(boxes), m_chance));
}

void Walk::use() {
    std::vector<QAbstractButton*> buttons;
    for (QWidget* const control : usableControls(m_run->window))
        if (auto* const button = qobject_cast<QAbstractButton*>(control))
            // Pictures of drawings come when they are painted.
            if (!button->objectName().startsWith("cmdRecent") && button->objectName() != "cmdBack")
                buttons.push_back(button);
    if (!buttons.empty())
        press(m_chance.oneOf(buttons)->objectName().toStdString().c_str());
}

void Walk::key() {
    static constexpr std::array keys{Qt::Key_Return, Qt::Key_Escape,  Qt::Key_F1,   Qt::Key_Tab,
                                     Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Up,   Qt::Key_Down,
                                     Qt::Key_Space,  Qt::Key_Left,    Qt::Key_End,  Qt::Key_Delete,
                                     Qt::Key_Return, Qt::Key_F11,     Qt::Key_Menu, Qt::Key_Plus};
    const Qt::Key chosen = m_chance.oneOf(keys);
    QWidget* const focused = QApplication::focusWidget();
    m_record.note("  " + QKeySequence(chosen).toString().toStdString() + " at " +
                  (focused == nullptr ? "none" : focused->objectName().toStdString()));
    QTest::keyClick(focused == nullptr ? &m_run->window : focused, chosen);
}

void Walk::accessKey() {
    const auto letter = static_cast<char>(m_chance.between('a', 'z'));
    m_record.note(std::string("  Alt+") + letter);
    QWidget* const focused = QApplication::focusWidget();
    QTest::keyClick(focused == nullptr ? &m_run->window : focused, letter, Qt::AltModifier);
}

void Walk::menu() {
    static constexpr std::array<const char*, 8> names{
        "mnuFileOpen", "mnuFilePrepare",    "mnuSheet",        "mnuSheet",
        "mnuViewTree", "mnuViewFullScreen", "mnuHelpContents", "mnuFileOpen"};
    const char* const name = m_chance.oneOf(names);
    m_record.note(std::string("  ") + name);
    find<QAction>(name).trigger();
}

void Walk::resize() {
    m_run->window.setWindowState(Qt::WindowNoState);
    m_run->window.resize(m_chance.between(784, 1500), m_chance.between(552, 1000));
}

// With wheel and mouse at the picture.
void Walk::point() {
    const QString name = step() == 6 ? "picCut" : "picBack";
    const auto pictures = m_run->window.findChildren<QWidget*>(name);
    const auto at = std::ranges::find_if(pictures, &QWidget::isVisible);
    if (at == pictures.end())
        return;
    QWidget& picture = **at;
    const QPoint place(m_chance.between(1, picture.width()), m_chance.between(1, picture.height()));
    QWheelEvent wheel(place, picture.mapToGlobal(place), {}, {0, m_chance.between(-3, 3) * 120}, {},
                      {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&picture, &wheel);
    QTest::mouseMove(&picture, place);
    QTest::mouseClick(&picture, Qt::LeftButton, {}, place);
}

void Walk::next() {
    press("cmdNext");
}

void Walk::back() {
    press("cmdBack");
}

// As after a power cut; or the window is closed.
void Walk::endAndStart() {
    if (m_chance.percent(50)) {
        m_run->window.close();
        settle();
        if (!m_hasEnded)
            return;
    }
    m_run.reset();
    start();
}

void Walk::finish() {
    m_record.note("to the end");
    m_dialogs.wantsProgram = true;
    std::filesystem::remove_all(m_programs);
    std::filesystem::create_directory(m_programs);
    for (int i = 0; i < 200 && m_record.isGood() && step() > 2; ++i) {
        fillPage(); // else an odd number stays
        press("cmdBack");
        check();
    }
    for (int i = 0; i < 200 && m_record.isGood() && step() < 6; ++i) {
        if (step() == 1 || m_run->workshop.job.drawing.gintPathCount == 0) {
            m_run->window.ReadFile(drawing());
            settle();
        }
        fillPage();
        settle();
        press("cmdNext");
        check();
    }
    m_record.require(step() == 6, "the output page is not reached");
    if (!m_record.isGood())
        return;
    press(("optOutput" + std::to_string(m_chance.between(1, 4))).c_str());
    check();
    const auto target = static_cast<OutputPage&>(find<QWidget>("picOutput")).target();
    m_run->window.Wizard(1);
    settle();
    if (step() == 6)
        checkWritten(m_run->window, m_run->workshop, target, m_programs, m_record);
}

void Walk::check() {
    settle();
    m_dialogs.newAction();
    if (m_hasEnded)
        start();
    m_pages.insert(step());
    if (step() == 3 && isHolePage(m_run->workshop.job))
        m_pages.insert(holePage);
    checkWindow(m_run->window, m_run->workshop, m_record);
    if (m_chance.percent(10))
        checkPicture(m_run->window, m_run->workshop, m_record);
    m_mayFail = false;
}

void Walk::settle() {
    const auto run = [] {
        for (int i = 0; i < 5; ++i) {
            QApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    };
    run();
    while (QWidget* const menu = QApplication::activePopupWidget())
        menu->close();
    const TrialRun& trial = static_cast<OutputPage&>(find<QWidget>("picOutput")).trial();
    m_record.require(QTest::qWaitFor([&] { return !trial.isRunning(); }, longestTrial),
                     "the trial does not end");
    run();
    if (QApplication::activeModalWidget() == nullptr)
        QApplication::setActiveWindow(&m_run->window);
}

void Walk::showHelp(int topic) {
    m_help.showTopic(topic);
    m_record.require(QFile::exists(HelpWindow::topicFile(topic)),
                     "no help topic " + std::to_string(topic));
    m_help.close();
}

template <typename Control>
Control& Walk::find(const QString& name) {
    auto* const control = m_run->window.findChild<Control*>(name);
    if (control == nullptr)
        throw std::logic_error("no control " + name.toStdString());
    return *control;
}

void Walk::typeInto(const QString& name, const char* text) {
    auto& box = find<QLineEdit>(name);
    if (!box.isVisible() || !box.isEnabled())
        return;
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, text);
}

void Walk::press(const char* name) {
    auto& button = find<QAbstractButton>(name);
    m_record.note(std::string("  press ") + name);
    if (button.focusPolicy() != Qt::NoFocus)
        button.setFocus();
    button.click();
    settle();
}

} // namespace torvik
