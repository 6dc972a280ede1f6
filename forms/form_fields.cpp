// SPDX-License-Identifier: MIT
#include "forms/form_fields.h"

#include "forms/help_key.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace torvik {
namespace {

const QColor darkRed(176, 0, 32);
const QColor brightRed(255, 138, 128);

} // namespace

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

QLabel* makeWarning(const QString& name) {
    auto* const label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->hide();
    return label;
}

void showWarning(QLabel& label, const QString& text) {
    QPalette palette; // an empty one follows the system's
    const bool isDark = palette.color(QPalette::Window).lightness() < 128;
    palette.setColor(QPalette::WindowText, isDark ? brightRed : darkRed);
    label.setPalette(palette);
    label.setText(text);
    label.setVisible(!text.isEmpty());
}

void showNamed(QLabel& label, const QString& name, const QString& text) {
    label.setText(text);
    label.setAccessibleName(text.isEmpty() ? name : name + QStringLiteral(": ") + text);
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
