// SPDX-License-Identifier: MIT
#include "wizard/output/writing_dialog.h"

#include "gcode/program_size.h"

#include <QPushButton>

namespace torvik {

WritingDialog::WritingDialog(std::int64_t lines, QWidget* parent) : QProgressDialog(parent) {
    constexpr int patience = 500; // ms
    setObjectName(QStringLiteral("dlgWriting"));
    setWindowModality(Qt::ApplicationModal);
    setLabelText(tr("Writing the program, %1 lines…").arg(lines));
    auto* const cancel = new QPushButton(tr("Cancel"));
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    cancel->setToolTip(tr("End the writing; nothing of the program is kept"));
    setCancelButton(nullptr); // with the first button goes its Escape; two would do nothing
    setCancelButton(cancel);
    setAutoReset(false);
    setAutoClose(false);
    setRange(0, static_cast<int>(lines));
    setMinimumDuration(lines > manyLines ? 0 : patience);
    setValue(0);
}

bool WritingDialog::goOn(std::int64_t written) {
    setValue(static_cast<int>(std::min<std::int64_t>(written, maximum())));
    return !wasCanceled();
}

} // namespace torvik
