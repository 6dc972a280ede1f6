// SPDX-License-Identifier: MIT
#include "preview/cut/cut_picture.h"

#include "preview/paper.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

#include <array>

namespace torvik {
namespace {

constexpr int margin = 8; // pixels
constexpr double buttonZoom = 1.5;

} // namespace

CutPicture::CutPicture(QWidget* parent)
    : QFrame(parent), m_canvas(new CutCanvas(this)), m_caption(new QLabel(tr("Depths"), this)),
      m_legend(new Legend(this)), m_place(new QLabel(this)) {
    setFrameShape(QFrame::StyledPanel);
    setPalette(paper());
    setAutoFillBackground(true);
    m_place->setObjectName(QStringLiteral("lblCutPlace"));
    m_place->setToolTip(tr("What lies under the pointer"));
    m_place->setMinimumHeight(m_place->sizeHint().height() + margin);
    m_place->setIndent(margin);
    m_place->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);

    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(m_canvas, 0, 0);
    m_strip = makeStrip();
    grid->addWidget(m_strip, 0, 1);
    grid->addWidget(m_place, 1, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(0, 1);

    connect(m_canvas, &CutCanvas::shadesChanged, this, &CutPicture::showLegend);
    connect(m_canvas, &CutCanvas::pointed, m_place, &QLabel::setText);
}

QWidget* CutPicture::makeStrip() {
    auto* const strip = new QWidget(this);
    m_caption->setObjectName(QStringLiteral("lblCutLegend"));
    m_caption->setIndent(margin);
    m_legend->setObjectName(QStringLiteral("lblCutDepths"));
    m_legend->setAccessibleName(tr("Depths of the piece"));
    auto* const column = new QVBoxLayout(strip);
    column->setContentsMargins(0, margin, 0, margin);
    column->setSpacing(0);
    column->addWidget(m_caption);
    column->addWidget(m_legend, 1);
    auto* const buttons = makeZoomButtons();
    column->addWidget(buttons);
    strip->setFixedWidth(std::max(m_legend->stripWidth(), buttons->sizeHint().width()));
    return strip;
}

QWidget* CutPicture::makeZoomButtons() {
    struct Row {
        const char* name;
        QString sign;
        QString meaning;
        double factor; // 0: all of it
    };
    const std::array rows{Row{"cmdZoomIn", QStringLiteral("+"), tr("Zoom in"), buttonZoom},
                          Row{"cmdZoomOut", QStringLiteral("−"), tr("Zoom out"), 1 / buttonZoom},
                          Row{"cmdZoomAll", tr("All"), tr("Show all of the piece"), 0}};
    auto* const buttons = new QWidget(this);
    auto* const line = new QHBoxLayout(buttons);
    line->setContentsMargins(margin, margin, margin, 0);
    line->setSpacing(margin / 2);
    for (const Row& row : rows) {
        auto* const button = new QToolButton(buttons);
        button->setObjectName(QString::fromUtf8(row.name));
        button->setText(row.sign);
        button->setToolTip(row.meaning);
        button->setAccessibleName(row.meaning);
        button->setFocusPolicy(Qt::StrongFocus);
        line->addWidget(button);
        connect(button, &QToolButton::clicked, this, [this, factor = row.factor] {
            factor == 0 ? m_canvas->showAll() : m_canvas->zoom(factor);
        });
    }
    return buttons;
}

void CutPicture::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    m_strip->setVisible(width() >= m_canvas->minimumSizeHint().width() + m_strip->width());
}

void CutPicture::showLegend() {
    std::vector<Legend::Row> rows = m_canvas->shades().legend();
    m_caption->setVisible(!rows.empty());
    m_legend->setRows(std::move(rows));
}

} // namespace torvik
