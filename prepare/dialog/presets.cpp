// SPDX-License-Identifier: MIT
#include "prepare/dialog/presets.h"

#include <QCoreApplication>

#include <array>

namespace torvik {
namespace {

struct Preset {
    const char* key;
    const char* caption;
    const char* kind; // of files that it is for at first
    bool tidiesUp;    // duplicates, order and place, as those drawings need it
};

constexpr std::array<Preset, 4> presets{{
    {"plotter", QT_TRANSLATE_NOOP("Presets", "Plotter drawing"), "plt", false},
    {"picture", QT_TRANSLATE_NOOP("Presets", "Picture from a drawing program"), "svg", false},
    {"cad", QT_TRANSLATE_NOOP("Presets", "DXF from CAD"), "dxf", true},
    {"laser", QT_TRANSLATE_NOOP("Presets", "Laser file from Inkscape"), "", true},
}};

const Preset& presetAt(int preset) {
    return presets[static_cast<std::size_t>(preset)];
}

QString optionKey(int preset, const QString& option) {
    return QStringLiteral("Prepare/%1/%2").arg(QString::fromUtf8(presetAt(preset).key), option);
}

QString kindKey(const QString& extension) {
    return QStringLiteral("Prepare/Preset for ") + extension;
}

} // namespace

QStringList Presets::captions() {
    QStringList captions;
    for (const Preset& preset : presets)
        captions += QCoreApplication::translate("Presets", preset.caption);
    return captions;
}

QVariantMap Presets::original(int preset) {
    if (!presetAt(preset).tidiesUp)
        return {};
    return {{QStringLiteral("chkDuplicates"), true},
            {QStringLiteral("chkOptimize"), true},
            {QStringLiteral("chkOrigin"), true}};
}

int Presets::forKind(const QString& extension) const {
    const QString key =
        m_settings.read ? m_settings.read(kindKey(extension)).toString() : QString();
    int usual = 0;
    for (int i = 0; i < static_cast<int>(presets.size()); ++i) {
        const Preset& preset = presetAt(i);
        if (key == QString::fromUtf8(preset.key))
            return i;
        if (extension == QString::fromUtf8(preset.kind))
            usual = i;
    }
    return usual;
}

QVariantMap Presets::options(int preset, const QVariantMap& usual) const {
    QVariantMap options = usual;
    options.insert(original(preset));
    if (!m_settings.read)
        return options;
    for (auto option = options.begin(); option != options.end(); ++option) {
        QVariant kept = m_settings.read(optionKey(preset, option.key()));
        if (kept.convert(option->metaType()))
            *option = kept;
    }
    return options;
}

void Presets::remember(const QString& extension, int preset, const QVariantMap& options) const {
    if (!m_settings.save)
        return;
    m_settings.save(kindKey(extension), QString::fromUtf8(presetAt(preset).key));
    for (auto option = options.begin(); option != options.end(); ++option)
        m_settings.save(optionKey(preset, option.key()), *option);
}

} // namespace torvik
