// SPDX-License-Identifier: MIT
#include "wizard/start_page.h"

#include "answers/program_folder.h"
#include "base/files.h"
#include "wizard/drawing_tile.h"
#include "wizard/drop_place.h"
#include "wizard/recent_drawings.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace torvik {

namespace {

constexpr int longestName = 260;  // pixels, so that no name widens the page
constexpr int narrowestRow = 380; // pixels for the tiles beside one another

} // namespace

StartPage::StartPage() : m_continue(new QPushButton), m_drop(new DropPlace) {
    auto* const title = new QLabel(tr("From a drawing to a milled part"));
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setBold(true);
    title->setFont(font);
    title->setWordWrap(true);
    auto* const text = new QLabel(tr(
        "<p>Torvik turns a pen-plotter drawing (<b>.plt</b>) into a program for your milling "
        "machine. Each pen colour of the drawing is one operation: cut, drilled, or left "
        "out.</p><p>Press <b>Start</b> to choose a drawing. Drawings in <b>SVG</b> and <b>DXF</b> "
        "are made ready first. Press <b>F1</b> for help at any time.</p>"));
    text->setTextFormat(Qt::RichText);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignTop);
    setObjectName(QStringLiteral("picOpening"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 20);
    layout->addWidget(title);
    layout->addSpacing(8);
    layout->addWidget(text);
    layout->addWidget(m_drop);
    layout->addWidget(m_continue, 0, Qt::AlignLeft);
    m_recent = makeTiles(QStringLiteral("Recent"), tr("Recent drawings"));
    m_samples = makeTiles(QStringLiteral("Sample"), tr("Samples to try"));
    layout->addStretch(1);
    m_continue->setObjectName(QStringLiteral("cmdContinue"));
    connect(m_continue, &QPushButton::clicked, this, &StartPage::continueWanted);
    connect(&m_pictures, &DrawingPictures::drawn, this,
            [this](DrawingPictures::Kind kind, const QString& drawing, const QImage& picture) {
                addTile(kind == DrawingPictures::Kind::recent ? m_recent : m_samples, drawing,
                        picture);
            });
    offerDrawing({});
}

StartPage::Tiles StartPage::makeTiles(const QString& name, const QString& heading) {
    const Tiles tiles{new QLabel(heading), new QGridLayout};
    tiles.heading->setObjectName(QStringLiteral("lbl") + name);
    tiles.grid->setObjectName(name);
    QFont bold = font();
    bold.setBold(true);
    tiles.heading->setFont(bold);
    tiles.heading->hide();
    auto* const column = static_cast<QVBoxLayout*>(layout());
    column->addWidget(tiles.heading);
    column->addLayout(tiles.grid);
    return tiles;
}

void StartPage::clear(const Tiles& tiles) {
    tiles.heading->hide();
    while (QLayoutItem* const item = tiles.grid->takeAt(0)) {
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
}

void StartPage::addTile(const Tiles& tiles, const QString& drawing, const QImage& picture) {
    auto* const tile = new DrawingTile(drawing, picture);
    const int place = tiles.grid->count();
    const int columns = std::max(1, narrowestRow / tile->sizeHint().width());
    tile->setObjectName(QStringLiteral("cmd%1%2").arg(tiles.grid->objectName()).arg(place + 1));
    connect(tile, &QPushButton::clicked, this, [this, drawing] { emit drawingChosen(drawing); });
    tiles.grid->addWidget(tile, place / columns, place % columns);
    for (int column = 0; column < columns; ++column)
        tiles.grid->setColumnStretch(column, 1);
    tiles.heading->show();
}

void StartPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!event->spontaneous())
        lookUpDrawings();
}

void StartPage::lookUpDrawings() {
    clear(m_recent);
    clear(m_samples);
    DrawingPictures::Work work{{}, sampleFolder(), DrawingTile::pictureSize, devicePixelRatioF()};
    for (const QString& name : rememberedDrawings())
        work.recent.push_back(pathFromUtf8(name.toStdString()));
    m_pictures.begin(std::move(work));
}

void StartPage::showDrag(bool isOver) {
    m_drop->showDrag(isOver);
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
