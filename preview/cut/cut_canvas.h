// SPDX-License-Identifier: MIT
// The picture of a piece as the program cuts it: zoomed by the wheel about the pointer and by the
// keys + - 0, moved by dragging and by the arrow keys. Always white, whatever the theme.
#pragma once

#include "preview/cut/cut_painting.h"
#include "preview/cut/cut_work.h"
#include "preview/cut/field_painter.h"

#include <QWidget>

#include <memory>
#include <optional>

class QLabel;
class QProgressBar;

namespace torvik {

class CutCanvas : public QWidget {
    Q_OBJECT

public:
    explicit CutCanvas(QWidget* parent = nullptr);

    void setWork(std::shared_ptr<CutWork> work); // nullptr: nothing is shown
    // Shows the piece as it is at the end, or at the moment that the work shows.
    void showMoment(bool moment);
    void momentChanged();
    void setTool(std::optional<CutToolPlace> tool);
    // Marks a move and brings it into sight.
    void chooseMove(std::optional<std::size_t> move);

    const CutShades& shades() const { return m_shades; }
    const CutView& view() const { return m_view; }
    void zoom(double factor);
    void showAll();

    QSize sizeHint() const override { return {560, 420}; }
    QSize minimumSizeHint() const override { return {200, 160}; }

signals:
    void shadesChanged();
    void pointed(const QString& text); // what lies under the pointer, or nothing
    void moveChosen(quint64 move);     // the one that cut what was clicked

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool isReady() const { return m_work && m_work->state() == CutWork::State::ready; }
    const sweep::Field& field() const;
    void workEnded();
    void showProgress(int percent);
    void viewChanged();
    void paintField();
    void paintOver(QPainter& painter);
    // The cell under a pixel, nothing outside the field.
    std::optional<std::size_t> cellAt(QPointF pixel) const;
    QString textAt(QPointF pixel) const;

    std::shared_ptr<CutWork> m_work;
    bool m_showsMoment = false;
    CutView m_view;
    CutShades m_shades;
    CutBillet m_billet;
    FieldPainter m_painter;
    QImage m_image;
    bool m_isStale = true;
    std::optional<CutToolPlace> m_tool;
    std::optional<std::size_t> m_chosen;
    QPointF m_pressed;
    QPointF m_last;
    bool m_isDragged = false;
    QProgressBar* m_progress;
    QLabel* m_nothing;
};

} // namespace torvik
