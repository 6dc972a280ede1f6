// SPDX-License-Identifier: MIT
// Which statements a program's body has, one after the other: tool changes, rapids, cuts in depth
// passes and drilled holes. What is done with a statement is up to `Statements`: the writer writes
// them, the counter counts them. Heights and lengths are mm. Refuses a step that leads nowhere.
#pragma once

#include "base/errors.h"
#include "base/numbers.h"
#include "base/picture.h"
#include "gcode/cut_words.h"
#include "gcode/dialects.h"
#include "gcode/path_index.h"
#include "job/machined_groups.h"

#include <algorithm>
#include <optional>

namespace torvik {

// Statements has a type Words (see CutWords) and takes
//   begin(group)              the statements of a group follow
//   step()                    a depth pass or a peck follows
//   put(statement, values)    a statement of the dialect, which may be empty
//   putLine(text)             a line of the dialect without a block number
//   rapidToHeight(z), feedToHeight(z, feed), rapidTo(x, y)
//   cut(words, run)           along paths without a gap between them
template <typename Statements>
class BodyWalk {
public:
    BodyWalk(const Job& job, const ToolList& tools, const Dialect& dialect, Statements& statements)
        : m_job(job), m_dialect(dialect), m_statements(statements), m_paths(job),
          m_z(job.answers.gsngToolChangeHeight) {
        m_values.tools = &tools;
        m_values.toolChangeHeight = job.answers.gsngToolChangeHeight;
        m_values.dwellDecimals = dialect.dwellDecimals;
    }

    void walk() {
        visitMachinedGroups(m_job, [this](const MachinedGroup& group) {
            m_statements.begin(group);
            const Settings& settings = m_job.answers.gudtSettings[group.settings];
            prepareTool(settings);
            if (group.radius == 0)
                cut(group.pen, settings);
            else
                drill(group.pen, m_job.answers.gudtPens[group.pen].sngRadii[group.radius],
                      settings);
        });
        rapidToHeight(m_job.answers.gsngSafeHeight);
        put(m_dialect.end);
    }

private:
    using Words = typename Statements::Words;

    // Far outside any drawing, so that the first cut or hole gets a rapid move in X and Y.
    static constexpr float nowhere = 1000;

    // The level one step below z. The step must lead downward, or the passes would never end.
    static float oneStepDown(float z, float step) {
        const float deeper = toSingle(double{z} - step);
        if (!(deeper < z))
            throw InvalidCall("a step of " + formatGeneral(step) + " mm below Z " +
                              formatGeneral(z) + " never reaches the depth");
        return deeper;
    }

    static float stepOrDepth(const Settings& settings) {
        return settings.sngDepthPerPass == 0 ? settings.sngDepth : settings.sngDepthPerPass;
    }

    void put(std::string_view statement) { m_statements.put(statement, m_values); }

    void put(std::span<const Statement> statements) {
        for (const Statement& statement : statements) {
            if (statement.numbered)
                put(statement.text);
            else
                m_statements.putLine(statement.text);
        }
    }

    void rapidToHeight(float z) {
        m_statements.rapidToHeight(z);
        m_z = z;
    }

    void feedToHeight(float z, float feed) {
        m_statements.feedToHeight(z, feed);
        m_z = z;
    }

    void rapidTo(float x, float y) {
        m_statements.rapidTo(x, y);
        m_x = x;
        m_y = y;
    }

    // The same at the safe height.
    void rapidAbove(float x, float y) {
        if (m_z != m_job.answers.gsngSafeHeight)
            rapidToHeight(m_job.answers.gsngSafeHeight);
        rapidTo(x, y);
    }

    bool isAt(float x, float y) const { return isSamePosition(x, y, m_x, m_y); }

    void setSpindle(const Settings& settings) {
        m_speed = settings.sngSpindleSpeed;
        m_values.spindleSpeed = m_speed;
        put(m_dialect.spindle);
    }

    void prepareTool(const Settings& settings) {
        const float safe = m_job.answers.gsngSafeHeight;
        if (settings.intTool == m_tool) {
            if (settings.sngSpindleSpeed == m_speed)
                return;
            rapidToHeight(safe);
            rapidToHeight(m_job.answers.gsngToolChangeHeight);
            setSpindle(settings);
            rapidToHeight(safe);
            return;
        }
        m_tool = settings.intTool;
        if (m_z <= m_job.answers.gsngRapidDownTo)
            rapidToHeight(safe);
        if (m_z == safe && !m_dialect.retract.empty()) {
            put(m_dialect.retract);
            m_z = m_job.answers.gsngToolChangeHeight;
        }
        m_values.toolPlace = settings.intTool;
        if (m_toolLoaded)
            put(m_dialect.toolUnload);
        put(m_dialect.tool);
        m_toolLoaded = true;
        setSpindle(settings);
        rapidToHeight(safe);
    }

    void cut(std::int16_t pen, const Settings& settings) {
        std::optional<Words> words;
        float feed = settings.sngFeedHorizontal;
        const float bottom = -settings.sngDepth;
        const float step = stepOrDepth(settings);
        float floor = toSingle(double{settings.sngFinalPassDepth} - settings.sngDepth);
        for (float z = 0; z > bottom;) {
            z = oneStepDown(z, step);
            if (z <= floor) {
                z = floor;
                if (bottom < floor)
                    floor = bottom; // the last roughing pass; the next one is the final pass
                else if (settings.sngFeedFinalPass > 0)
                    feed = settings.sngFeedFinalPass;
            }
            if (words)
                words->changeFeed(m_dialect, feed);
            else
                words.emplace(m_job.drawing, m_paths.ofPen(pen), m_dialect, feed);
            m_statements.step();
            cutPass(*words, z, settings.sngFeedVertical);
        }
    }

    void cutPass(Words& words, float z, float feedDown) {
        const auto& runs = words.runs();
        for (const auto& run : runs) {
            const Path& first = m_job.drawing.gudtPaths[run.firstPath];
            if (&run != &runs.front() || !isAt(first.sngStartX, first.sngStartY))
                rapidAbove(first.sngStartX, first.sngStartY);
            if (m_z > m_job.answers.gsngRapidDownTo)
                rapidToHeight(m_job.answers.gsngRapidDownTo);
            if (m_z > z)
                feedToHeight(z, feedDown);
            m_statements.cut(words, run);
        }
        if (!runs.empty()) {
            const Path& last = m_job.drawing.gudtPaths[runs.back().lastPath];
            m_x = last.sngEndX;
            m_y = last.sngEndY;
        }
    }

    void drill(std::int16_t pen, float radius, const Settings& settings) {
        for (const std::int16_t subscript : m_paths.ofRadius(pen, radius)) {
            const Path& path = m_job.drawing.gudtPaths[subscript];
            if (m_z != m_job.answers.gsngSafeHeight)
                rapidToHeight(m_job.answers.gsngSafeHeight);
            if (!isAt(path.sngCentreX, path.sngCentreY))
                rapidTo(path.sngCentreX, path.sngCentreY);
            if (m_z > m_job.answers.gsngRapidDownTo)
                rapidToHeight(m_job.answers.gsngRapidDownTo);
            peck(settings);
        }
    }

    void peck(const Settings& settings) {
        const float bottom = -settings.sngDepth;
        const float step = stepOrDepth(settings);
        for (float z = 0; z > bottom;) {
            z = std::max(oneStepDown(z, step), bottom);
            m_statements.step();
            if (m_z > z)
                feedToHeight(z, settings.sngFeedVertical);
            if (z > bottom && !settings.blnPeck)
                continue;
            if (settings.sngDwell > 0) {
                m_values.dwell = settings.sngDwell * m_dialect.dwellFactor;
                put(m_dialect.dwell);
            }
            rapidToHeight(m_job.answers.gsngRapidDownTo);
        }
    }

    const Job& m_job;
    const Dialect& m_dialect;
    Statements& m_statements;
    PathIndex m_paths;
    StatementValues m_values;
    float m_x = nowhere;
    float m_y = nowhere;
    float m_z;
    std::int16_t m_tool = 0;
    float m_speed = 0;
    bool m_toolLoaded = false;
};

} // namespace torvik
