// SPDX-License-Identifier: MIT
// The legend of the piece preview: a disc in each depth's grey with the depth beside it, in rows
// of 24 pixels. It scrolls by whole rows where it has room for one column, else by whole columns,
// so that no number is ever cut off.
#pragma once

#include <QAbstractScrollArea>
#include <QString>

#include <cstdint>
#include <vector>

namespace torvik {

struct DepthList;

class Legend : public QAbstractScrollArea {
public:
    struct Row {
        std::int32_t colour; // 0x00BBGGRR
        QString text;
        Qt::BrushStyle fill = Qt::SolidPattern;
    };

    static constexpr int overhang = 2; // pixels that the lowest disc needs below its row

    explicit Legend(QWidget* parent = nullptr);

    // `shallowest` and `deepest` are the piece's range of depths.
    void setDepths(const DepthList& depths, float shallowest, float deepest);
    void setRows(std::vector<Row> rows);
    void clear();
    const std::vector<Row>& rows() const { return m_rows; }
    // Those in sight, from the top.
    std::vector<Row> rowsInSight() const;

    int rowHeight() const; // pixels
    // The width of one column with its scroll bar, for depths of up to 99.99 mm or what it shows.
    int stripWidth() const;

    QSize minimumSizeHint() const override { return {0, 0}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void paintFocus(QPainter& painter);
    int textWidth() const;
    int columnWidth() const;
    int rowsInColumn() const;
    int columnsInSight() const;
    QScrollBar& bar() const;
    void layOut();

    std::vector<Row> m_rows;
};

} // namespace torvik
