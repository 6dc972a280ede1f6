// SPDX-License-Identifier: MIT
#include "prepare/svg/svg_lengths.h"

#include <array>

namespace torvik {
namespace {

struct Unit {
    QStringView name;
    double userUnits;
};

constexpr std::array<Unit, 7> units{{{u"mm", 1 / mmPerUserUnit},
                                     {u"cm", 10 / mmPerUserUnit},
                                     {u"in", 96},
                                     {u"pt", 96.0 / 72},
                                     {u"pc", 16},
                                     {u"px", 1},
                                     {u"", 1}}};

} // namespace

std::optional<double> svgLength(QStringView text, double whole) {
    text = text.trimmed();
    qsizetype end = text.size();
    while (end > 0 && (text[end - 1].isLetter() || text[end - 1] == u'%'))
        --end;
    bool isNumber = false;
    const double number = text.first(end).toDouble(&isNumber);
    const QStringView name = text.sliced(end);
    if (!isNumber)
        return {};
    if (name == u"%")
        return number / 100 * whole;
    for (const Unit& unit : units)
        if (name.compare(unit.name, Qt::CaseInsensitive) == 0)
            return number * unit.userUnits;
    return {};
}

} // namespace torvik
