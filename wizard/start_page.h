// SPDX-License-Identifier: MIT
// picOpening, the page of step 1: what the program does, how to begin, the way back to a drawing
// that was left, and the drawings that were opened last and samples, each with its picture.
#pragma once

#include "wizard/drawing_pictures.h"

#include <QWidget>

class QGridLayout;
class QLabel;
class QPushButton;

namespace torvik {

class DropPlace;

class StartPage : public QWidget {
    Q_OBJECT

public:
    StartPage();

    // Offers to continue with the drawing (its full name); none is offered where it is empty.
    void offerDrawing(const QString& drawing);
    // While a drawing is dragged over the window.
    void showDrag(bool isOver);

signals:
    void continueWanted();
    // The drawing's full name.
    void drawingChosen(const QString& drawing);

protected:
    // The drawings are looked up whenever the page comes on show.
    void showEvent(QShowEvent* event) override;

private:
    // Buttons below a heading that is there as long as they are.
    struct Tiles {
        QLabel* heading = nullptr;
        QGridLayout* grid = nullptr;
    };
    Tiles makeTiles(const QString& name, const QString& heading);
    static void clear(const Tiles& tiles);
    void lookUpDrawings();
    void addTile(const Tiles& tiles, const QString& drawing, const QImage& picture);

    QPushButton* m_continue;
    DropPlace* m_drop;
    Tiles m_recent;
    Tiles m_samples;
    DrawingPictures m_pictures;
};

} // namespace torvik
