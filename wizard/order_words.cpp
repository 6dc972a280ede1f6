// SPDX-License-Identifier: MIT
#include "wizard/order_words.h"

#include "base/picture.h"
#include "job/machined_groups.h"
#include "tools/tool_list.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <vector>

namespace torvik {
namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("OrderPage", text);
}

QString shown(double length) {
    return QString::fromStdString(formatFixed(length, 1));
}

// A narrow row breaks between the parts only.
QString part(QString text) {
    return text.replace(u' ', QChar::Nbsp);
}

QString toolText(const ToolList& tools, std::int16_t place) {
    const Tool* const tool = findTool(tools, place);
    if (tool == nullptr)
        return part(tr("no tool"));
    return part(tr("T%1 %2 mm")).arg(tool->intNumber).arg(shown(tool->sngDiameter));
}

QString depthText(float shallowest, float deepest) {
    if (shown(shallowest) == shown(deepest))
        return part(tr("%1 mm deep")).arg(shown(deepest));
    return part(tr("%1 to %2 mm deep")).arg(shown(shallowest), shown(deepest));
}

} // namespace

QString machiningText(const Answers& answers, const ToolList& tools, std::int16_t pen) {
    QStringList toolTexts;
    std::vector<float> depths;
    const auto take = [&](const MachinedGroup& group) {
        if (group.settings < 1 || group.settings > answers.gudtSettings.count())
            return;
        const Settings& settings = answers.gudtSettings[group.settings];
        if (const QString text = toolText(tools, settings.intTool); !toolTexts.contains(text))
            toolTexts.append(text);
        depths.push_back(settings.sngDepth);
    };
    visitGroupsOfPen(answers, pen, take);
    if (depths.empty())
        return {};
    const auto [shallowest, deepest] = std::minmax_element(depths.begin(), depths.end());
    const QString dash = QStringLiteral("\u00A0– ");
    return (answers.gudtPens[pen].blnDrill ? tr("drill") : tr("cut")) + dash +
           toolTexts.join(QStringLiteral(", ")) + dash + depthText(*shallowest, *deepest);
}

} // namespace torvik
