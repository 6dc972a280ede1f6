// SPDX-License-Identifier: MIT
// A small picture of what a pen page asks for: a groove cut in passes, or a drilled hole, seen from
// the side. It points at what the row with the focus is about, with what was typed there.
#pragma once

#include "answers/pen_rows.h"

#include <QString>
#include <QWidget>

#include <optional>

namespace torvik {

class PenDiagram : public QWidget {
public:
    explicit PenDiagram(QWidget* parent = nullptr);

    void setForm(PenForm form);
    void mark(std::size_t row, const QString& typed);
    void unmark();
    std::optional<std::size_t> marked() const { return m_marked; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PenForm m_form = PenForm::cutting;
    std::optional<std::size_t> m_marked;
    QString m_typed;
};

} // namespace torvik
