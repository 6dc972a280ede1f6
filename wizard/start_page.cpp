// SPDX-License-Identifier: MIT
#include "wizard/start_page.h"

#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace torvik {

namespace {

constexpr int longestName = 260; // pixels, so that no name widens the page

} // namespace

StartPage::StartPage() : m_continue(new QPushButton) {
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
    text->setTextFormat(Qt::RichText);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignTop);
    setObjectName(QStringLiteral("picOpening"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 20);
    layout->addWidget(title);
    layout->addSpacing(8);
    layout->addWidget(text);
    layout->addSpacing(8);
    layout->addWidget(m_continue, 0, Qt::AlignLeft);
    layout->addStretch(1);
    m_continue->setObjectName(QStringLiteral("cmdContinue"));
    connect(m_continue, &QPushButton::clicked, this, &StartPage::continueWanted);
    offerDrawing({});
}

void StartPage::offerDrawing(const QString& drawing) {
    QString name = m_continue->fontMetrics().elidedText(QFileInfo(drawing).fileName(),
                                                        Qt::ElideMiddle, longestName);
    m_continue->setText(tr("&Continue with %1").arg(name.replace('&', "&&")));
    m_continue->setToolTip(tr("Go on where you left this drawing, with all your answers:") + u'\n' +
                           drawing);
    m_continue->setVisible(!drawing.isEmpty());
}

} // namespace torvik
