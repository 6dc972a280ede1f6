// SPDX-License-Identifier: MIT
// tvwColours: the pens of the drawing with their hole sizes. It shows where the wizard stands and
// never jumps.
#pragma once

#include "job/colour_tree.h"

#include <QIcon>
#include <QTreeWidget>

#include <map>

namespace torvik {

struct Job;

class ColourTreeView : public QTreeWidget {
    Q_OBJECT

public:
    explicit ColourTreeView(QWidget* parent = nullptr);

    // Brings the nodes in line with the job's colour tree.
    void showTree(const Job& job);

private:
    void buildNodes(const std::vector<ColourNode>& tree);
    void decorate(QTreeWidgetItem& item, const ColourNode& node, const Job& job);

    std::vector<ColourNode> m_shown; // only what differs from it is done anew
    std::map<std::int16_t, QIcon> m_pictures;
};

} // namespace torvik
