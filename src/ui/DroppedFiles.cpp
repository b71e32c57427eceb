#include "ui/DroppedFiles.h"

#include <QMimeData>
#include <QUrl>

#include "core/files/NameText.h"

namespace tavrin {

QStringList droppedFiles(const QMimeData* data) {
    QStringList files;
    for (const QUrl& url : data->urls()) {
        // The path of a link is written in bytes, which need not be text.
        if (url.isLocalFile())
            files.append(
                textOfName(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString()));
    }
    return files;
}

}  // namespace tavrin
