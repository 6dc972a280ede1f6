// SPDX-License-Identifier: MIT
#include "wizard/output/frm_menu.h"

#include "forms/dialog_places.h"
#include "forms/form_fields.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace torvik {
namespace {

struct Choice {
    const char* name;
    const char* text;
    const char* word;
};

constexpr std::array<Choice, 3> choices{{
    {"cmdOpen", "&Process another file", "Open"},
    {"cmdSave", "&Save code in another format", "Save"},
    {"cmdClose", "&Close Torvik", "Close"},
}};

} // namespace

FrmMenu::FrmMenu(const QString& writtenFile, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmMenu"));
    setWindowTitle(QStringLiteral("Torvik"));
    auto* const label =
        new QLabel(tr("The program has been written to\n%1\n\nWhat would you like to do next?")
                       .arg(breakablePath(writtenFile)));
    label->setObjectName(QStringLiteral("lblMenu"));
    label->setWordWrap(true);
    label->setMinimumWidth(360);
    auto* const layout = new QVBoxLayout(this);
    layout->setSpacing(8);
    layout->addWidget(label);
    layout->addSpacing(8);
    for (const Choice& choice : choices) {
        auto* const button = new QPushButton(QString::fromUtf8(choice.text));
        button->setObjectName(QString::fromUtf8(choice.name));
        connect(button, &QPushButton::clicked, this, [this, choice] {
            setProperty(tagProperty, QString::fromUtf8(choice.word));
            accept();
        });
        layout->addWidget(button);
    }
}

std::string FrmMenu::tag() const {
    return property(tagProperty).toString().toStdString();
}

} // namespace torvik
