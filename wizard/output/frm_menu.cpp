// SPDX-License-Identifier: MIT
#include "wizard/output/frm_menu.h"

#include "forms/dialog_places.h"
#include "forms/form_fields.h"

#include <QDesktopServices>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace torvik {
namespace {

constexpr int lineLetters = 40; // of common width, in a line of the text

struct Choice {
    const char* name;
    const char* text;
    const char* word;
};

constexpr std::array<Choice, 3> choices{{
    {"cmdOpen", QT_TRANSLATE_NOOP("FrmMenu", "&Process another file"), "Open"},
    {"cmdSave", QT_TRANSLATE_NOOP("FrmMenu", "&Save code in another format"), "Save"},
    {"cmdClose", QT_TRANSLATE_NOOP("FrmMenu", "&Close Torvik"), "Close"},
}};

// The menu stays open behind the folder's window.
QPushButton* makeFolderButton(const QString& folder) {
    auto* const button = new QPushButton(FrmMenu::tr("Open the &folder"));
    button->setObjectName(QStringLiteral("cmdFolder"));
    button->setToolTip(FrmMenu::tr("Show where the program was written to"));
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button,
                     [folder] { QDesktopServices::openUrl(QUrl::fromLocalFile(folder)); });
    return button;
}

} // namespace

FrmMenu::FrmMenu(const QString& writtenFile, const QString& takingOut, const QString& minutes,
                 const QString& folder, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmMenu"));
    setWindowTitle(QStringLiteral("Torvik"));
    auto* const label = new QLabel(
        tr("The program has been written to\n%1\n\n").arg(breakablePath(writtenFile)) +
        (takingOut.isEmpty() ? QString() : takingOut + QStringLiteral("\n\n")) +
        (minutes.isEmpty() ? QString() : tr("It will take %1 on the machine.\n\n").arg(minutes)) +
        tr("What would you like to do next?"));
    label->setObjectName(QStringLiteral("lblMenu"));
    label->setWordWrap(true);
    label->setMinimumWidth(std::max(360, lineLetters * label->fontMetrics().averageCharWidth()));
    auto* const layout = new QVBoxLayout(this);
    layout->setSpacing(8);
    layout->addWidget(label);
    layout->addSpacing(8);
    for (const Choice& choice : choices) {
        auto* const button = new QPushButton(tr(choice.text));
        button->setObjectName(QString::fromUtf8(choice.name));
        connect(button, &QPushButton::clicked, this, [this, choice] {
            setProperty(tagProperty, QString::fromUtf8(choice.word));
            accept();
        });
        layout->addWidget(button);
    }
    layout->addSpacing(8);
    layout->addWidget(makeFolderButton(folder), 0, Qt::AlignLeft);
    // As high as it needs to be; on its own a dialog takes two thirds of the screen at most.
    const int width = layout->sizeHint().width();
    resize(width, layout->heightForWidth(width));
}

std::string FrmMenu::tag() const {
    return property(tagProperty).toString().toStdString();
}

} // namespace torvik
