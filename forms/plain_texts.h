// SPDX-License-Identifier: MIT
// Texts are shown as they stand. Names of tools, files and colours come from users, and one that
// looks like markup would be read as such and could make the program load any file.
#pragma once

#include <QObject>

namespace torvik {

// While one lives, labels, tooltips and message boxes show markup as text. A label that is meant to
// have some says so itself, by the text format Qt::RichText.
class PlainTexts : public QObject {
public:
    PlainTexts();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace torvik
