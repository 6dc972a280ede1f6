// SPDX-License-Identifier: MIT
#include "prepare/dialog/option_panel.h"

#include "prepare/dialog/measure_box.h"
#include "prepare/dialog/tabs_box.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace torvik {
namespace {

const QString mm = QStringLiteral("mm");
constexpr double farAway = 10000; // mm

QString named(const char* name) {
    return QString::fromUtf8(name);
}

// A caption whose access key leads to the control, which gets name and tool tip from it.
void addRow(QFormLayout& form, const QString& caption, QWidget* control, const QString& help) {
    auto* const label = new QLabel(caption);
    label->setObjectName(QStringLiteral("lbl") + control->objectName().mid(3));
    label->setBuddy(control);
    label->setToolTip(help);
    control->setToolTip(help);
    QString plain = caption;
    control->setAccessibleName(plain.remove(u'&'));
    form.addRow(label, control);
}

QCheckBox* check(const char* name, const QString& caption, const QString& help) {
    auto* const box = new QCheckBox(caption);
    box->setObjectName(named(name));
    box->setToolTip(help);
    return box;
}

QComboBox* choice(const char* name, const QStringList& texts) {
    auto* const box = new QComboBox;
    box->setObjectName(named(name));
    box->addItems(texts);
    return box;
}

QHBoxLayout* inARow(std::initializer_list<QWidget*> controls) {
    auto* const row = new QHBoxLayout;
    row->setSpacing(6);
    for (QWidget* const control : controls)
        row->addWidget(control, qobject_cast<QDoubleSpinBox*>(control) != nullptr ? 1 : 0);
    return row;
}

QLabel* axis(const char* name, const QString& caption, MeasureBox* box,
             const QString& accessibleName) {
    auto* const label = new QLabel(caption);
    label->setObjectName(named(name));
    label->setBuddy(box);
    box->setAccessibleName(accessibleName);
    return label;
}

} // namespace

OptionPanel::OptionPanel(QWidget* parent) : QGroupBox(tr("Options"), parent) {
    setObjectName(QStringLiteral("fraOptions"));
    auto* const form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setVerticalSpacing(4);
    form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    buildSource(*form);
    buildFitting(*form);
    buildPlacing(*form);
    buildOnRequest(*form);
    connectControls();
}

void OptionPanel::buildSource(QFormLayout& form) {
    m_size = choice("cboUnits", {});
    addRow(form, tr("Gi&ven in"), m_size,
           tr("The drawing does not say how large it is: look at its size beside the picture"));
    m_sizeLabel = qobject_cast<QLabel*>(form.labelForField(m_size));
    m_penBy = choice("cboPenBy", {tr("each colour"), tr("each layer")});
    addRow(form, tr("A pen &for"), m_penBy,
           tr("Which pen draws what is chosen in the list of pens: by the colours or by the layers "
              "of the CAD drawing"));
    m_penByLabel = qobject_cast<QLabel*>(form.labelForField(m_penBy));
    m_texts = choice("cboTexts", {tr("in single strokes"), tr("left out")});
    addRow(form, tr("Writin&g"), m_texts, tr("Single strokes are milled as they are drawn"));
    askForSize(SizeDoubt::none);
    offerLayers(false);
}

void OptionPanel::offerLayers(bool hasLayers) {
    m_penBy->setVisible(hasLayers);
    m_penByLabel->setVisible(hasLayers);
}

void OptionPanel::askForSize(SizeDoubt doubt) {
    m_size->setVisible(doubt != SizeDoubt::none);
    m_sizeLabel->setVisible(doubt != SizeDoubt::none);
    if (doubt == std::exchange(m_doubt, doubt))
        return;
    const QSignalBlocker quiet(m_size);
    m_size->clear();
    if (doubt == SizeDoubt::unit)
        m_size->addItems({tr("mm"), tr("cm"), tr("m"), tr("inch")});
    else if (doubt == SizeDoubt::pixels)
        m_size->addItems({tr("as the file's program does"), tr("96 pixels to the inch"),
                          tr("90 pixels to the inch"), tr("72 pixels to the inch")});
}

SourceOptions OptionPanel::sourceOptions() const {
    SourceOptions options;
    options.roundTurn = m_roundTurn->value();
    options.texts = m_texts->currentIndex() == 0;
    options.byLayer = m_penBy->currentIndex() == 1;
    const int answer = m_size->currentIndex();
    if (m_doubt == SizeDoubt::unit)
        options.units = static_cast<LengthUnit>(answer);
    constexpr double densities[] = {96, 90, 72};
    if (m_doubt == SizeDoubt::pixels && answer > 0)
        options.dpi = densities[answer - 1];
    return options;
}

QVariantMap OptionPanel::values() const {
    QVariantMap values;
    for (const QDoubleSpinBox* const box : findChildren<QDoubleSpinBox*>())
        values[box->objectName()] = box->value();
    for (const QCheckBox* const box : findChildren<QCheckBox*>())
        values[box->objectName()] = box->isChecked();
    for (const QComboBox* const box : findChildren<QComboBox*>())
        if (box != m_size) // the next drawing's size is another question
            values[box->objectName()] = box->currentIndex();
    return values;
}

void OptionPanel::setValues(const QVariantMap& values) {
    if (values == this->values())
        return;
    {
        const QSignalBlocker once(this);
        for (auto* const box : findChildren<QDoubleSpinBox*>())
            box->setValue(values.value(box->objectName(), box->value()).toDouble());
        for (auto* const box : findChildren<QCheckBox*>())
            box->setChecked(values.value(box->objectName(), box->isChecked()).toBool());
        for (auto* const box : findChildren<QComboBox*>())
            if (box != m_size)
                box->setCurrentIndex(
                    std::clamp(values.value(box->objectName(), box->currentIndex()).toInt(), 0,
                               box->count() - 1));
    }
    emit changed();
}

void OptionPanel::buildFitting(QFormLayout& form) {
    const PrepareOptions usual;
    m_tolerance = new MeasureBox(named("txtTolerance"), {0.001, 10, 0.005, 3}, usual.tolerance, mm);
    m_roundTurn = new MeasureBox(named("txtRoundTurn"), {0.5, 90, 1, 1}, usual.roundTurn,
                                 QStringLiteral("°"));
    addRow(form, tr("&Tolerance"), m_tolerance,
           tr("How far the drawing's own points and curves may move"));
    addRow(form, tr("Round t&urn"), m_roundTurn,
           tr("The widest chord that may stand for a piece of a circle. An octagon has 45°, so it "
              "stays an octagon."));
    m_arcs = check("chkArcs", tr("&Arcs and circles out of chords"),
                   tr("Off: chords stay chords and curves become lines; the drawing's own arcs "
                      "stay"));
    m_arcs->setChecked(usual.arcs);
    m_duplicates = check("chkDuplicates", tr("&Drop duplicate lines"),
                         tr("Take out what the same pen has drawn before"));
    m_optimize = check("chkOptimize", tr("Short &way between lines"),
                       tr("Order what each pen draws so that little is travelled in between"));
    m_insideFirst = check("chkInsideFirst", tr("&Holes before what is around them"),
                          tr("What lies inside an outline is drawn before the outline, while the "
                             "part still holds; always so where the tool runs beside a line"));
    for (QCheckBox* const box : {m_arcs, m_duplicates, m_optimize, m_insideFirst})
        form.addRow(box);
}

void OptionPanel::buildPlacing(QFormLayout& form) {
    m_scale = new MeasureBox(named("txtScale"), {0.0001, 10000, 0.1, 4}, 1, {});
    m_mirror = choice("cboMirror", {tr("no"), tr("left and right"), tr("up and down")});
    m_rotate =
        choice("cboRotate", {tr("no"), tr("90° to the left"), tr("180°"), tr("90° to the right")});
    addRow(form, tr("Sca&le"), m_scale,
           tr("Multiplies all lengths, before all else. 25.4 for a drawing in inches."));
    addRow(form, tr("&Mirror"), m_mirror, tr("The lower left corner stays where it is"));
    addRow(form, tr("Rotat&e"), m_rotate, tr("The lower left corner stays where it is"));
}

void OptionPanel::buildOnRequest(QFormLayout& form) {
    const QString moved = tr("Where the lower left corner of all lines comes to");
    m_moved = check("chkOrigin", tr("Lower left cor&ner at"), moved);
    m_originX = new MeasureBox(named("txtOriginX"), {-farAway, farAway, 1, 3}, 0, mm);
    m_originY = new MeasureBox(named("txtOriginY"), {-farAway, farAway, 1, 3}, 0, mm);
    form.addRow(m_moved);
    form.addRow(
        inARow({axis("lblOriginX", tr("&X"), m_originX, tr("Lower left corner, X")), m_originX,
                axis("lblOriginY", tr("&Y"), m_originY, tr("Lower left corner, Y")), m_originY}));
    const QString dots = tr("Dots are pen down and up again in one place. Off, they are not "
                            "drawn; on, they are circles of this diameter.");
    m_drawDots = check("chkDots", tr("Dots as c&ircles of"), dots);
    m_dots = new MeasureBox(named("txtDots"), {0.01, 1000, 0.1, 2}, 1, mm);
    m_dots->setAccessibleName(tr("Diameter of dots"));
    for (QWidget* const control : {m_originX, m_originY})
        control->setToolTip(moved);
    m_dots->setToolTip(dots);
    form.addRow(m_drawDots, m_dots);
    m_tabs = new TabsBox;
    form.addRow(m_tabs);
}

void OptionPanel::connectControls() {
    for (MeasureBox* const box : {m_tolerance, m_roundTurn, m_scale, m_originX, m_originY, m_dots})
        connect(box, &MeasureBox::valueChanged, this, &OptionPanel::changed);
    for (QCheckBox* const box :
         {m_arcs, m_duplicates, m_optimize, m_insideFirst, m_moved, m_drawDots})
        connect(box, &QCheckBox::toggled, this, &OptionPanel::changed);
    for (QComboBox* const box : {m_mirror, m_rotate, m_texts, m_size, m_penBy})
        connect(box, &QComboBox::currentIndexChanged, this, &OptionPanel::changed);
    connect(m_tabs, &TabsBox::changed, this, &OptionPanel::changed);
    const auto open = [](QCheckBox* by, QWidget* control) {
        control->setEnabled(by->isChecked());
        connect(by, &QCheckBox::toggled, control, &QWidget::setEnabled);
    };
    open(m_arcs, m_roundTurn);
    open(m_moved, m_originX);
    open(m_moved, m_originY);
    open(m_drawDots, m_dots);
}

void OptionPanel::proposeTabs(int outlines, int through) {
    m_tabs->propose(outlines, through);
}

QWidget* OptionPanel::lastControl() const {
    return m_tabs->lastControl();
}

PrepareOptions OptionPanel::options() const {
    PrepareOptions options;
    options.tolerance = m_tolerance->value();
    options.roundTurn = m_roundTurn->value();
    options.arcs = m_arcs->isChecked();
    options.dropDuplicates = m_duplicates->isChecked();
    options.optimize = m_optimize->isChecked();
    options.scale = m_scale->value();
    constexpr Mirror mirrors[] = {Mirror::none, Mirror::leftRight, Mirror::upDown};
    options.mirror = mirrors[m_mirror->currentIndex()];
    options.rotation = 90 * m_rotate->currentIndex();
    if (m_moved->isChecked())
        options.origin = Point{m_originX->value(), m_originY->value()};
    if (m_drawDots->isChecked())
        options.dots = m_dots->value();
    options.beside.tabs = m_tabs->tabs();
    options.beside.insideFirst = m_insideFirst->isChecked();
    return options;
}

} // namespace torvik
