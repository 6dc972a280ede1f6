// SPDX-License-Identifier: MIT
#include "wizard/start_page.h"

#include <QLabel>
#include <QVBoxLayout>

namespace torvik {

StartPage::StartPage() {
    auto* const title = new QLabel(tr("From a drawing to a milled part"));
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setBold(true);
    title->setFont(font);
    title->setWordWrap(true);
    auto* const text = new QLabel(
        tr("<p>Torvik turns a pen-plotter drawing (<b>.plt</b>) into a program for your milling "
           "machine. Each pen colour of the drawing is one operation: cut, drilled, or left "
           "out.</p><p>Press <b>Start</b> to choose a drawing, or drop one on this window.</p>"
           "<p>Press <b>F1</b> for help at any time.</p>"));
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignTop);
    setObjectName(QStringLiteral("picOpening"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 20);
    layout->addWidget(title);
    layout->addSpacing(8);
    layout->addWidget(text, 1);
}

} // namespace torvik
