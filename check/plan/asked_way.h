// SPDX-License-Identifier: MIT
// The moves that a job asks for between two items and within a hole, from where the tool is, and
// how they are held against those of a program. mm, mm/min.
#pragma once

#include "check/plan/asked.h"
#include "check/plan/done.h"

namespace torvik::check {

// One move that is asked for.
struct AskedMove {
    MoveKind kind = MoveKind::other;
    Point to;           // across
    double z = unknown; // up or down
    double feed = unknown;
    double value = unknown; // as of a Move
};

bool isDone(const AskedMove& asked, const Move& done);
// Whether both are one number, only the arithmetic apart.
bool isSameNumber(double a, double b);

class AskedWay {
public:
    AskedWay(const Asked& asked, const Target& target)
        : m_asked(asked), m_stopsSpindle(target.stopsSpindle) {}

    // The tool is at the height z; tool and speed are those in use, unknown where there are none.
    void begin(double z, double tool, double speed);
    // To have the tool and the speed of the group.
    void prepare(const PlanGroup& group);
    // To where the item begins.
    void goTo(const AskedItem& item);
    // The pecks of the hole below the tool.
    void drill(const PlanGroup& group);
    // To where a program ends.
    void finish();

    const std::vector<AskedMove>& moves() const { return m_moves; }

private:
    void rapidTo(double z);
    void feedTo(double z, double feed);
    void raise();
    void turn(double speed);

    const Asked& m_asked;
    bool m_stopsSpindle;
    std::vector<AskedMove> m_moves;
    double m_z = unknown;
    double m_tool = unknown;
    double m_speed = unknown;
};

// What is left of both where they do not begin and end alike; both empty where they are alike.
struct Difference {
    std::span<const AskedMove> asked;
    MoveSpan done;
    std::size_t place; // of the first move that is left

    bool isNone() const { return asked.empty() && done.empty(); }
};

Difference differenceOf(std::span<const AskedMove> asked, MoveSpan done);

} // namespace torvik::check
