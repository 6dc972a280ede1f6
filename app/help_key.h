// SPDX-License-Identifier: MIT
// F1 where a dialog waits: the main window's own F1 does not reach there.
#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace torvik {

class HelpKey : public QObject {
public:
    // `show` opens the topic of a control of the dialog.
    explicit HelpKey(std::function<void(const QWidget* control)> show);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void(const QWidget*)> m_show;
};

} // namespace torvik
