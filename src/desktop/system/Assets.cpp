#include "desktop/system/Assets.h"

#include <QDir>

#include "desktop/values/Strings.h"

namespace platform::desktop {

namespace {

const QString& Prefix() {
    static const QString kPrefix = QStringLiteral("zarpi");
    return kPrefix;
}

}  // namespace

void SetAssetFolders(const QStringList& folders) {
    QDir::setSearchPaths(Prefix(), folders);
}

QString AssetPath(TextView name) {
    return Prefix() + ':' + ToQt(name);
}

}  // namespace platform::desktop
