// SPDX-License-Identifier: MIT
// The dialog through its own controls: what is shown, what is said, what is saved.
#include "base/files.h"
#include "prepare/dialog/frm_prepare.h"
#include "prepare/files/drawing_files.h"
#include "tests/base/temporary_folder.h"
#include "tests/support/form_walk.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace torvik {
namespace {

// A square drawn in one PD, twice.
const std::string square = "SP1;PU0,0;PD400,0,400,400,0,400,0,0;";

class FrmPrepareTest : public testing::Test {
protected:
    FrmPrepareTest() {
        dialog.show();
        QApplication::setActiveWindow(&dialog);
    }

    template <typename Control>
    Control& find(const char* name) {
        return *dialog.findChild<Control*>(name);
    }
    std::string label(const char* name) {
        return find<QLabel>(name).text().replace(QChar(QChar::Nbsp), u' ').toStdString();
    }
    bool isBusy() { return label("lblState") == "Preparing…"; }
    // What the dialog says when it is done.
    std::string state() {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !isBusy(); }, 20000));
        return label("lblState");
    }
    std::string open(const std::string& name, const std::string& text) {
        source = folder.file(name, text);
        dialog.openSource(source);
        return state();
    }
    std::string openSample(const std::string& name) {
        return open(name, readWholeFile(TORVIK_SAMPLES "/prepare/" + name, 1 << 20));
    }
    std::string report(const std::string& what) {
        auto& table = find<QTableWidget>("grdReport");
        const auto found = table.findItems(QString::fromStdString(what), Qt::MatchExactly);
        return found.empty() ? "" : table.item(found[0]->row(), 1)->text().toStdString();
    }
    bool canSave() { return find<QPushButton>("cmdSave").isEnabled(); }
    // Answers the next file dialog, and gives what it proposed.
    std::string saveAs(const std::filesystem::path& name) {
        std::string proposed;
        QTimer::singleShot(0, &dialog, [&] {
            auto* const files = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(files, nullptr);
            EXPECT_EQ(files->objectName(), "dlgPrepareSave");
            proposed = files->selectedFiles().constFirst().toStdString();
            files->setOption(QFileDialog::DontConfirmOverwrite);
            files->findChild<QLineEdit*>("fileNameEdit")
                ->setText(QString::fromStdString(name.string()));
            QMetaObject::invokeMethod(files, "accept");
            if (files->isVisible())
                files->reject();
        });
        find<QPushButton>("cmdSave").click();
        return proposed;
    }
    std::string written(const std::filesystem::path& name) { return readWholeFile(name, 1 << 20); }
    // Saves what the plain library makes of the same source.
    void expectSaved(const char* what, const PrepareOptions& options = {}) {
        const auto drawing =
            readSource(written(source), source.string(), {.roundTurn = options.roundTurn});
        saveAs(folder.path() / "out.plt");
        EXPECT_EQ(written(folder.path() / "out.plt"), prepareDrawing(drawing, options).text)
            << what;
    }

    TemporaryFolder folder;
    std::filesystem::path source;
    std::string asked;
    QVariantMap kept; // settings
    FrmPrepare dialog{
        {.startFolder = folder.path(),
         .rememberFolder = {},
         .agrees =
             [this](const std::string& question, const std::string&) {
                 asked = question;
                 return false;
             },
         .openResult = [](const auto&) { FAIL(); },
         .helpContext = 20,
         .tools = {{2, QStringLiteral("Slot drill"), 6}},
         .settings = {[this](const QString& key) { return kept.value(key); },
                      [this](const QString& key, const QVariant& value) { kept[key] = value; }}}};
};

TEST_F(FrmPrepareTest, ShowsEachSampleBeforeAndAfterAndSavesIt) {
    const struct {
        const char *name, *state, *before, *after;
    } rows[] = {
        {"plate.plt", "Ready to be saved", "elements", "circles: 5"},
        {"badge.hpgl", "Not carried over: dashed line types (drawn as full lines): 1",
         "134 elements, circles: 1", "14 elements, circles: 3"},
        {"sign.svg", "Not carried over: fills (only the outline is drawn): 2", ", circles: 2",
         ", circles: 2"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(openSample(row.name), row.state);
        EXPECT_TRUE(label("lblBeforeCount").ends_with(row.before)) << row.name;
        EXPECT_TRUE(label("lblAfterCount").ends_with(row.after)) << row.name;
        expectSaved(row.name);
    }
}

TEST_F(FrmPrepareTest, EveryOptionCountsAndPreparesAnewOnceItHasRested) {
    open("drawing.plt", square + square + "PU100,100;PD;PU;");
    const auto number = [this](const char* name, const char* value) {
        auto& box = find<QDoubleSpinBox>(name);
        box.selectAll();
        QTest::keyClicks(&box, value); // with the point, whatever the country
    };
    PrepareOptions options;
    options.optimize = options.dropDuplicates = true;
    find<QCheckBox>("chkDuplicates").click();
    find<QCheckBox>("chkOptimize").click();
    options.tolerance = 0.05;
    options.roundTurn = 12;
    number("txtTolerance", "0.05");
    number("txtRoundTurn", "12");
    EXPECT_FALSE(canSave()) << "what is on show is not what was asked for";
    state();
    expectSaved("fitting and order", options);
    options.scale = 2.5;
    options.mirror = Mirror::upDown;
    options.rotation = 270;
    options.origin = Point{-5, 7.5};
    options.dots = 0.8;
    options.arcs = false;
    number("txtScale", "2.5");
    find<QComboBox>("cboMirror").setCurrentIndex(2);
    find<QComboBox>("cboRotate").setCurrentIndex(3);
    find<QCheckBox>("chkOrigin").click();
    number("txtOriginX", "-5");
    number("txtOriginY", "7.5");
    find<QCheckBox>("chkDots").click();
    number("txtDots", "0.8");
    find<QCheckBox>("chkArcs").click();
    EXPECT_FALSE(canSave()) << "what is on show is not what was asked for";
    state();
    expectSaved("places and dots", options);
    EXPECT_FALSE(find<QWidget>("txtRoundTurn").isEnabled()) << "without arcs it means nothing";
}

TEST_F(FrmPrepareTest, PensAboveEightAreDrawnByThoseThatAreChosen) {
    EXPECT_EQ(open("pens.plt", "SP12;" + square.substr(4) + "SP2;PD40,40;SP9;PD80,40;"),
              "The drawing uses pens above 8 (9, 12). Choose a pen for each in the list of pens.");
    EXPECT_FALSE(canSave());
    EXPECT_EQ(label("lblBeforeCount"), "6 elements") << "it is shown all the same";
    auto& list = find<QTableWidget>("grdPens");
    ASSERT_EQ(list.rowCount(), 3);
    EXPECT_EQ(find<QComboBox>("cboPen0").currentText(), "2 Red");
    EXPECT_EQ(find<QComboBox>("cboPen1").currentText(), "choose…");
    QTest::keyClicks(&find<QComboBox>("cboPen1"), "4");
    EXPECT_EQ(state(),
              "The drawing uses pens above 8 (12). Choose a pen for each in the list of pens.");
    QTest::keyClicks(&find<QComboBox>("cboPen2"), "7");
    EXPECT_EQ(state(), "Ready to be saved");
    EXPECT_TRUE(canSave());
    EXPECT_EQ(report("Pen 4 Blue") + report("Pen 7 Pink"),
              "1 line, 0 arcs, 0 circles4 lines, 0 arcs, 0 circles");
}

TEST_F(FrmPrepareTest, ColoursOfAPictureGoToTheNearestPenOrTheOneChosen) {
    openSample("sign.svg");
    auto& list = find<QTableWidget>("grdPens");
    ASSERT_EQ(list.rowCount(), 4);
    const int row = list.findItems("#1040ff", Qt::MatchExactly).at(0)->row();
    auto& choice = *qobject_cast<QComboBox*>(list.cellWidget(row, 2));
    EXPECT_EQ(choice.currentText(), "4 Blue");
    QTest::keyClicks(&choice, "8");
    state();
    EXPECT_NE(report("Pen 8 Purple"), "");
    EXPECT_EQ(report("Pen 4 Blue"), "");
    EXPECT_EQ(choice.currentText(), "8 Purple") << "the list stays as it was answered";
}

TEST_F(FrmPrepareTest, ACadDrawingIsAskedForItsUnitLayersToolsAndTabs) {
    const auto choose = [this](const char* name, const char* text) {
        auto& box = find<QComboBox>(name);
        ASSERT_TRUE(box.isVisible()) << name;
        box.setCurrentText(QString::fromUtf8(text));
        state();
    };
    std::string cad = readWholeFile(TORVIK_SAMPLES "/prepare/doorplate.dxf", 1 << 20);
    const std::size_t unit = cad.find("$INSUNITS");
    ASSERT_NE(unit, std::string::npos);
    cad.replace(unit, 9, "$NOUNITS_");
    open("plate.dxf", cad);
    EXPECT_EQ(find<QComboBox>("cboPreset").currentText(), "DXF from CAD");
    EXPECT_EQ(label("lblBeforeSize"), "100.00 × 50.00 mm");
    EXPECT_NE(label("lblLegend").find("in the source, not drawn"), std::string::npos);
    choose("cboUnits", "cm");
    EXPECT_EQ(label("lblBeforeSize"), "1000.00 × 500.00 mm");
    choose("cboUnits", "mm");
    choose("cboPenBy", "each layer");
    auto& list = find<QTableWidget>("grdPens");
    ASSERT_EQ(list.rowCount(), 4);
    EXPECT_EQ(list.item(0, 0)->text(), "Layer OUTLINE");
    choose("cboRun0", "outside");
    EXPECT_EQ(label("lblAfterSize"), "Tools: 103.00 × 53.00 mm") << "a tool of 3 mm at first";
    find<QCheckBox>("chkTabs").click();
    state();
    EXPECT_EQ(find<QComboBox>("cboTabsFrom").currentText(), "2 Red");
    EXPECT_EQ(find<QComboBox>("cboTabsTo").currentText(), "5 Brown") << "the first that is free";
    EXPECT_EQ(report("Tabs"), "4");
    saveAs(folder.path() / "out.plt");
    open("other.dxf", cad);
    EXPECT_EQ(find<QComboBox>("cboPenBy").currentText(), "each layer") << "kept when it was saved";
    openSample("badge.hpgl");
    EXPECT_FALSE(find<QComboBox>("cboPenBy").isVisible());
    EXPECT_FALSE(find<QComboBox>("cboUnits").isVisible());
}

TEST_F(FrmPrepareTest, SaysWhatIsWrongAndSavesNothing) {
    EXPECT_NE(open("notes.svg", "no picture at all").find("notes.svg: "), std::string::npos);
    EXPECT_FALSE(canSave());
    EXPECT_EQ(open("dots.plt", "PU1,1;PD;PU;"),
              "The drawing holds nothing but dots; with a diameter they become circles");
    EXPECT_EQ(label("lblAfterCount"), "");
    EXPECT_EQ(find<QTableWidget>("grdReport").rowCount(), 0);
    dialog.openSource(folder.path() / "gone.plt");
    EXPECT_NE(state().find("gone.plt: "), std::string::npos);
    EXPECT_EQ(find<QTableWidget>("grdPens").rowCount(), 0);
    EXPECT_EQ(open("good.plt", square), "Ready to be saved");
    EXPECT_TRUE(canSave());
}

TEST_F(FrmPrepareTest, SavesWhatItShowsUnderTheProposedNameAndStaysWhereItIsNotOpened) {
    open("part.hpgl", square);
    const auto output = folder.path() / "part-torvik.plt";
    EXPECT_EQ(saveAs(output), output.string());
    EXPECT_EQ(asked, "The prepared drawing is saved as\n" + output.string() +
                         "\n\nDo you want to open it now?");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(label("lblState"), "Saved as " + output.string());
}

TEST_F(FrmPrepareTest, AFailedSaveLeavesWhatIsThere) {
    open("part.plt", square);
    saveAs(source);
    EXPECT_EQ(state(), "Not saved. " + source.string() +
                           ": the prepared drawing would replace its own source");
    EXPECT_EQ(written(source), square);
    EXPECT_EQ(asked, "");
    EXPECT_TRUE(canSave()) << "under another name";
}

TEST_F(FrmPrepareTest, ADrawingIsOpenedWhereItIsDropped) {
    const auto drop = [&](const std::filesystem::path& name) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString::fromStdString(name.string()))});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QApplication::sendEvent(&dialog, &enter);
        QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&dialog, &event);
        return enter.isAccepted();
    };
    EXPECT_FALSE(drop(folder.file("notes.txt", "")));
    EXPECT_EQ(label("lblSource"), "");
    EXPECT_TRUE(drop(folder.file("Part.HPG", square)));
    EXPECT_EQ(state() + label("lblSource"), "Ready to be savedPart.HPG");
}

TEST_F(FrmPrepareTest, TheNewestRunWins) {
    std::string many; // an order of which takes many seconds
    for (int i = 0; i < 30000; ++i) {
        const std::string x = std::to_string(i * 7919L % 30011) + ",";
        const std::string y = std::to_string(i * 104729L % 30013);
        many += "PU" + x + y + ";PD" + x + y + "1;";
    }
    open("many.plt", many);
    find<QCheckBox>("chkOptimize").click();
    QTest::qWait(400); // at work by now
    EXPECT_TRUE(isBusy());
    dialog.openSource(folder.file("small.plt", square));
    EXPECT_EQ(state(), "Ready to be saved");
    EXPECT_EQ(label("lblBeforeCount"), "4 elements");
}

TEST_F(FrmPrepareTest, IsReachedByKeysFromTheDrawingsThroughTheOptionsToTheButtons) {
    openSample("plate.plt");
    expectReachable(dialog);
    find<QPushButton>("cmdOpen").setFocus();
    EXPECT_EQ(
        tabOrder(),
        "cmdOpen cboPreset cmdUsual picBefore picAfter cmdFit tabDetailsBar cboPen0 cboRun0 "
        "cboPen1 cboRun1 cboPen2 cboRun2 cboTexts txtTolerance txtRoundTurn chkArcs chkDuplicates "
        "chkOptimize chkInsideFirst txtScale cboMirror cboRotate chkOrigin chkDots chkTabs "
        "cmdSave cmdClose ");
}

} // namespace
} // namespace torvik
