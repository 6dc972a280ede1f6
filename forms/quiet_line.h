// SPDX-License-Identifier: MIT
// A place on a page for what is still missing or does not fit together: short texts, one below the
// other, that come and go while the user types. Long ones are wrapped. Room for some lines is kept,
// so that nothing on the page moves.
#pragma once

#include <QString>
#include <QWidget>

#include <cstdint>
#include <vector>

class QGridLayout;
class QLabel;

namespace torvik {

class QuietLine : public QWidget {
    Q_OBJECT

public:
    enum class Tone : std::uint8_t { plain, warning };
    struct Text {
        QString text;
        Tone tone = Tone::plain;
    };
    using Texts = std::vector<Text>;

    explicit QuietLine(const QString& name, int linesKept = 1);

    // Shows these texts in place of those before.
    void say(const Texts& texts);
    // What it shows, a line for each text.
    QString text() const { return accessibleName(); }

private:
    // A warning is told by its sign and not by its colour alone.
    struct Row {
        QLabel* sign;
        QLabel* label;
    };
    const Row& row(std::size_t place);

    QGridLayout* m_layout;
    std::vector<Row> m_rows;
};

} // namespace torvik
