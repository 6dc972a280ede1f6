// SPDX-License-Identifier: MIT
// A small picture of what a pen page asks for: a groove cut in passes, or a drilled hole, seen from
// the side.
#pragma once

#include "answers/pen_rows.h"

#include <QWidget>

namespace torvik {

class PenDiagram : public QWidget {
public:
    explicit PenDiagram(QWidget* parent = nullptr);

    void setForm(PenForm form);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PenForm m_form = PenForm::cutting;
};

} // namespace torvik
