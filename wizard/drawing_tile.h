// SPDX-License-Identifier: MIT
// A button that opens a drawing: its picture, and its name beside it.
#pragma once

#include <QPixmap>
#include <QPushButton>

namespace torvik {

class DrawingTile : public QPushButton {
    Q_OBJECT

public:
    static constexpr QSize pictureSize{64, 48}; // pixels

    // The drawing's full name.
    DrawingTile(const QString& drawing, const QImage& picture);

    // Room for the usual name, and for the shortest one that still tells drawings apart; a longer
    // one is shortened in the middle.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize sizeFor(int letters) const;

    QString m_name;
    QPixmap m_picture;
};

} // namespace torvik
