// SPDX-License-Identifier: MIT
// The three heights of the job above the material, seen from the side. The height that is asked for
// stands out, and the tool has come to it. The order of the heights is drawn, not their measure.
#pragma once

#include <QString>
#include <QWidget>

#include <array>

namespace torvik {

class HeightsDiagram : public QWidget {
    Q_OBJECT

public:
    static constexpr std::size_t heightCount = 3;
    using Texts = std::array<QString, heightCount>;

    // The heights' names, the highest first.
    explicit HeightsDiagram(Texts names);

    // What was typed for each, mm; an empty text for nothing.
    void setTyped(const Texts& typed);
    void mark(std::size_t height);
    std::size_t marked() const { return m_marked; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // Where a height lies, 0 the highest and heightCount the material; pixels from the top.
    int level(std::size_t height) const;
    QString textOf(std::size_t height) const;
    void drawMaterial(QPainter& painter) const;
    void drawHeight(QPainter& painter, std::size_t height) const;

    Texts m_names;
    Texts m_typed;
    std::size_t m_marked = 0;
};

} // namespace torvik
