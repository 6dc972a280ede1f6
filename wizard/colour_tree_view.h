// SPDX-License-Identifier: MIT
// tvwColours: the pens of the drawing with their hole sizes. It shows where the wizard stands and
// never jumps.
#pragma once

#include <QTreeWidget>

namespace torvik {

struct Job;
struct ColourNode;

class ColourTreeView : public QTreeWidget {
    Q_OBJECT

public:
    explicit ColourTreeView(QWidget* parent = nullptr);

    // Brings the nodes in line with the job's colour tree.
    void showTree(const Job& job);

private:
    QTreeWidgetItem* itemFor(const ColourNode& node, const Job& job) const;
};

} // namespace torvik
