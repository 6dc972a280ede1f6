// SPDX-License-Identifier: MIT
// What the dialog does; how it is built stands in frm_prepare_layout.cpp.
#include "prepare/dialog/frm_prepare.h"

#include "base/errors.h"
#include "base/files.h"
#include "base/whole_file.h"
#include "forms/file_choice.h"
#include "forms/taking_out.h"
#include "job/records.h"
#include "languages/shown_text.h"
#include "prepare/dialog/before_after.h"
#include "prepare/dialog/dragged_source.h"
#include "prepare/dialog/option_panel.h"
#include "prepare/dialog/pen_list.h"
#include "prepare/files/drawing_files.h"

#include <QComboBox>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QTableWidget>

#include <algorithm>
#include <set>

namespace torvik {
namespace {

namespace fs = std::filesystem;

QString named(const fs::path& path) {
    return QString::fromStdString(utf8FromPath(path));
}

QString shownLosses(const std::vector<ReportRow>& losses) {
    QStringList shown;
    for (const ReportRow& loss : losses)
        shown += shownText(loss.what) + QStringLiteral(": ") + QString::fromStdString(loss.value);
    return shown.join(QStringLiteral(", "));
}

} // namespace

void FrmPrepare::dragEnterEvent(QDragEnterEvent* event) {
    if (!draggedSource(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void FrmPrepare::dropEvent(QDropEvent* event) {
    const QString name = draggedSource(*event->mimeData());
    if (name.isEmpty())
        return;
    event->acceptProposedAction();
    openSource(pathFromUtf8(name.toStdString()));
}

void FrmPrepare::chooseSource() {
    const fs::path folder = m_source.empty() ? m_surroundings.startFolder : m_source.parent_path();
    QFileDialog dialog(this, tr("Select the drawing to prepare"), named(folder),
                       fileFilter(tr("HPGL, SVG and DXF drawings"), sourceKinds()));
    dialog.setObjectName(QStringLiteral("dlgPrepareOpen"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    const bool chosen = dialog.exec() == QDialog::Accepted;
    if (m_surroundings.rememberFolder)
        m_surroundings.rememberFolder(
            pathFromUtf8(dialog.directory().absolutePath().toStdString()));
    if (chosen)
        openSource(chosenFile(dialog));
}

QString FrmPrepare::kind() const {
    return QFileInfo(named(m_source)).suffix().toLower();
}

void FrmPrepare::takePreset(int preset) {
    const QSignalBlocker quiet(m_preset);
    m_preset->setCurrentIndex(preset);
    m_options->setValues(m_presets.options(preset, m_usualValues));
}

void FrmPrepare::rememberPreset() const {
    m_presets.remember(kind(), m_preset->currentIndex(), m_options->values());
}

void FrmPrepare::openSource(const fs::path& source) {
    m_source = source;
    m_result = {};
    m_options->askForSize(SizeDoubt::none);
    m_options->offerLayers(false);
    takePreset(m_presets.forKind(kind()));
    m_pens->setPens({});
    placePensInTabOrder();
    m_drawings->setHints(tr("Preparing…"), tr("Preparing…"));
    m_drawings->setPictures(nullptr, nullptr);
    showReport({});
    m_sourceName->setText(named(source.filename()));
    m_sourceName->setToolTip(named(source));
    prepareNow();
}

void FrmPrepare::prepareSoon() {
    if (m_source.empty())
        return;
    ++m_run; // what is on its way is no longer what the options say
    m_save->setEnabled(false);
    showState(State::idle, tr("Preparing…"));
    m_rest.start();
}

void FrmPrepare::prepareNow() {
    m_rest.stop();
    m_save->setEnabled(false);
    showState(State::idle, tr("Preparing…"));
    PrepareRequest request{m_source, m_result.bytes, m_options->options(), {}};
    request.sourceOptions = m_options->sourceOptions();
    request.sourceOptions.pens = m_pens->colours();
    if (!request.sourceOptions.byLayer) // the list may still show layers
        std::erase_if(request.sourceOptions.pens,
                      [](const auto& pen) { return pen.first.starts_with(layerMark); });
    request.options.pens = m_pens->pens();
    request.options.beside.runs = m_pens->runs();
    proposeTabs();
    m_work.stop();
    m_work.start([this, request, run = ++m_run](const std::stop_token& stop) mutable {
        request.options.stop = stop;
        auto result = std::make_shared<PrepareResult>(prepareSource(request));
        QMetaObject::invokeMethod(
            this,
            [this, result, run] {
                if (run == m_run)
                    showResult(*result);
            },
            Qt::QueuedConnection);
    });
}

// Tabs hold what is cut out: the part that a tool runs outside of. What cuts it through is a pen
// that draws nothing else.
void FrmPrepare::proposeTabs() {
    const auto runs = m_pens->runs();
    const auto part = std::find_if(runs.begin(), runs.end(), [](const auto& run) {
        return run.second.side == RunSide::outside;
    });
    const std::set<int> used = m_pens->drawnBy();
    int free = 1;
    while (free < penCount && used.contains(free))
        ++free;
    if (part != runs.end())
        m_options->proposeTabs(part->first, free);
}

void FrmPrepare::showResult(const PrepareResult& result) {
    m_result = result;
    if (result.before) {
        m_pens->setPens(result.pens);
        placePensInTabOrder();
        m_options->askForSize(result.sizeDoubt);
        m_options->offerLayers(result.hasLayers);
    }
    const bool isGood = result.error.empty();
    m_drawings->setHints(tr("This file shows no drawing"), tr("No drawing to save"));
    m_drawings->setPictures(result.before, result.after);
    showReport(result.rows);
    if (!isGood)
        showState(State::error, QString::fromStdString(result.error));
    else if (!result.lost.empty())
        showState(State::warning, tr("Not carried over: %1").arg(shownLosses(result.lost)));
    else
        showState(State::good, tr("Ready to be saved"));
    m_save->setEnabled(isGood);
}

void FrmPrepare::showReport(const std::vector<ReportRow>& rows) {
    m_report->setRowCount(static_cast<int>(rows.size()));
    for (int i = 0; i < m_report->rowCount(); ++i) {
        const ReportRow& row = rows[static_cast<std::size_t>(i)];
        m_report->setItem(i, 0, new QTableWidgetItem(shownText(row.what)));
        m_report->setItem(i, 1, new QTableWidgetItem(shownText(row.value)));
    }
    if (!rows.empty())
        m_report->resizeColumnToContents(0);
    m_report->resizeRowsToContents();
}

void FrmPrepare::showState(State state, const QString& text) {
    const auto icon = [&](QStyle::StandardPixmap which) {
        const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
        m_stateIcon->setPixmap(style()->standardIcon(which).pixmap(side));
        m_stateIcon->setAccessibleName(state == State::error ? tr("Error") : tr("Warning"));
    };
    m_stateIcon->setVisible(state == State::warning || state == State::error);
    if (state == State::error)
        icon(QStyle::SP_MessageBoxCritical);
    else if (state == State::warning)
        icon(QStyle::SP_MessageBoxWarning);
    m_state->setText(text);
    m_state->setToolTip(text);
}

void FrmPrepare::save() {
    QFileDialog dialog(this, tr("Save the prepared drawing"), named(m_source.parent_path()),
                       fileFilter(tr("HPGL drawings"), {QStringLiteral("plt")}));
    dialog.setObjectName(QStringLiteral("dlgPrepareSave"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setDefaultSuffix(QStringLiteral("plt"));
    dialog.selectFile(QString::fromStdString(preparedName(utf8FromPath(m_source.filename()))));
    if (dialog.exec() != QDialog::Accepted)
        return;
    const fs::path output = chosenFile(dialog);
    try {
        requireOtherFile(output, m_source);
        saveWhole(output, m_result.text);
    } catch (const FileError& error) {
        showState(State::error, tr("Not saved. %1").arg(QString::fromUtf8(error.what())));
        return;
    }
    rememberPreset();
    QString place = named(output);
    if (const QString takingOut = takingOutText({output}); !takingOut.isEmpty())
        place += u'\n' + takingOut;
    showState(State::good, tr("Saved as %1").arg(place));
    offerToOpen(output, place);
}

void FrmPrepare::offerToOpen(const fs::path& drawing, const QString& place) {
    if (!m_surroundings.agrees || !m_surroundings.openResult ||
        !m_surroundings.agrees(
            tr("The prepared drawing is saved as\n%1\n\nDo you want to open it now?")
                .arg(place)
                .toStdString(),
            tr("Drawing saved").toStdString()))
        return;
    accept();
    m_surroundings.openResult(drawing);
}

} // namespace torvik
