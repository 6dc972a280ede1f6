// SPDX-License-Identifier: MIT
#include "prepare/dialog/before_after.h"

#include "base/picture.h"
#include "forms/form_fields.h"
#include "forms/large_letters.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace torvik {
namespace {

constexpr double border = 16;     // pixels round a fitted drawing
constexpr double leastSide = 0.1; // mm, of what is fitted

QLabel* caption(const QString& name, const QString& text, QWidget* view) {
    auto* const label = new QLabel(text);
    label->setObjectName(name);
    label->setBuddy(view);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

DrawingView* view(const QString& name, const QString& accessibleName) {
    auto* const result = new DrawingView;
    result->setObjectName(name);
    result->setAccessibleName(accessibleName);
    result->setToolTip(BeforeAfter::tr("Wheel: zoom. Drag: move. Double click: all of it."));
    return result;
}

QString countText(const StrokePicture* picture) {
    if (picture == nullptr)
        return {};
    const QString elements = picture->elements == 1
                                 ? BeforeAfter::tr("1 element")
                                 : BeforeAfter::tr("%1 elements").arg(picture->elements);
    return picture->circles == 0
               ? elements
               : BeforeAfter::tr("%1, circles: %2").arg(elements).arg(picture->circles);
}

// Easily seen, because a drawing in the wrong unit is a part of the wrong size.
QLabel* sizeLabel(const QString& name) {
    auto* const label = new QLabel;
    label->setObjectName(name);
    QFont font = label->font();
    if (!hasLargeLetters(*label))
        font.setPointSizeF(font.pointSizeF() * 1.4);
    font.setBold(true);
    label->setFont(font);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setWordWrap(true); // large letters leave room for the options
    label->setToolTip(BeforeAfter::tr("Width and height of all lines"));
    return label;
}

QString sizeText(const StrokePicture* picture) {
    if (picture == nullptr)
        return {};
    const auto inMm = [](double value) { return QString::fromStdString(formatFixed(value, 2)); };
    const QString size = picture->tools.empty() ? BeforeAfter::tr("%1 × %2 mm")
                                                : BeforeAfter::tr("Tools: %1 × %2 mm");
    return size.arg(inMm(picture->bounds.width()), inMm(picture->bounds.height()))
        .replace(QStringLiteral(" ×"), QStringLiteral("\u00A0×")) // a line ends behind it only
        .replace(QStringLiteral(" mm"), QStringLiteral("\u00A0mm"));
}

// The mark has the form of what it stands for, not its colour alone.
QString legendItem(QRgb colour, const QString& mark, const QString& text) {
    return QStringLiteral("<span style=\"color:%1\">%2</span> %3")
        .arg(QColor(colour).name(), mark, text.toHtmlEscaped());
}

// What the colours in the pictures mean, and what is in them that the source says in other words.
QString legendText(const StrokePicture* before, const StrokePicture* after) {
    constexpr QRgb tint = 0xffb8c4d8;
    QStringList items;
    if (before != nullptr && !before->faint.isEmpty())
        items += legendItem(faintColour, QStringLiteral("—"),
                            BeforeAfter::tr("in the source, not drawn"));
    if (after == nullptr)
        return items.join(QStringLiteral(" &nbsp; "));
    if (!after->tools.empty())
        items += legendItem(tint, QStringLiteral("■"),
                            BeforeAfter::tr("what the tool mills away (tinted)"));
    if (!after->unreached.isEmpty())
        items += legendItem(unreachedColour, QStringLiteral("▨"),
                            BeforeAfter::tr("too narrow for the tool"));
    if (after->texts > 0)
        items += BeforeAfter::tr("Texts: %1").arg(after->texts);
    if (after->tabs > 0)
        items += BeforeAfter::tr("Tabs: %1").arg(after->tabs);
    return items.join(QStringLiteral(" &nbsp; "));
}

// Of both, also where one of them is a level line, which has no height.
QRectF united(const QRectF& a, const QRectF& b) {
    if (a.isNull())
        return b;
    if (b.isNull())
        return a;
    return {QPointF(std::min(a.left(), b.left()), std::min(a.top(), b.top())),
            QPointF(std::max(a.right(), b.right()), std::max(a.bottom(), b.bottom()))};
}

// With what is only shown.
QRectF boundsOf(const StrokePicture* picture) {
    if (picture == nullptr)
        return {};
    return united(picture->bounds,
                  picture->faint.isEmpty() ? QRectF() : picture->faint.boundingRect());
}

} // namespace

BeforeAfter::BeforeAfter(QWidget* parent)
    : QWidget(parent), m_before(view(QStringLiteral("picBefore"), tr("The drawing before"))),
      m_after(view(QStringLiteral("picAfter"), tr("The drawing after"))), m_beforeCount(new QLabel),
      m_afterCount(new QLabel), m_beforeSize(sizeLabel(QStringLiteral("lblBeforeSize"))),
      m_afterSize(sizeLabel(QStringLiteral("lblAfterSize"))), m_legend(new QLabel),
      m_fit(new QPushButton(tr("Fit"))) {
    m_beforeCount->setObjectName(QStringLiteral("lblBeforeCount"));
    m_afterCount->setObjectName(QStringLiteral("lblAfterCount"));
    m_fit->setObjectName(QStringLiteral("cmdFit"));
    m_fit->setToolTip(tr("Show all of the drawing (0 in a view)"));
    m_fit->setAutoDefault(false);

    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_before, 1, 0); // these two first: so goes the tab key
    layout->addWidget(m_after, 1, 1);
    const auto addHeader = [layout](int column, QLabel* name, QLabel* size) {
        auto* const row = new QHBoxLayout;
        row->addWidget(name);
        row->addSpacing(8);
        row->addWidget(size, 1);
        layout->addLayout(row, 0, column);
    };
    addHeader(0, caption(QStringLiteral("lblBefore"), tr("Before"), m_before), m_beforeSize);
    addHeader(1, caption(QStringLiteral("lblAfter"), tr("After"), m_after), m_afterSize);
    layout->addWidget(m_beforeCount, 2, 0);
    auto* const below = new QHBoxLayout;
    below->addWidget(m_afterCount, 1);
    below->addWidget(m_fit);
    layout->addLayout(below, 2, 1);
    layout->setHorizontalSpacing(10);
    m_legend->setObjectName(QStringLiteral("lblLegend"));
    m_legend->setTextFormat(Qt::RichText);
    for (QLabel* const label : {m_beforeCount, m_afterCount, m_legend})
        label->setWordWrap(true);
    layout->addWidget(m_legend, 3, 0, 1, 2);
    layout->setRowStretch(1, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    connectViews();
    setPictures(nullptr, nullptr);
}

void BeforeAfter::connectViews() {
    const auto link = [this](DrawingView* from, DrawingView* to) {
        connect(from, &DrawingView::placeChanged, this, [this, to](const ViewPlace& place) {
            m_fitted = false;
            to->setPlace(place);
        });
        connect(from, &DrawingView::fitWanted, this, &BeforeAfter::fit);
        from->installEventFilter(this);
    };
    link(m_before, m_after);
    link(m_after, m_before);
    connect(m_fit, &QPushButton::clicked, this, &BeforeAfter::fit);
}

void BeforeAfter::setPictures(std::shared_ptr<const StrokePicture> before,
                              std::shared_ptr<const StrokePicture> after) {
    m_beforeCount->setText(countText(before.get()));
    m_afterCount->setText(countText(after.get()));
    showNamed(*m_beforeSize, tr("Size before"), sizeText(before.get()));
    showNamed(*m_afterSize, tr("Size after"), sizeText(after.get()));
    const QString legend = legendText(before.get(), after.get());
    m_legend->setText(legend);
    m_legend->setVisible(!legend.isEmpty());
    m_fit->setEnabled(before || after);
    const QRectF bounds = united(boundsOf(before.get()), boundsOf(after.get()));
    // The fitting moves a line by next to nothing; that is no other place.
    constexpr double clearly = 1e-3;
    const double share = clearly * std::max(m_bounds.width(), m_bounds.height());
    const auto differs = [share](double a, double b) { return std::abs(a - b) > share; };
    const bool isElsewhere =
        differs(bounds.left(), m_bounds.left()) || differs(bounds.right(), m_bounds.right()) ||
        differs(bounds.top(), m_bounds.top()) || differs(bounds.bottom(), m_bounds.bottom());
    m_bounds = bounds;
    m_before->setPicture(std::move(before));
    m_after->setPicture(std::move(after));
    if (isElsewhere)
        fit();
}

void BeforeAfter::setHints(const QString& before, const QString& after) {
    m_before->setHint(before);
    m_after->setHint(after);
}

void BeforeAfter::fit() {
    m_fitted = true;
    const double width = std::max(m_bounds.width(), leastSide);
    const double height = std::max(m_bounds.height(), leastSide);
    const QSize room = m_before->size().boundedTo(m_after->size()); // a long count widens its view
    const double across = std::max(room.width() - 2 * border, 1.0) / width;
    const double down = std::max(room.height() - 2 * border, 1.0) / height;
    const ViewPlace place{std::min(across, down), m_bounds.center()};
    m_before->setPlace(place);
    m_after->setPlace(place);
}

bool BeforeAfter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && m_fitted)
        fit();
    return QWidget::eventFilter(watched, event);
}

} // namespace torvik
