// SPDX-License-Identifier: MIT
// The controls of a pen page and their layout: names, tool tips and the ways in by keyboard. What
// they show is the page's business.
#pragma once

#include "answers/pen_rows.h"

#include <array>

class QButtonGroup;
class QCheckBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QString;
class QWidget;

namespace torvik {

class NumberBox;
class PenDiagram;
class QuietLine;

// Places of the tool labels.
enum ToolLabel : std::size_t { toolNumber, toolType, toolDiameter };

// All owned by the page.
struct PenControls {
    QLabel* place = nullptr; // among the pens
    QLabel* title = nullptr;
    std::array<QRadioButton*, 2> optCut{};
    QButtonGroup* choice = nullptr;
    PenDiagram* diagram = nullptr;

    QWidget* toolPanel = nullptr; // holds the labels and the button
    std::array<QLabel*, 3> toolLabels{};
    QPushButton* cmdTool = nullptr;
    QLabel* toolNote = nullptr; // a warning about the tool, hidden where there is none

    std::array<QLabel*, penRowCount> lblDet{};
    std::array<NumberBox*, penRowCount> txtDet{};
    std::array<QLabel*, penRowCount> lblUnit{};
    QCheckBox* chkPeck = nullptr;
    QLabel* holesFollow = nullptr; // stands in for the rows on the own page of a drilled pen
    QuietLine* quiet = nullptr;    // what is missing and what makes no sense
};

// Makes the controls as children of the page and lays them out.
PenControls makePenControls(QWidget& page);

// Gives the rows the captions, help numbers and tips of a form and hides the others; no row at all
// where nothing is asked for.
void showPenRows(const PenControls& controls, PenForm form, std::string_view feedUnits, bool asked);

// Whether the user can type into the box: grey, closed and locked if not.
void openBox(NumberBox& box, bool open);

void setToolLabel(const PenControls& controls, std::size_t label, const QString& text);

// Shows the warning below the tool; an empty one hides it.
void setToolNote(const PenControls& controls, const QString& text);

// The tool labels' colour: grey on the page of a left-out pen, pale cyan otherwise.
void colourToolLabels(const PenControls& controls, bool leftOut);

} // namespace torvik
