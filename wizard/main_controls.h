// SPDX-License-Identifier: MIT
// The pages and controls of the main window that its pieces share. The window builds them once and
// owns them as long as it lives.
#pragma once

class QLabel;
class QPushButton;
class QStackedWidget;

namespace torvik {

class ColourTreeView;
class GlobalsPage;
class HeaderPage;
class OrderPage;
class OutputPage;
class PenPage;
class PreviewWidget;
class StartPage;
class StepList;

struct MainControls {
    StepList* steps = nullptr;
    ColourTreeView* tree = nullptr;
    QLabel* importedLabel = nullptr;
    QStackedWidget* pages = nullptr;
    StartPage* opening = nullptr;
    GlobalsPage* globals = nullptr;
    PenPage* pens = nullptr;
    OrderPage* order = nullptr;
    HeaderPage* header = nullptr;
    OutputPage* output = nullptr;
    QStackedWidget* pictures = nullptr; // the preview, and the piece of step 6
    PreviewWidget* preview = nullptr;
    QPushButton* back = nullptr;
    QPushButton* next = nullptr;
    QPushButton* start = nullptr;
};

} // namespace torvik
