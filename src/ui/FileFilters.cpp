#include "ui/FileFilters.h"

#include <QCoreApplication>
#include <QStringList>

#include "core/image/PictureTypes.h"

namespace tavrin {

namespace {

struct FileFilters {
    Q_DECLARE_TR_FUNCTIONS(FileFilters)
};

QStringList patternsOf(const PictureType& type) {
    QStringList patterns;
    for (const std::string& extension : type.extensions)
        patterns.append("*." + QString::fromStdString(extension));
    return patterns;
}

}  // namespace

QString pictureFilter() {
    QStringList patterns;
    for (const PictureType& type : pictureTypes())
        patterns += patternsOf(type);
    return FileFilters::tr("Pictures (%1)").arg(patterns.join(' '));
}

QString saveFilter() {
    QStringList filters;
    for (const PictureType& type : pictureTypes()) {
        if (type.fileType != 0) filters.append(QString("%1 (%2)").arg(type.name, patternsOf(type).join(' ')));
    }
    return filters.join(";;");
}

QString stateFilter() {
    return FileFilters::tr("State files (*.qlx)");
}

}  // namespace tavrin
