// SPDX-License-Identifier: MIT
#include "tests/reliability/dialog_walker.h"

#include "tools/dialogs/tool_grid.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <array>

namespace torvik {
namespace {

constexpr int dialogsWithoutEnd = 60;
constexpr int longestWait = 60000; // ms

std::string nameOf(const QWidget& widget) {
    return widget.objectName().toStdString();
}

// A dialog's menu by its first entry; one of the window is only looked at.
void leaveMenu(QMenu& menu) {
    if (QApplication::activeModalWidget() != nullptr)
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return})
            QTest::keyClick(&menu, key);
    menu.close();
}

QString inFolder(const std::filesystem::path& file) {
    return QString::fromStdString(file.string());
}

} // namespace

std::vector<QWidget*> usableControls(const QWidget& form) {
    std::vector<QWidget*> controls;
    for (QWidget* const control : form.findChildren<QWidget*>()) {
        const bool isUsed = qobject_cast<QAbstractButton*>(control) != nullptr ||
                            qobject_cast<QLineEdit*>(control) != nullptr ||
                            qobject_cast<QComboBox*>(control) != nullptr;
        if (isUsed && control->isVisible() && control->isEnabled() &&
            !control->objectName().isEmpty() && !control->objectName().startsWith("qt_"))
            controls.push_back(control);
    }
    return controls;
}

std::string typeByChance(QLineEdit& box, Chance& chance) {
    static constexpr std::array<const char*, 6> good{"1", "3", "0.5", "12", "200", "1200"};
    static constexpr std::array<const char*, 18> odd{
        "0", "-1",  "1e9", "99999999999", "1..2", "abc",         "1e400",  "0.001", "-0.5",
        ".", "1,5", " 7 ", "007",         "(x",   "3.40282e+38", "\u00fc", "32767", "-"};
    const int kind = chance.between(1, 10);
    const std::string text = kind <= 5 ? chance.oneOf(good) : kind <= 9 ? chance.oneOf(odd) : "";
    box.setFocus();
    box.selectAll();
    if (text.empty())
        QTest::keyClick(&box, Qt::Key_Delete);
    else if (chance.percent(70))
        for (const QChar letter : QString::fromStdString(text))
            QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(letter), {});
    else
        box.insert(QString::fromStdString(text));
    return "'" + text + "' into " + nameOf(box);
}

DialogWalker::DialogWalker(Chance& chance, Record& record, std::filesystem::path folder,
                           std::function<std::filesystem::path()> drawing)
    : m_chance(chance), m_record(record), m_folder(std::move(folder)),
      m_drawing(std::move(drawing)) {
    qApp->installEventFilter(this);
}

bool DialogWalker::eventFilter(QObject* watched, QEvent* event) {
    auto* const dialog = qobject_cast<QDialog*>(watched);
    if (event->type() == QEvent::Show && dialog != nullptr && dialog->isModal() &&
        qobject_cast<QProgressDialog*>(dialog) == nullptr)
        QTimer::singleShot(0, dialog, [this, dialog] { handle(*dialog); });
    auto* const menu = qobject_cast<QMenu*>(watched);
    if (event->type() == QEvent::Show && menu != nullptr)
        QTimer::singleShot(0, menu, [menu] { leaveMenu(*menu); });
    return false;
}

void DialogWalker::handle(QDialog& dialog) {
    const std::string name = nameOf(dialog);
    m_record.note("  " + name);
    m_record.require(!dialog.windowTitle().isEmpty(), name + " has no title");
    QApplication::setActiveWindow(&dialog);
    if (++m_count < dialogsWithoutEnd)
        work(dialog);
    else if (m_count == dialogsWithoutEnd)
        m_record.fault("dialogs without end");
    if (dialog.isVisible())
        dialog.reject();
    m_record.require(!dialog.isVisible(), name + " cannot be closed");
}

void DialogWalker::work(QDialog& dialog) {
    if (qobject_cast<QMessageBox*>(&dialog) != nullptr)
        answerMessage(dialog);
    else if (!workByName(dialog, dialog.objectName()))
        useByChance(dialog);
}

bool DialogWalker::workByName(QDialog& dialog, const QString& name) {
    if (name == "dlgOpen" || name == "dlgPrepareOpen")
        chooseFile(dialog, m_drawing());
    else if (name == "dlgSave")
        chooseFile(dialog, m_folder / "made");
    else if (name.startsWith("dlg")) // a sheet, a prepared drawing, a folder for drive A:
        chooseFile(dialog, m_folder);
    else if (name == "frmToolSelect")
        chooseTool(dialog);
    else if (name == "frmToolData" && wantsProgram)
        enterTool(dialog);
    else if (name == "frmPrepare")
        prepare(dialog);
    else if (name == "frmOutput" && (wantsProgram || m_chance.percent(50))) {
        QTest::keyClicks(dialog.findChild<QLineEdit*>("txtNumber"), "7");
        press(dialog, "cmdOk");
    } else if (name == "frmDanger" && wantsProgram)
        dialog.accept();
    else if (name == "frmMenu")
        press(dialog, std::array{"cmdOpen", "cmdSave", "cmdClose"}[m_chance.below(3)]);
    else
        return false;
    return true;
}

void DialogWalker::answerMessage(QDialog& dialog) {
    auto& box = static_cast<QMessageBox&>(dialog);
    m_record.note("    " + box.text().toStdString());
    m_record.require(!box.text().trimmed().isEmpty(), "a message without a text");
    QAbstractButton* const yes = box.button(QMessageBox::Yes);
    QAbstractButton* const chosen = wantsProgram && yes != nullptr
                                        ? yes
                                        : box.buttons().at(static_cast<qsizetype>(m_chance.below(
                                              static_cast<std::size_t>(box.buttons().size()))));
    m_record.note("    press " + chosen->text().toStdString());
    chosen->click();
}

void DialogWalker::chooseFile(QDialog& dialog, const std::filesystem::path& file) {
    auto* const box = dialog.findChild<QLineEdit*>("fileNameEdit");
    if (box == nullptr || (!wantsProgram && m_chance.percent(25)))
        return; // it is cancelled
    box->setText(inFolder(file));
    m_record.note("    " + file.filename().string());
    dialog.accept();
}

void DialogWalker::chooseTool(QDialog& dialog) {
    auto& grid = *dialog.findChild<ToolGrid*>("grdTools");
    if (wantsProgram && grid.placeAt(0) == 0)
        press(dialog, "cmdAdd");
    if (!wantsProgram && m_chance.percent(30))
        useByChance(dialog);
    const int tools = grid.gintToolRows;
    if (tools > 0)
        grid.selectRow(static_cast<int>(m_chance.below(static_cast<std::size_t>(tools))));
    press(dialog, wantsProgram || m_chance.percent(80) ? "cmdOk" : "cmdCancel");
}

void DialogWalker::enterTool(QDialog& dialog) {
    const auto type = [&](const char* box, const char* text) {
        auto* const edit = dialog.findChild<QLineEdit*>(box);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, text);
    };
    type("txtToolNumber", "7");
    type("txtToolDiam", "3");
    dialog.findChild<QComboBox*>("cboToolType")->setCurrentIndex(1);
    press(dialog, "cmdOk");
}

void DialogWalker::prepare(QDialog& dialog) {
    const auto* const state = dialog.findChild<QLabel*>("lblState");
    const auto isReady = [&] { return state->text() != QStringLiteral("Preparing…"); };
    m_record.require(QTest::qWaitFor(isReady, longestWait), "the drawing is not prepared");
    if (m_chance.percent(30))
        useByChance(dialog);
    if (m_chance.percent(50))
        return;
    m_record.require(QTest::qWaitFor(isReady, longestWait), "the drawing is not prepared");
    press(dialog, "cmdSave");
}

void DialogWalker::useByChance(QDialog& dialog) {
    for (int i = m_chance.between(1, 8); i > 0 && dialog.isVisible(); --i) {
        const auto controls = usableControls(dialog);
        if (controls.empty())
            return;
        QWidget* const control = m_chance.oneOf(controls);
        const std::string name = nameOf(*control);
        if (auto* const box = qobject_cast<QLineEdit*>(control)) {
            m_record.note("    " + typeByChance(*box, m_chance));
        } else if (auto* const list = qobject_cast<QComboBox*>(control)) {
            list->setCurrentIndex(m_chance.between(0, std::max(0, list->count() - 1)));
        } else if (name != "cmdFolder" && name != "cmdSheetPrint") {
            press(dialog, name.c_str());
        }
    }
}

void DialogWalker::press(QDialog& dialog, const char* name) {
    auto* const button = dialog.findChild<QAbstractButton*>(name);
    if (button == nullptr || !button->isEnabled())
        return;
    m_record.note(std::string("    press ") + name);
    button->click();
}

} // namespace torvik
