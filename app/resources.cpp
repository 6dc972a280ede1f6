// SPDX-License-Identifier: MIT
#include "app/resources.h"

#include <QIcon>

// Outside every namespace, as the resource compiler wants it.
static void initAppResources() {
    Q_INIT_RESOURCE(app);
}

namespace torvik {

void loadResources() {
    initAppResources();
}

QIcon programIcon() {
    loadResources();
    return QIcon(QStringLiteral(":/torvik.png"));
}

} // namespace torvik
