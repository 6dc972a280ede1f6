// SPDX-License-Identifier: MIT
#include "wizard/output/drive_a.h"

#include "base/errors.h"
#include "base/files.h"
#include "base/whole_file.h"
#include "tools/registry.h"

#include <QFileInfo>
#include <QStorageInfo>

namespace torvik {
namespace {

std::filesystem::path floppyMount() {
#ifdef Q_OS_WIN
    return "a:\\";
#else
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (volume.device().startsWith("/dev/fd"))
            return pathFromUtf8(volume.rootPath().toStdString());
    return {};
#endif
}

} // namespace

std::filesystem::path driveA(const Registry& registry) {
    const std::string folder = registry.strRegistryValueGet(driveASetting, "");
    return folder.empty() ? floppyMount() : pathFromUtf8(folder);
}

bool isDriveReady(const std::filesystem::path& folder) {
    const QString name = QString::fromStdString(utf8FromPath(folder));
    if (name.isEmpty() || !QFileInfo(name).isDir())
        return false;
#ifdef Q_OS_WIN
    // A diskette that is write-protected is told of when the program is written.
    return QStorageInfo(name).isReady();
#else
    // Rights alone do not tell: the disk may be write-protected. The file goes with its object, or,
    // where the program is killed just then, with a later save.
    try {
        const WholeFile probe(folder / ".torvik-probe");
        return true;
    } catch (const FileError&) {
        return false;
    }
#endif
}

} // namespace torvik
