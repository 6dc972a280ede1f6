// SPDX-License-Identifier: MIT
// Works with each dialog that opens, until it is closed: by chance, or as somebody does who wants
// the program to be written.
#pragma once

#include "tests/reliability/chance.h"
#include "tests/reliability/record.h"

#include <QObject>
#include <QString>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

class QDialog;
class QLineEdit;
class QWidget;

namespace torvik {

// The buttons, choices and boxes of the form that can be used, in the order of their making.
std::vector<QWidget*> usableControls(const QWidget& form);
// Types or pastes something good, odd or nothing at all; says what.
std::string typeByChance(QLineEdit& box, Chance& chance);

class DialogWalker : public QObject {
public:
    // `drawing` makes a file that may be opened, `folder` is where programs are written to.
    DialogWalker(Chance& chance, Record& record, std::filesystem::path folder,
                 std::function<std::filesystem::path()> drawing);

    bool wantsProgram = false;
    // Dialogs are counted anew, so that those without an end are seen.
    void newAction() { m_count = 0; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void handle(QDialog& dialog);
    void work(QDialog& dialog);
    bool workByName(QDialog& dialog, const QString& name);
    void answerMessage(QDialog& dialog);
    void chooseFile(QDialog& dialog, const std::filesystem::path& file);
    void chooseTool(QDialog& dialog);
    void enterTool(QDialog& dialog);
    void prepare(QDialog& dialog);
    void useByChance(QDialog& dialog);
    void press(QDialog& dialog, const char* name);

    Chance& m_chance;
    Record& m_record;
    std::filesystem::path m_folder;
    std::function<std::filesystem::path()> m_drawing;
    int m_count = 0;
};

} // namespace torvik
