// SPDX-License-Identifier: MIT
#include "prepare/files/drawing_files.h"

#include "base/errors.h"
#include "base/files.h"
#include "base/text.h"
#include "prepare/dxf/dxf_source.h"
#include "prepare/svg/svg_source.h"

namespace torvik {

SourceDrawing readSource(std::string_view bytes, std::string_view fileName,
                         const SourceOptions& options) {
    const std::string name = lowered(fileName);
    if (name.ends_with(".svg"))
        return readSvg(bytes, fileName, options);
    // The other form of such drawings is told from the one that is read.
    if (name.ends_with(".dxf") || name.ends_with(".dwg"))
        return readDxf(bytes, fileName, options);
    return readHpgl(bytes, fileName, options);
}

void requireOtherFile(const std::filesystem::path& output, const std::filesystem::path& source) {
    std::error_code error;
    if (std::filesystem::equivalent(output, source, error))
        throw FileError(utf8FromPath(output), "the prepared drawing would replace its own source");
}

} // namespace torvik
