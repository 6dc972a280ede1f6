// SPDX-License-Identifier: MIT
#include "preview/cut/tried_words.h"

#include <QCoreApplication>

namespace torvik {

QString passesText(const TriedGroup& group) {
    const auto words = [](const char* text, const char* note = nullptr) {
        return QCoreApplication::translate("TriedWords", text, note);
    };
    if (group.holes == 0)
        return group.passes == 1 ? words("1 pass") : words("%1 passes").arg(group.passes);
    QString holes =
        group.holes == 1 ? words("1 hole") : words("%1 holes", "how many").arg(group.holes);
    if (group.passes == 1)
        return holes;
    return (group.holes == 1 ? words("%1, %2 pecks") : words("%1 × %2 pecks"))
        .arg(holes)
        .arg(group.passes);
}

} // namespace torvik
