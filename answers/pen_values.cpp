// SPDX-License-Identifier: MIT
#include "answers/pen_values.h"

#include "base/errors.h"
#include "base/numbers.h"
#include "base/picture.h"

#include <limits>

namespace torvik {
namespace {

std::string shownNumber(const PenRow& row, float value, float feedFactor) {
    switch (row.unit) {
    case RowUnit::rpm:
        return formatGeneral(value);
    case RowUnit::feed:
        if (feedFactor == 0)
            throw DivisionByZero();
        return formatFixed(double{value} / feedFactor, feedDecimals(feedFactor));
    case RowUnit::millimetres:
    case RowUnit::seconds:
        break;
    }
    return formatFixed(value, 2);
}

bool finalPassCounts(const Settings& settings) {
    return settings.sngDepth != settings.sngDepthPerPass;
}

} // namespace

double boxNumber(const std::string& text) {
    try {
        const double number = leadingNumber(text);
        toSingle(number);
        return number;
    } catch (const Overflow&) {
        // A minus sign makes it no smaller than any number that is kept.
        const auto first = text.find_first_not_of(" \t");
        const double size = std::numeric_limits<double>::infinity();
        return text[first] == '-' ? -size : size;
    }
}

PenTexts shownTexts(const Settings& settings, PenForm form, float feedFactor) {
    PenTexts texts;
    const auto rows = penRows(form);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        texts[i] = shownNumber(rows[i], settings.*rows[i].field, feedFactor);
        if (leadingNumber(texts[i]) == 0)
            texts[i].clear();
    }
    if (form == PenForm::drilling) {
        if (settings.sngDwell == 0 && settings.blnComplete)
            texts[rowDwell] = "0";
        return texts;
    }
    if (!finalPassCounts(settings)) {
        texts[rowFinalPass].clear();
        texts[rowFinalPassFeed].clear();
    } else if (settings.sngFinalPassDepth == 0 && settings.blnComplete) {
        texts[rowFinalPass] = "0";
    }
    return texts;
}

std::optional<std::size_t> storeTexts(const PenTexts& texts, bool peck, PenForm form,
                                      float feedFactor, const ToolList& tools, Settings& settings) {
    Settings stored = settings;
    const auto rows = penRows(form);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        try {
            const double factor = rows[i].unit == RowUnit::feed ? feedFactor : 1.0;
            stored.*rows[i].field = toSingle(leadingNumber(texts[i]) * factor);
        } catch (const Overflow&) {
            return i;
        }
    }
    if (form == PenForm::drilling)
        stored.blnPeck = peck;
    stored.blnComplete = isCompleteGroup(stored, form, tools);
    settings = stored;
    return std::nullopt;
}

bool isCompleteGroup(const Settings& settings, PenForm form, const ToolList& tools) {
    if (!isInList(tools, settings.intTool) || !(settings.sngSpindleSpeed > 0) ||
        !(settings.sngFeedVertical > 0))
        return false;
    const bool depths = settings.sngDepth > 0 && settings.sngDepthPerPass > 0;
    if (form == PenForm::drilling)
        return depths || !settings.blnPeck;
    return depths && settings.sngFeedHorizontal > 0 &&
           (!(settings.sngFinalPassDepth > 0) || !finalPassCounts(settings) ||
            settings.sngFeedFinalPass != 0);
}

} // namespace torvik
