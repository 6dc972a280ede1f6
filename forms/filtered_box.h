// SPDX-License-Identifier: MIT
// A text box that discards the keys its filter refuses and shows the filter's hint at the box.
// Pasted text stays as it is, with the same hint where a key would have been discarded.
#pragma once

#include "forms/key_filters.h"

#include <QLineEdit>

namespace torvik {

class FilteredBox : public QLineEdit {
    Q_OBJECT

public:
    using Filter = std::string (*)(char32_t character, const BoxState& box);

    explicit FilteredBox(Filter filter, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    // The hint for the first of the characters that the box would discard as it stands.
    QString hintFor(const QString& characters) const;
    void showHint(const QString& hint);

    Filter m_filter;
};

} // namespace torvik
