// SPDX-License-Identifier: MIT
// Step 2: the three heights of the whole job and the unit in which feeds are typed.
#pragma once

#include "answers/job_checks.h"

#include <QWidget>

#include <array>
#include <string>
#include <vector>

class QLabel;
class QRadioButton;

namespace torvik {

class HeightsDiagram;
class NumberBox;
class QuietLine;
struct Workshop;
class WizardHost;

class GlobalsPage : public QWidget {
    Q_OBJECT

public:
    GlobalsPage(Workshop& workshop, WizardHost& host, QWidget* parent = nullptr);

    // Puts the boxes txtGlob0 to txtGlob2 and the unit options into the job.
    void SaveGlobals();
    // The same into answers that are only looked at.
    void storeTyped(Answers& answers) const;
    // The texts of the boxes, and the same texts once more.
    std::vector<std::string> typedTexts() const;
    void typeAgain(const std::vector<std::string>& texts);
    // Fills them from the job: heights as whole millimetres, 0 as an empty box.
    void RestoreGlobals();
    // Whether all three heights are other than zero and can be stored; else says which is not,
    // selects it and gives it the focus.
    bool blnGlobalsValid();

    // Says why the saved answers were not used; an empty text says nothing.
    void sayDamage(const std::string& damage);

    // Whether every height holds at least one character and a unit is chosen.
    bool isFilled() const;
    // On entry to the step: cmdNext by isFilled(), the focus in the first empty height.
    void enter();

private:
    HeightTexts texts() const;
    // What is missing or wrong with the heights, of all that the worst.
    void sayHeights();
    // The heights from the side, and what is usual for the one that is asked for.
    QWidget* makePicture();
    void markHeight(std::size_t height);

    Workshop& m_workshop;
    WizardHost& m_host;
    std::array<NumberBox*, 3> m_heights{};
    std::array<QRadioButton*, 2> m_units{};
    QLabel* m_damage = nullptr;
    QuietLine* m_quiet = nullptr;
    HeightsDiagram* m_diagram = nullptr;
    QLabel* m_hint = nullptr;
};

} // namespace torvik
