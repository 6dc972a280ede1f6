// SPDX-License-Identifier: MIT
#include "answers/pen_checks.h"

#include "answers/pen_values.h"
#include "base/numbers.h"
#include "base/picture.h"
#include "base/text.h"

#include <cmath>

namespace torvik {
namespace {

constexpr const char* usualFinalPass = "0.15"; // mm

void closeRow(PenBoxes& boxes, std::size_t row) {
    boxes.text[row].clear();
    boxes.enabled[row] = false;
}

// A row that closed during the edit gets back what it held before; an empty one the usual text.
void openRow(PenBoxes& boxes, std::size_t row, const std::optional<PenEdit>& edit,
             const std::string& usual) {
    if (edit && !boxes.enabled[row])
        boxes.text[row] = edit->before[row];
    boxes.enabled[row] = true;
    if (boxes.text[row].empty())
        boxes.text[row] = usual;
}

std::optional<InputFault> relationFault(const PenBoxes& boxes, PenForm form) {
    const auto less = [&](std::size_t row, std::size_t than) {
        return boxNumber(boxes.text[row]) < boxNumber(boxes.text[than]);
    };
    if (form == PenForm::drilling) {
        if (less(rowHoleDepth, rowPeck))
            return InputFault{rowPeck, PenFault::aboveOther, rowHoleDepth};
        return std::nullopt;
    }
    if (less(rowDepth, rowPass))
        return InputFault{rowPass, PenFault::aboveOther, rowDepth};
    if (less(rowPass, rowFinalPass))
        return InputFault{rowFinalPass, PenFault::aboveOther, rowPass};
    return std::nullopt;
}

} // namespace

void followFinalDepth(PenBoxes& boxes, std::size_t index, PenForm form, float feedFactor,
                      const std::optional<PenEdit>& edit) {
    const auto number = [&](std::size_t row) { return boxNumber(boxes.text[row]); };
    const auto feed = [&](double value) { return formatFixed(value, feedDecimals(feedFactor)); };
    const bool cutting = form == PenForm::cutting;
    const double cuttingFeed = number(rowFeed);
    const bool feedFollowed =
        cutting && index == rowFeed && cuttingFeed > 0 && std::isfinite(cuttingFeed);
    if (feedFollowed)
        boxes.text[rowFeedVertical] = feed(cuttingFeed / 4);

    const double depth = number(rowDepth);
    const double pass = number(rowPass);
    if (!(depth > 0 && pass > 0 && pass != depth)) {
        closeRow(boxes, rowFinalPass);
        closeRow(boxes, rowFinalPassFeed);
        return;
    }
    if (!cutting)
        return;
    openRow(boxes, rowFinalPass, edit, usualFinalPass);
    if (number(rowFinalPass) == 0) {
        closeRow(boxes, rowFinalPassFeed);
        return;
    }
    const std::string half = std::isfinite(cuttingFeed) ? feed(cuttingFeed / 2) : "";
    openRow(boxes, rowFinalPassFeed, edit, half);
    if (feedFollowed && edit && boxNumber(edit->before[rowFinalPassFeed]) == 0)
        boxes.text[rowFinalPassFeed] = half;
}

std::optional<std::size_t> firstEmptyRow(const PenBoxes& boxes) {
    for (std::size_t i = 0; i < penRowCount; ++i)
        if (boxes.enabled[i] && boxes.text[i].empty())
            return i;
    return std::nullopt;
}

std::optional<InputFault> inputFault(const PenBoxes& boxes, PenForm form, bool storedPeck) {
    auto rows = penRows(form);
    if (form == PenForm::drilling && !storedPeck)
        rows = rows.first(rowPeck);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!boxes.enabled[i])
            continue;
        if (!boxes.text[i].empty() && !isNumber(trimBlanks(boxes.text[i])))
            return InputFault{i, PenFault::notNumber};
        const double number = boxNumber(boxes.text[i]);
        if (number < 0 && rows[i].mayBeZero)
            return InputFault{i, PenFault::negative};
        if (number <= 0 && !rows[i].mayBeZero)
            return InputFault{i, PenFault::zero};
    }
    return relationFault(boxes, form);
}

} // namespace torvik
