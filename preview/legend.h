// SPDX-License-Identifier: MIT
// The legend of the piece preview: a disc in each depth's grey with the depth beside it, in rows
// of 24 pixels, further columns where the height is used up.
#pragma once

#include <QString>
#include <QWidget>

#include <cstdint>
#include <vector>

namespace torvik {

struct DepthList;

class Legend : public QWidget {
public:
    struct Row {
        std::int32_t colour; // 0x00BBGGRR
        QString text;
    };

    static constexpr int rowHeight = 24; // pixels
    static constexpr int overhang = 2;   // pixels that the lowest disc needs below its row

    explicit Legend(QWidget* parent = nullptr);

    // `shallowest` and `deepest` are the piece's range of depths.
    void setDepths(const DepthList& depths, float shallowest, float deepest);
    void clear();
    const std::vector<Row>& rows() const { return m_rows; }

    // Lays the rows out for that height, and takes the width that they need.
    void fitHeight(int height);
    // The width of a column for depths of up to 99.99 mm, whatever it shows now.
    int stripWidth() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int columnWidth() const;

    std::vector<Row> m_rows;
    int m_rowsInColumn = 1;
};

} // namespace torvik
