// SPDX-License-Identifier: MIT
#include "prepare/files/drawing_files.h"

#include "base/errors.h"
#include "base/files.h"
#include "prepare/svg/svg_source.h"

#include <QSaveFile>
#include <QString>

namespace torvik {
namespace {

bool isPicture(std::string_view fileName) {
    return QString::fromUtf8(fileName.data(), static_cast<qsizetype>(fileName.size()))
        .endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive);
}

} // namespace

SourceDrawing readSource(std::string_view bytes, std::string_view fileName, double roundTurn,
                         const std::map<std::string, int>& colours) {
    if (isPicture(fileName))
        return readSvg(bytes, fileName, {colours});
    HpglSourceOptions options;
    options.roundTurn = roundTurn;
    return readHpgl(bytes, fileName, options);
}

void requireOtherFile(const std::filesystem::path& output, const std::filesystem::path& source) {
    std::error_code error;
    if (std::filesystem::equivalent(output, source, error))
        throw FileError(utf8FromPath(output), "the prepared drawing would replace its own source");
}

void saveDrawing(const std::filesystem::path& output, std::string_view text) {
    QSaveFile file(QString::fromStdString(utf8FromPath(output)));
    const auto size = static_cast<qint64>(text.size());
    // commit() overlooks a disk that is full when it empties the buffer; flush() does not.
    if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), size) != size ||
        !file.flush() || !file.commit())
        throw FileError(utf8FromPath(output),
                        "the file cannot be written: " + file.errorString().toStdString());
}

} // namespace torvik
