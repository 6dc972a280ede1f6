// SPDX-License-Identifier: MIT
#include "tools/dialogs/tool_fault_text.h"

#include <QCoreApplication>

namespace torvik {
namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("FrmToolData", text);
}

} // namespace

ToolFaultText toolFaultText(ToolFault fault, const ToolEntry& entry) {
    const QString number = QString::fromStdString(entry.number);
    switch (fault) {
    case ToolFault::numberTooLarge:
        return {ToolField::number, tr("Tool number"),
                tr("Tool number %1 is too large\nPlease enter a number up to 32767").arg(number)};
    case ToolFault::numberNotWhole:
        return {ToolField::number, tr("Tool number"),
                tr("Tool number %1 is not a whole number\nPlease enter a different number")
                    .arg(number)};
    case ToolFault::numberTaken:
        return {
            ToolField::number, tr("Tool number"),
            tr("Tool number %1 is already in use\nPlease enter a different number").arg(number)};
    case ToolFault::diameterNotNumber:
        return {ToolField::diameter, tr("Tool diameter"),
                tr("The tool diameter is not a number\nPlease enter a different diameter")};
    case ToolFault::diameterTooLarge:
        return {ToolField::diameter, tr("Tool diameter"),
                tr("The tool diameter is too large to be stored\nPlease enter a smaller diameter")};
    case ToolFault::diameterNegative:
        return {ToolField::diameter, tr("Tool diameter"),
                tr("The tool diameter may not be negative\nPlease enter a different diameter")};
    case ToolFault::sameTool:
        return {
            ToolField::diameter, tr("Tool type"),
            tr("You already have a tool of type %1\nwith diameter %2mm\nPlease change your "
               "selection")
                .arg(QString::fromStdString(entry.type), QString::fromStdString(entry.diameter))};
    case ToolFault::recordTooLong:
        break;
    }
    return {ToolField::diameter, tr("Tool diameter"),
            tr("The tool type and the tool diameter are together too long to be stored\nPlease "
               "change your selection")};
}

} // namespace torvik
