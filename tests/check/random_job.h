// SPDX-License-Identifier: MIT
// Good jobs made up by chance: two to five pens with chains of lines and arcs, closed outlines and
// circles, some drilled. The same seed gives the same job. Heights, feeds and steps are sensible.
#pragma once

#include "job/machined_groups.h"
#include "tests/job/drawing.h"
#include "tools/tool_list.h"

#include <algorithm>
#include <random>
#include <string>

namespace torvik {

class RandomJob {
public:
    explicit RandomJob(unsigned seed) : m_random(seed) {
        const int pens = below(2, 5);
        m_isRound = chance(2);
        for (int pen = 1; pen <= pens; ++pen)
            drawPen(pen);
        job = setUpDrawing(m_text + "SP0;");
        for (std::int16_t place = 1; place <= toolCount; ++place)
            tools.gudtTools.append({place, "Slot drill", static_cast<float>(below(1, 12))});
        tools.gintToolCount = toolCount;
        Answers& answers = job.answers;
        answers.gsngToolChangeHeight = static_cast<float>(below(20, 60));
        answers.gsngSafeHeight = static_cast<float>(below(5, 15));
        answers.gsngRapidDownTo = static_cast<float>(below(1, 8)) / 2;
        for (Settings& settings : answers.gudtSettings)
            settings = randomSettings();
        for (Pen& pen : answers.gudtPens)
            pen.blnDrill = pen.blnCircles && chance(2);
        rebuildOrder(job);
        std::shuffle(answers.gintOrder.begin(), answers.gintOrder.begin() + answers.gintOrderCount,
                     m_random);
    }

    // A number from low to high.
    int below(int low, int high) {
        return low + static_cast<int>(m_random() % static_cast<unsigned>(high - low + 1));
    }
    // One time in so many.
    bool chance(int times) { return below(1, times) == 1; }

    // A billet as large as the area in which the places lie, and as deep as the deepest cut;
    // circles and arcs reach out of it.
    void takeBillet() {
        job.answers.gstrHeader[headerBilletX] = "200";
        job.answers.gstrHeader[headerBilletY] = "150";
        job.answers.gstrHeader[headerBilletZ] = "6";
    }

    // The drawing that the job is made from.
    const std::string& drawing() const { return m_text; }

    Job job;
    ToolList tools;

private:
    static constexpr std::int16_t toolCount = 3;

    // Plotter units, whole or with decimals as other programs write them.
    std::string unit(int low, int high) {
        const std::string whole = std::to_string(below(low, high));
        return m_isRound ? whole : whole + "." + std::to_string(below(0, 99));
    }
    std::string point() { return unit(0, 8000) + "," + unit(0, 6000); }

    void drawPen(int pen) {
        m_text += "SP" + std::to_string(pen) + ";";
        const bool isOfCircles = chance(3);
        for (int i = below(1, 6); i > 0; --i) {
            if (isOfCircles)
                m_text += "PU" + point() + ";CI" + std::to_string(below(2, 4) * 40) + ";";
            else
                drawChain();
        }
    }

    void drawChain() {
        const std::string start = point();
        if (!chance(3)) // else it goes on from where the last one ended
            m_text += "PU" + start + ";";
        for (int i = below(1, 6); i > 0; --i) {
            if (chance(3))
                m_text += "AA" + point() + "," + (chance(2) ? "-" : "") +
                          std::to_string(below(5, 350)) + ";";
            else if (chance(6))
                m_text += "CI" + unit(100, 900) + ";";
            else
                m_text += "PD" + point() + ";";
        }
        if (chance(2))
            m_text += "PD" + start + ";";
    }

    Settings randomSettings() {
        Settings settings;
        settings.intTool = static_cast<std::int16_t>(chance(2) ? 1 : below(1, toolCount));
        settings.sngSpindleSpeed = static_cast<float>(below(1, 3) < 3 ? 1000 : 1500);
        settings.sngFeedHorizontal = static_cast<float>(below(2, 60) * 30);
        settings.sngFeedFinalPass = chance(2) ? settings.sngFeedHorizontal / 2 : 0;
        settings.sngFeedVertical = static_cast<float>(below(2, 30) * 30);
        settings.sngDepth = static_cast<float>(below(1, 60)) / 10;
        settings.sngDepthPerPass =
            chance(4) ? 0 : settings.sngDepth / static_cast<float>(below(1, 4));
        settings.sngFinalPassDepth = chance(2) ? settings.sngDepth / 8 : 0;
        settings.sngDwell = chance(2) ? static_cast<float>(below(1, 8)) / 4 : 0;
        settings.blnPeck = chance(2);
        return settings;
    }

    std::mt19937 m_random;
    std::string m_text;
    bool m_isRound = true;
};

} // namespace torvik
