// SPDX-License-Identifier: MIT
// A white area that shows its part of an image, pixel for pixel at every scale factor of the
// screen.
#pragma once

#include <QWidget>

#include <functional>

class QImage;

namespace torvik {

class Sheet : public QWidget {
public:
    // Asked for at each paint; a null image leaves the sheet white. A sheet that stands in another
    // one shows the part of the other's image that it covers.
    using ImageSource = std::function<const QImage&()>;

    Sheet(ImageSource image, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ImageSource m_image;
};

} // namespace torvik
