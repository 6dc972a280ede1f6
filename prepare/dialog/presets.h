// SPDX-License-Identifier: MIT
// The options by the workshop that a drawing comes from. Each preset starts with options of its own
// and remembers what the user made of them; each kind of file remembers its preset.
#pragma once

#include <QStringList>
#include <QVariantMap>

#include <functional>

namespace torvik {

// The program's own settings, as they are handed in.
struct KeptSettings {
    std::function<QVariant(const QString& key)> read;
    std::function<void(const QString& key, const QVariant& value)> save;
};

class Presets {
public:
    explicit Presets(KeptSettings settings) : m_settings(std::move(settings)) {}

    // As they are shown, in a fixed order.
    static QStringList captions();
    // What a preset sets apart from the usual: values by the names of their controls.
    static QVariantMap original(int preset);

    // The preset that was used last for files of this extension.
    int forKind(const QString& extension) const;
    // `usual` holds all options that there are.
    QVariantMap options(int preset, const QVariantMap& usual) const;
    void remember(const QString& extension, int preset, const QVariantMap& options) const;

private:
    KeptSettings m_settings;
};

} // namespace torvik
