// SPDX-License-Identifier: MIT
#include "answers/put_saved_data.h"

#include "answers/saved_answers.h"
#include "answers/saved_names.h"
#include "base/error_trap.h"
#include "base/errors.h"
#include "base/files.h"
#include "job/job.h"

#include <QDir>
#include <QSaveFile>

namespace torvik {
namespace {

[[noreturn]] void raiseFileError(const std::filesystem::path& path, const char* action,
                                 const QFileDevice& file) {
    throw FileError(utf8FromPath(path), action + (": " + file.errorString().toStdString()));
}

void writeWhole(const std::filesystem::path& path, const std::string& text) {
    const std::filesystem::path folder = path.parent_path();
    if (!QDir().mkpath(QString::fromStdString(utf8FromPath(folder))))
        throw FileError(utf8FromPath(folder), "the folder cannot be created");
    QSaveFile file(QString::fromStdString(utf8FromPath(path)));
    const auto size = static_cast<qint64>(text.size());
    // commit() overlooks a disk that is full when it empties the buffer; flush() does not.
    if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), size) != size ||
        !file.flush() || !file.commit())
        raiseFileError(path, "the answers cannot be saved", file);
}

} // namespace

bool PutSavedData(const Job& job, const ToolList& tools, const std::filesystem::path& folder,
                  Logger& logger) {
    return withErrorTrap(logger, {"PutSavedData", "modHpgl"}, [&] {
        writeWhole(folder / pathFromUtf8(savedFileName(job.drawing.gstrPlotFile)),
                   formatAnswers(answersOfJob(job, tools)));
    });
}

} // namespace torvik
