// SPDX-License-Identifier: MIT
// Fills in and closes each dialog on the way to a save, as somebody does who wants just that.
#pragma once

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QEvent>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

#include <set>
#include <stdexcept>
#include <string>

namespace torvik {

class DialogHands : public QObject {
public:
    DialogHands() { qApp->installEventFilter(this); }

    std::set<std::string> closed; // the names of those that were filled in

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* const dialog = qobject_cast<QDialog*>(watched);
        if (event->type() == QEvent::Show && dialog != nullptr &&
            qobject_cast<QProgressDialog*>(dialog) == nullptr)
            QTimer::singleShot(0, dialog, [this, dialog] { fill(*dialog); });
        return false;
    }

private:
    void fill(QDialog& dialog) {
        const QString name = dialog.objectName();
        if (name == u"frmOutput") {
            dialog.findChild<QLineEdit*>("txtNumber")->setText("1");
            press(dialog, "cmdOk");
        } else if (name == u"frmDanger") {
            dialog.accept();
        } else if (name == u"frmToolSelect") {
            press(dialog, "cmdAdd");
            dialog.findChild<QTableWidget*>()->selectRow(0);
            press(dialog, "cmdOk");
        } else if (name == u"frmToolData") {
            dialog.findChild<QLineEdit*>("txtToolNumber")->setText("77");
            dialog.findChild<QLineEdit*>("txtToolDiam")->setText("4.5");
            dialog.findChild<QComboBox*>("cboToolType")->setCurrentIndex(1);
            press(dialog, "cmdOk");
        }
        if (dialog.isVisible())
            dialog.reject();
        closed.insert(name.toStdString());
    }
    static void press(QDialog& dialog, const char* name) {
        dialog.findChild<QAbstractButton*>(name)->click();
    }
};

} // namespace torvik
