#include "ui/help/guide_folder.h"

#include <QFileInfo>

namespace kirto {

QString GuideFolder(const QString& program_folder) {
    for (const char* place : {"docs/guide", "../share/kirto/guide", "../share/doc/kirto/guide"}) {
        const QFileInfo start(program_folder + "/" + place + "/README.md");
        if (start.isFile()) return QFileInfo(start.canonicalFilePath()).path();
    }
    return {};
}

}  // namespace kirto
