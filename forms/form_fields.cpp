// SPDX-License-Identifier: MIT
#include "forms/form_fields.h"

#include "forms/help_key.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace torvik {

QLabel* makePageTitle(const QString& text) {
    auto* const title = new QLabel(text);
    QFont font = title->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.2);
    title->setFont(font);
    title->setWordWrap(true);
    return title;
}

QString breakablePath(QString path) {
    constexpr QChar zeroWidthSpace(0x200B);
    for (const QChar separator : {u'/', u'\\'})
        path.replace(separator, QString(separator) + zeroWidthSpace);
    return path;
}

QLabel* addFormRow(QGridLayout& form, int row, const QString& caption, QLineEdit* box,
                   const QString& unit, int helpContext) {
    auto* const label = new QLabel(caption);
    label->setObjectName(QStringLiteral("lbl") + box->objectName().mid(3)); // lblHead0, txtHead0
    label->setBuddy(box);
    QString plain = caption;
    plain.remove(u'&');
    box->setAccessibleName(unit.isEmpty() ? plain : plain + QStringLiteral(" (") + unit + u')');
    label->setProperty(helpContextProperty, helpContext);
    box->setProperty(helpContextProperty, helpContext);
    form.addWidget(label, row, 0);
    form.addWidget(box, row, 1);
    if (!unit.isEmpty())
        form.addWidget(new QLabel(unit), row, 2);
    return label;
}

} // namespace torvik
