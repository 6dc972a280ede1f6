// SPDX-License-Identifier: MIT
#include "wizard/pens/pen_controls.h"

#include "forms/form_fields.h"
#include "forms/help_key.h"
#include "forms/large_letters.h"
#include "forms/number_box.h"
#include "forms/quiet_line.h"
#include "forms/spoken_role.h"
#include "wizard/pens/pen_diagram.h"
#include "wizard/pens/pen_words.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QFont>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace torvik {
namespace {

const QColor grey(192, 192, 192);
const QColor paleCyan(192, 255, 255);

constexpr int widestContent = 80; // letters
constexpr int columnCaption = 0;
constexpr int columnBox = 1;
constexpr int columnUnit = 2;
// The check box stands above the peck distance that it opens.
constexpr int gridRowPeck = static_cast<int>(rowPeck);

struct ToolLabelText {
    const char* name;
    const char* caption;
    const char* tip;
};

constexpr std::array<ToolLabelText, 3> toolLabelTexts{{
    {"lblToolNumber", QT_TRANSLATE_NOOP("PenPage", "Tool number"),
     QT_TRANSLATE_NOOP("PenPage", "The chosen tool's number in the tool list")},
    {"lblToolType", QT_TRANSLATE_NOOP("PenPage", "Tool type"),
     QT_TRANSLATE_NOOP("PenPage", "The chosen tool's type")},
    {"lblToolDiameter", QT_TRANSLATE_NOOP("PenPage", "Diameter (mm)"),
     QT_TRANSLATE_NOOP("PenPage", "The chosen tool's diameter in millimetres")},
}};

QString tr(const char* text) {
    return QCoreApplication::translate("PenPage", text);
}

QLabel* makeLabel(QWidget& page, const QString& name, const QString& text = {}) {
    auto* label = new QLabel(text, &page);
    label->setObjectName(name);
    return label;
}

QLabel* makeWrappedLabel(QWidget& page, const QString& name, const QString& text = {}) {
    QLabel* label = makeLabel(page, name, text);
    label->setWordWrap(true);
    return label;
}

// A line may not end inside "mm/min".
QString withUnitWhole(QString caption) {
    constexpr QChar wordJoiner(0x2060);
    return caption.replace(u'/', QStringLiteral("/") + wordJoiner);
}

void makeHead(PenControls& controls, QWidget& page, QVBoxLayout& layout) {
    controls.title = makeWrappedLabel(page, "lblDetTitle");
    QFont font = controls.title->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.15);
    controls.title->setFont(font);
    // As wide as the page: beside the picture a line would end between a size and its unit.
    layout.addWidget(controls.title);

    controls.choice = new QButtonGroup(&page);
    auto* column = new QVBoxLayout;
    column->setSpacing(6);
    controls.place = makeLabel(page, "lblPenPlace"); // here it takes no room from the rows
    column->addWidget(controls.place);
    for (std::size_t i = 0; i < controls.optCut.size(); ++i) {
        auto* option = new QRadioButton(&page);
        option->setObjectName("optCut" + QString::number(i));
        option->setToolTip(i == 0 ? tr("This part of the drawing is machined")
                                  : tr("This part of the drawing is left out"));
        controls.choice->addButton(option, static_cast<int>(i));
        controls.optCut[i] = option;
        column->addWidget(option);
    }
    // The Tab key reaches both, though a group keeps it to the one that had the focus last.
    QObject::connect(qApp, &QApplication::focusChanged, controls.choice,
                     [options = controls.optCut] {
                         for (QRadioButton* option : options)
                             option->setFocusPolicy(Qt::StrongFocus);
                     });

    controls.diagram = new PenDiagram(&page);
    controls.diagram->setObjectName("picCut");
    setSpokenRole(*controls.diagram, QAccessible::Graphic);
    controls.diagram->setAccessibleName(tr("The work seen from the side"));
    controls.diagram->setToolTip(tr("What the details below are about, seen from the side"));
    // Large letters leave no room for the picture beside the choice.
    auto* row =
        new QBoxLayout(hasLargeLetters(page) ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    row->setSpacing(12);
    row->addLayout(column, 1);
    row->setAlignment(column, Qt::AlignTop);
    row->addWidget(controls.diagram, 0, Qt::AlignTop | Qt::AlignRight);
    layout.addLayout(row);
}

void makeToolPanel(PenControls& controls, QWidget& page, QVBoxLayout& layout) {
    controls.toolPanel = new QWidget(&page);
    controls.toolPanel->setObjectName("picTool");
    auto* grid = new QGridLayout(controls.toolPanel);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(2);
    for (std::size_t i = 0; i < toolLabelTexts.size(); ++i) {
        const ToolLabelText& about = toolLabelTexts[i];
        const int column = static_cast<int>(i);
        grid->addWidget(makeWrappedLabel(*controls.toolPanel, QString(about.name) + "Caption",
                                         tr(about.caption)),
                        0, column, Qt::AlignBottom);
        QLabel* label = makeLabel(*controls.toolPanel, about.name);
        label->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | QFrame::Sunken);
        label->setAlignment(Qt::AlignCenter);
        label->setAutoFillBackground(true);
        label->setMargin(3);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        controls.toolLabels[i] = label;
        grid->addWidget(label, 1, column);
        grid->setColumnStretch(column, i == toolType ? 3 : 2);
        constexpr int leastLetters = 10; // of a type's name
        if (i == toolType)
            grid->setColumnMinimumWidth(column,
                                        page.fontMetrics().averageCharWidth() * leastLetters);
    }
    controls.cmdTool = new QPushButton(tr("Choose too&l..."), controls.toolPanel);
    controls.cmdTool->setObjectName("cmdTool");
    controls.cmdTool->setAccessibleName(tr("Choose tool"));
    controls.cmdTool->setToolTip(tr("Opens the tool list to choose the tool for this page"));
    controls.cmdTool->setAutoDefault(false);
    controls.cmdTool->setProperty(helpContextProperty, helpTools);
    constexpr int columns = static_cast<int>(toolLabelTexts.size());
    if (hasLargeLetters(page)) // beside the labels it would make the page wider than it is shown
        grid->addWidget(controls.cmdTool, 2, 0, 1, columns, Qt::AlignRight);
    else
        grid->addWidget(controls.cmdTool, 1, columns);
    layout.addWidget(controls.toolPanel);
    controls.toolNote = makeWrappedLabel(page, "lblToolNote");
    controls.toolNote->hide();
    layout.addWidget(controls.toolNote);
}

void makeRows(PenControls& controls, QWidget& page, QVBoxLayout& layout) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(6);
    grid->setColumnStretch(columnCaption, 1);
    for (std::size_t i = 0; i < penRowCount; ++i) {
        const QString number = QString::number(i);
        const int gridRow = static_cast<int>(i) + (i >= rowPeck ? 1 : 0);
        controls.lblDet[i] = makeWrappedLabel(page, "lblDet" + number);
        controls.txtDet[i] = new NumberBox(measureHint, &page);
        controls.txtDet[i]->setObjectName("txtDet" + number);
        controls.lblUnit[i] = makeLabel(page, "lblUnit" + number);
        controls.lblDet[i]->setBuddy(controls.txtDet[i]);
        grid->addWidget(controls.lblDet[i], gridRow, columnCaption);
        grid->addWidget(controls.txtDet[i], gridRow, columnBox);
        grid->addWidget(controls.lblUnit[i], gridRow, columnUnit);
    }
    controls.chkPeck = new QCheckBox(tr("Drill in &pecks"), &page);
    controls.chkPeck->setObjectName("chkPeck");
    controls.chkPeck->setAccessibleName(tr("Drill in pecks"));
    controls.chkPeck->setToolTip(
        tr("The drill comes up after each peck to clear the hole of chips"));
    controls.chkPeck->setProperty(helpContextProperty, rowHelp(PenForm::drilling, rowPeck));
    grid->addWidget(controls.chkPeck, gridRowPeck, columnCaption, 1, 3);
    layout.addLayout(grid);

    controls.holesFollow = makeWrappedLabel(page, "lblHolesFollow",
                                            tr("The circles are drilled as holes. The next pages "
                                               "ask for the details of each hole size."));
    layout.addWidget(controls.holesFollow);
    controls.quiet = new QuietLine(QStringLiteral("lblQuietPen"));
    layout.addWidget(controls.quiet);
}

// The picture points at what the box with the focus asks for.
void connectDiagram(const PenControls& controls) {
    PenDiagram* const diagram = controls.diagram;
    QObject::connect(qApp, &QApplication::focusChanged, diagram,
                     [diagram, boxes = controls.txtDet](QWidget*, const QWidget* now) {
                         const auto* const at = std::find(boxes.begin(), boxes.end(), now);
                         if (at == boxes.end())
                             diagram->unmark();
                         else
                             diagram->mark(static_cast<std::size_t>(at - boxes.begin()),
                                           (*at)->text());
                     });
    for (std::size_t i = 0; i < penRowCount; ++i)
        QObject::connect(controls.txtDet[i], &QLineEdit::textChanged, diagram,
                         [diagram, i](const QString& text) {
                             if (diagram->marked() == i)
                                 diagram->mark(i, text);
                         });
}

void setTabOrder(const PenControls& controls) {
    QWidget* last = controls.optCut[0];
    const auto then = [&](QWidget* next) {
        QWidget::setTabOrder(last, next);
        last = next;
    };
    then(controls.optCut[1]);
    then(controls.cmdTool);
    for (std::size_t i = 0; i < penRowCount; ++i) {
        if (i == rowPeck)
            then(controls.chkPeck);
        then(controls.txtDet[i]);
    }
}

} // namespace

PenControls makePenControls(QWidget& page) {
    PenControls controls;
    // On a wide page the boxes stay near their captions.
    auto* content = new QWidget(&page);
    content->setMaximumWidth(widestContent * page.fontMetrics().averageCharWidth());
    auto* outer = new QHBoxLayout(&page);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(content, 100);
    outer->addStretch(1);

    auto* layout = new QVBoxLayout(content);
    layout->setSpacing(10);
    QMargins margins = layout->contentsMargins();
    margins.setBottom(0); // on a small screen the last lines need the room
    layout->setContentsMargins(margins);
    makeHead(controls, *content, *layout);
    makeToolPanel(controls, *content, *layout);
    makeRows(controls, *content, *layout);
    layout->addStretch();
    setTabOrder(controls);
    connectDiagram(controls);
    return controls;
}

void showPenRows(const PenControls& controls, PenForm form, std::string_view feedUnits,
                 bool asked) {
    const auto rows = penRows(form);
    for (std::size_t i = 0; i < penRowCount; ++i) {
        const bool visible = asked && i < rows.size();
        for (QWidget* widget :
             {static_cast<QWidget*>(controls.lblDet[i]), static_cast<QWidget*>(controls.txtDet[i]),
              static_cast<QWidget*>(controls.lblUnit[i])})
            widget->setVisible(visible);
        if (i >= rows.size())
            continue;
        const QString caption = rowCaption(form, i, feedUnits);
        const QString tip = rowTip(form, i);
        controls.lblDet[i]->setText(withUnitWhole(caption));
        controls.lblUnit[i]->setText(rowUnit(form, i, feedUnits));
        controls.txtDet[i]->setAccessibleName(caption);
        controls.txtDet[i]->setToolTip(tip);
        controls.lblDet[i]->setToolTip(tip);
        controls.lblDet[i]->setProperty(helpContextProperty, rowHelp(form, i));
        controls.txtDet[i]->setProperty(helpContextProperty, rowHelp(form, i));
    }
    controls.chkPeck->setVisible(asked && form == PenForm::drilling);
    controls.toolPanel->setVisible(asked);
    controls.cmdTool->setVisible(asked);
    controls.holesFollow->setVisible(!asked);
    controls.diagram->setForm(form);
}

void openBox(NumberBox& box, bool open) {
    box.setEnabled(open);
    box.setReadOnly(!open);
    QPalette palette; // an empty one follows the system's
    if (!open) {
        palette.setColor(QPalette::Base, grey);
        palette.setColor(QPalette::Text, QColor(64, 64, 64));
    }
    box.setPalette(palette);
}

void setToolLabel(const PenControls& controls, std::size_t label, const QString& text) {
    const ToolLabelText& about = toolLabelTexts[label];
    controls.toolLabels[label]->setText(text);
    controls.toolLabels[label]->setAccessibleName(tr(about.caption) + ": " +
                                                  (text.isEmpty() ? tr("none") : text));
    // A long type is cut off in its label.
    controls.toolLabels[label]->setToolTip(
        text.isEmpty() ? tr(about.tip) : tr(about.tip) + QStringLiteral(": ") + text);
}

void setToolNote(const PenControls& controls, const QString& text) {
    showWarning(*controls.toolNote, text);
}

void colourToolLabels(const PenControls& controls, bool leftOut) {
    QPalette palette;
    palette.setColor(QPalette::Window, leftOut ? grey : paleCyan);
    palette.setColor(QPalette::WindowText, Qt::black);
    for (QLabel* label : controls.toolLabels)
        label->setPalette(palette);
}

} // namespace torvik
