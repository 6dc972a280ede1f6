// SPDX-License-Identifier: MIT
// "What will be written": the part, how long it takes, what was found in its program, and its
// groups in machining order.
#pragma once

#include <QGroupBox>

#include <string>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace torvik {

class FindingList;
class QuietLine;
struct TriedGroup;
struct TriedProgram;

class TriedPanel : public QGroupBox {
    Q_OBJECT

public:
    explicit TriedPanel(QWidget* parent = nullptr);

    // While the program is tried.
    void showBusy();
    // partName: as the header has it. cause: why the trial failed.
    void showTried(const TriedProgram& tried, const std::string& partName, const QString& cause);
    void setPieceShown(bool isShown);

signals:
    // At a line of the program, or at the whole piece (0).
    void lookWanted(quint32 line);

private:
    QWidget* buildFacts();
    void showFacts(const TriedProgram& tried, const std::string& partName);
    void showFindings(const TriedProgram& tried, const QString& cause);
    void showGroups(const std::vector<TriedGroup>& groups, bool isTimed);

    QLabel* m_busy;
    QLabel* m_part = nullptr;
    QLabel* m_billet = nullptr;
    QLabel* m_minutes = nullptr;
    QLabel* m_changes = nullptr;
    QWidget* m_facts;
    QuietLine* m_state;
    FindingList* m_findings;
    QVBoxLayout* m_groupsPlace;
    QWidget* m_groups = nullptr;
    QPushButton* m_look;
};

} // namespace torvik
