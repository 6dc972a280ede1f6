// SPDX-License-Identifier: MIT
#include "prepare/dialog/tabs_box.h"

#include "prepare/dialog/measure_box.h"
#include "prepare/dialog/pen_colour.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace torvik {
namespace {

QComboBox* penBox(const char* name, int pen, const QString& accessibleName) {
    auto* const box = new QComboBox;
    box->setObjectName(QString::fromUtf8(name));
    box->setAccessibleName(accessibleName);
    addPens(*box);
    box->setCurrentIndex(pen - 1);
    return box;
}

void addLabelled(QGridLayout& layout, int row, const char* name, const QString& caption,
                 QWidget* control, const QString& help) {
    auto* const label = new QLabel(caption);
    label->setObjectName(QString::fromUtf8(name));
    label->setBuddy(control);
    label->setToolTip(help);
    control->setToolTip(help);
    layout.addWidget(label, row, 0);
    layout.addWidget(control, row, 1);
}

} // namespace

TabsBox::TabsBox(QWidget* parent)
    : QWidget(parent), m_wanted(new QCheckBox(tr("Ta&bs hold the part"))),
      m_from(penBox("cboTabsFrom", 1, tr("Tabs in the outlines of pen"))),
      m_to(penBox("cboTabsTo", 2, tr("Pen that cuts through between the tabs"))),
      m_count(new MeasureBox(QStringLiteral("txtTabsCount"), {1, 20, 1, 0}, 4, {})),
      m_length(new MeasureBox(QStringLiteral("txtTabsLength"), {0.1, 50, 0.5, 2}, 3,
                              QStringLiteral("mm"))) {
    m_wanted->setObjectName(QStringLiteral("chkTabs"));
    m_wanted->setToolTip(tr("The first pen's outlines are drawn once more by the second pen, with "
                            "gaps.\nGive the first pen a depth that ends just above the bottom, "
                            "and the second\none the full depth: the part stays in its place on "
                            "the tabs."));
    m_count->setAccessibleName(tr("Number of tabs"));
    m_length->setAccessibleName(tr("Length of a tab"));
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(4);
    layout->addWidget(m_wanted, 0, 0, 1, 2);
    addLabelled(*layout, 1, "lblTabsFrom", tr("outlines of"), m_from,
                tr("The pen whose outlines are the part's edge"));
    addLabelled(*layout, 2, "lblTabsTo", tr("cut through by"), m_to,
                tr("A pen that draws nothing else: it gets the outlines with their gaps"));
    addLabelled(*layout, 3, "lblTabsCount", tr("tabs each"), m_count,
                tr("Spread evenly along each outline"));
    addLabelled(*layout, 4, "lblTabsLength", tr("length of each"), m_length,
                tr("Of what is left standing; the gap in the line is longer by the tool"));
    layout->setColumnStretch(0, 1);
    connectControls();
}

void TabsBox::connectControls() {
    connect(m_wanted, &QCheckBox::toggled, this, &TabsBox::changed);
    for (QComboBox* const box : {m_from, m_to})
        connect(box, &QComboBox::currentIndexChanged, this, &TabsBox::changed);
    for (MeasureBox* const box : {m_count, m_length})
        connect(box, &MeasureBox::valueChanged, this, &TabsBox::changed);
    for (QWidget* const control :
         std::initializer_list<QWidget*>{m_from, m_to, m_count, m_length}) {
        control->setEnabled(false);
        connect(m_wanted, &QCheckBox::toggled, control, &QWidget::setEnabled);
    }
}

std::vector<Tabs> TabsBox::tabs() const {
    if (!m_wanted->isChecked())
        return {};
    return {{m_from->currentData().toInt(), m_to->currentData().toInt(),
             static_cast<int>(m_count->value()), m_length->value()}};
}

void TabsBox::propose(int outlines, int through) {
    if (m_wanted->isChecked())
        return;
    const QSignalBlocker quietFrom(m_from);
    const QSignalBlocker quietTo(m_to);
    m_from->setCurrentIndex(m_from->findData(outlines));
    m_to->setCurrentIndex(m_to->findData(through));
}

QWidget* TabsBox::lastControl() const {
    return m_length;
}

} // namespace torvik
