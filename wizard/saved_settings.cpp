// SPDX-License-Identifier: MIT
#include "wizard/saved_settings.h"

#include "base/error_trap.h"
#include "base/errors.h"
#include "base/files.h"
#include "job/job.h"
#include "tools/tool_list.h"
#include "wizard/saved_answers.h"
#include "wizard/saved_names.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace torvik {
namespace {

// What some editors put before a text in UTF-8.
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::filesystem::path savedFile(const Job& job, const std::filesystem::path& folder) {
    return folder / pathFromUtf8(savedFileName(job.gstrPlotFile));
}

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

SavedOutcome takeFile(Job& job, const ToolList& tools, const std::filesystem::path& file,
                      Logger& logger) {
    std::error_code unknown;
    if (std::filesystem::status(file, unknown).type() == std::filesystem::file_type::not_found)
        return SavedOutcome::none;
    const std::string bytes = readWholeFile(file, maxSavedBytes);
    std::string_view text = bytes;
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    if (!text.empty() && savedDigest(text) != job.gstrDigest)
        return SavedOutcome::digestDiffers;
    takeAnswers(job, parseAnswers(text, answersShape(job), utf8FromPath(file)), tools, logger);
    job.gblnSavedFound = true;
    return SavedOutcome::taken;
}

} // namespace

bool PutSavedData(const Job& job, const ToolList& tools, const std::filesystem::path& folder,
                  Logger& logger) {
    return withErrorTrap(logger, {"PutSavedData", "modHpgl"}, [&] {
        writeWhole(savedFile(job, folder), formatAnswers(answersOfJob(job, tools)));
    });
}

SavedData GetSavedData(Job& job, const ToolList& tools, const std::filesystem::path& folder,
                       Logger& logger) {
    return GetSavedDataFrom(job, tools, savedFile(job, folder), logger);
}

SavedData GetSavedDataFrom(Job& job, const ToolList& tools, const std::filesystem::path& file,
                           Logger& logger) {
    SavedData data;
    withQuietErrorTrap(logger, {"GetSavedData", "modHpgl"}, [&] {
        try {
            job.gstrSavedFile = utf8FromPath(file);
            job.gstrDigest = strDigestFile(pathFromUtf8(job.gstrPlotFile));
            data.outcome = takeFile(job, tools, file, logger);
        } catch (const RunTimeError& error) {
            data = {SavedOutcome::damaged, error.what()};
            throw;
        }
    });
    return data;
}

std::string strDigestFile(const std::filesystem::path& path) {
    QFile file(QString::fromStdString(utf8FromPath(path)));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        raiseFileError(path, "the file cannot be opened", file);
    QCryptographicHash hash(QCryptographicHash::Md5);
    QByteArray block(qsizetype{1} << 16, Qt::Uninitialized);
    qint64 size = 0;
    while ((size = file.read(block.data(), block.size())) > 0)
        hash.addData(QByteArrayView(block.constData(), size));
    if (size < 0)
        raiseFileError(path, "the file cannot be read", file);
    return hash.result().toHex().toStdString();
}

} // namespace torvik
