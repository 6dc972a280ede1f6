// SPDX-License-Identifier: MIT
#include "wizard/colour_tree_view.h"

#include "job/job.h"
#include "wizard/pen_pictures.h"

#include <QHeaderView>

namespace torvik {

ColourTreeView::ColourTreeView(QWidget* parent) : QTreeWidget(parent) {
    setObjectName(QStringLiteral("tvwColours"));
    setAccessibleName(tr("Pen colours of the drawing"));
    setToolTip(tr("The pens of the drawing and their hole sizes; the one on show is bold"));
    setHeaderHidden(true);
    setIconSize({24, 24});
    setSelectionMode(NoSelection);
    setFocusPolicy(Qt::NoFocus);
    setEditTriggers(NoEditTriggers);
    setRootIsDecorated(true);
    setUniformRowHeights(true);
}

void ColourTreeView::showTree(const Job& job) {
    setUpdatesEnabled(false);
    clear();
    for (const ColourNode& node : job.gudtColourTree) {
        QTreeWidgetItem* const item = itemFor(node, job);
        addTopLevelItem(item);
        for (const ColourNode& child : node.children) {
            item->addChild(itemFor(child, job));
            if (child.bold)
                scrollToItem(item->child(item->childCount() - 1));
        }
        item->setExpanded(node.expanded);
        if (node.bold)
            scrollToItem(item);
    }
    setUpdatesEnabled(true);
}

QTreeWidgetItem* ColourTreeView::itemFor(const ColourNode& node, const Job& job) const {
    auto* const item = new QTreeWidgetItem;
    const QString text = QString::fromStdString(node.text);
    const QString picture = penPictureText(node.image);
    item->setText(0, text);
    item->setIcon(0, penPicture(node.image, job));
    item->setToolTip(0, text + QStringLiteral(": ") + picture);
    item->setData(0, Qt::AccessibleTextRole, text + QStringLiteral(", ") + picture);
    item->setData(0, Qt::UserRole, QString::fromStdString(node.key));
    QFont font = this->font();
    font.setBold(node.bold);
    item->setFont(0, font);
    return item;
}

} // namespace torvik
