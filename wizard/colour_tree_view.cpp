// SPDX-License-Identifier: MIT
#include "wizard/colour_tree_view.h"

#include "job/job.h"
#include "languages/shown_text.h"
#include "wizard/pen_pictures.h"

#include <algorithm>

namespace torvik {
namespace {

bool haveSameKeys(const std::vector<ColourNode>& a, const std::vector<ColourNode>& b) {
    return std::ranges::equal(a, b, [](const ColourNode& one, const ColourNode& other) {
        return one.key == other.key && one.text == other.text &&
               haveSameKeys(one.children, other.children);
    });
}

} // namespace

ColourTreeView::ColourTreeView(QWidget* parent) : QTreeWidget(parent) {
    setObjectName(QStringLiteral("tvwColours"));
    setAccessibleName(tr("Pen colours of the drawing"));
    setToolTip(tr("The pens of the drawing and their hole sizes; the one on show is bold"));
    setHeaderLabel(accessibleName()); // only heard
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
    const std::vector<ColourNode>& tree = job.position.gudtColourTree;
    const bool sameNodes = haveSameKeys(tree, m_shown);
    if (!sameNodes)
        buildNodes(tree);
    QTreeWidgetItem* current = nullptr;
    for (std::size_t i = 0; i < tree.size(); ++i) {
        QTreeWidgetItem* const item = topLevelItem(static_cast<int>(i));
        const auto update = [&](QTreeWidgetItem* of, const ColourNode& node,
                                const ColourNode& shown) {
            if (!sameNodes || node.image != shown.image || node.bold != shown.bold)
                decorate(*of, node, job);
            if (node.bold)
                current = of;
        };
        update(item, tree[i], sameNodes ? m_shown[i] : tree[i]);
        for (std::size_t k = 0; k < tree[i].children.size(); ++k)
            update(item->child(static_cast<int>(k)), tree[i].children[k],
                   sameNodes ? m_shown[i].children[k] : tree[i].children[k]);
        item->setExpanded(tree[i].expanded);
    }
    m_shown = tree;
    if (current != nullptr)
        scrollToItem(current);
    setUpdatesEnabled(true);
}

void ColourTreeView::buildNodes(const std::vector<ColourNode>& tree) {
    clear();
    for (const ColourNode& node : tree) {
        auto* const item = new QTreeWidgetItem(this);
        for (std::size_t k = 0; k < node.children.size(); ++k)
            new QTreeWidgetItem(item);
    }
}

void ColourTreeView::decorate(QTreeWidgetItem& item, const ColourNode& node, const Job& job) {
    const QString text = shownText(node.text);
    const QString picture = penPictureText(node.image);
    QIcon& icon = m_pictures[node.image];
    if (icon.isNull())
        icon = penPicture(node.image, job);
    item.setText(0, text);
    item.setIcon(0, icon);
    item.setToolTip(0, text + QStringLiteral(": ") + picture);
    item.setData(0, Qt::AccessibleTextRole, text + QStringLiteral(", ") + picture);
    item.setData(0, Qt::UserRole, QString::fromStdString(node.key));
    QFont font = this->font();
    font.setBold(node.bold);
    item.setFont(0, font);
}

} // namespace torvik
