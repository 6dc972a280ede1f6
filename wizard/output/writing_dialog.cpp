// SPDX-License-Identifier: MIT
#include "wizard/output/writing_dialog.h"

#include "gcode/program_size.h"

#include <QPushButton>

#include <limits>

namespace torvik {

WritingDialog::WritingDialog(std::int64_t lines, QWidget* parent) : QProgressDialog(parent) {
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
    // Its own clock would bring it up over the message of a writing that failed.
    setMinimumDuration(std::numeric_limits<int>::max());
    setValue(0);
    m_since.start();
}

bool WritingDialog::goOn(std::int64_t written) {
    constexpr qint64 patience = 500; // ms
    if (maximum() > manyLines || m_since.elapsed() >= patience)
        forceShow();
    setValue(static_cast<int>(std::min<std::int64_t>(written, maximum())));
    return !wasCanceled();
}

} // namespace torvik
