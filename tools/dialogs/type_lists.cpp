// SPDX-License-Identifier: MIT
#include "tools/dialogs/type_lists.h"

#include <QComboBox>
#include <QListWidget>

namespace torvik {
namespace {

template <typename Add>
void eachUserType(const ToolList& tools, Add add) {
    for (int place = 1; place <= tools.gintUserToolTypeCount; ++place)
        add(QString::fromStdString(tools.gstrUserToolTypes[place]), place);
}

QString text(std::string_view type) {
    return QString::fromUtf8(type.data(), static_cast<qsizetype>(type.size()));
}

} // namespace

void ToolTypeStandardShow(QListWidget& list) {
    list.clear();
    for (const std::string_view type : standardToolTypes)
        list.addItem(text(type));
}

void ToolTypeStandardShow(QComboBox& list) {
    list.clear();
    for (const std::string_view type : standardToolTypes)
        list.addItem(text(type));
    list.setCurrentIndex(-1); // the library chooses the first item of its own accord
}

void ToolTypeUserShow(QListWidget& list, const ToolList& tools) {
    eachUserType(tools, [&](const QString& type, int place) {
        auto* const item = new QListWidgetItem(type, &list);
        item->setData(Qt::UserRole, place);
    });
}

void ToolTypeUserShow(QComboBox& list, const ToolList& tools) {
    eachUserType(tools, [&](const QString& type, int place) { list.addItem(type, place); });
}

int intMatchRow(const QListWidget& list, const QString& upperText) {
    for (int row = 0; row < list.count(); ++row)
        if (list.item(row)->text().toUpper() == upperText)
            return row;
    return -1;
}

} // namespace torvik
