// SPDX-License-Identifier: MIT
// What a job asks the machine to do, item by item: a cut along an element at the height of a pass,
// or a hole. Numbers are rounded as a program of the control writes them. mm, mm/min.
#pragma once

#include "check/move.h"
#include "check/plan/steps_down.h"
#include "check/targets.h"
#include "job/machined_groups.h"

#include <vector>

namespace torvik {
struct ToolList;
}

namespace torvik::check {

// A line, an arc, a circle or a hole of the drawing.
struct AskedElement {
    const Path* path = nullptr;
    MoveKind kind = MoveKind::cutLine; // not of a hole
    Point start;
    Point end;    // of a hole: its centre
    Point offset; // of an arc: from its start to its centre
    bool beginsAtLast =
        false; // where the element before it ended; in the first pass, where one counts
};

struct PlanGroup {
    MachinedGroup name{};
    const Pen* pen = nullptr;
    bool isDrilled = false;
    double tool = unknown; // its number; unknown where the job has none
    double speed = 0;      // rpm
    double feedDown = 0;
    bool dwells = false;
    double dwell = 0; // s, which may be written as 0
    bool pecks = false;
    bool isClosed = false; // the first element begins where the last one ends
    std::vector<AskedElement> elements;
    std::vector<StepDown> steps; // passes, or pecks

    std::size_t first = 0; // number of its first item
    std::size_t size() const {
        return isDrilled ? (steps.empty() ? 0 : elements.size()) : elements.size() * steps.size();
    }
};

struct AskedItem {
    std::size_t groupNumber = 0;
    const PlanGroup* group = nullptr;
    const AskedElement* element = nullptr;
    const StepDown* pass = nullptr; // nullptr for a hole
    bool beginsAtLast = false;
    bool isInFirstPass = true;
};

struct AskedHeights {
    double toolChange;
    double safe;
    double rapidDown;
};

class Asked {
public:
    // More than `mostSteps` steps of a group are left out. Raises SubscriptOutOfRange where the
    // order names a pen above 8.
    Asked(const Job& job, const ToolList& tools, const Target& target, std::size_t mostSteps);

    const AskedHeights& heights() const { return m_heights; }
    const std::vector<PlanGroup>& groups() const { return m_groups; }
    std::size_t size() const { return m_size; }
    AskedItem at(std::size_t number) const; // from 0

private:
    AskedHeights m_heights;
    std::vector<PlanGroup> m_groups;
    std::size_t m_size = 0;
};

} // namespace torvik::check
