// SPDX-License-Identifier: MIT
// frmSheet: the job sheet of the job as it stands, saved as a PDF file or printed.
#pragma once

#include "sheet/job_sheet.h"

#include <QDialog>

namespace torvik {

struct Workshop;

class JobSheetDialog : public QDialog {
    Q_OBJECT

public:
    JobSheetDialog(Workshop& workshop, const JobSheet& sheet, QWidget* parent);

    // Asks for a file and saves the sheet there. False where the user cancelled, or it failed and
    // that was said; a file of that name is then as it was.
    bool save();
    // Asks for a printer and prints the sheet.
    bool print();

private:
    void say(const QString& text);

    Workshop& m_workshop;
    const JobSheet& m_sheet;
};

// Makes the sheet for the target's code and shows the dialog, or says why there is none.
void showJobSheet(Workshop& workshop, std::int16_t target, QWidget& window);

} // namespace torvik
