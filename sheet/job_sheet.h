// SPDX-License-Identifier: MIT
// The job sheet of a job, made from its program as it would be written now.
#pragma once

#include "sheet/sheet_page.h"

#include <QByteArray>

class QPagedPaintDevice;

namespace torvik {

struct ToolList;
class Logger;

// Whether the job says all that a sheet needs: something is machined, and each group of it has its
// answers and a tool.
bool isReadyForSheet(const Job& job, const ToolList& tools);

class JobSheet {
public:
    // Tries the program and paints the pictures; takes a second for a long one.
    JobSheet(const Job& job, const ToolList& tools, const Dialect& dialect, Logger& logger);

    // Why there is no sheet, empty where there is one. UTF-8.
    const std::string& failure() const { return m_failure; }
    const SheetContent& content() const { return m_content; }

    // The bytes of a PDF file with one page.
    QByteArray pdf() const;
    // Paints it on a page of that device (a printer). False where the device takes nothing.
    bool paintOn(QPagedPaintDevice& device) const;

private:
    std::string m_failure;
    SheetContent m_content;
    SheetPictures m_pictures;
};

} // namespace torvik
