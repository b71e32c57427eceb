// Lays pictures out on one sheet, each with its name below it: picture_sheet OUT.png COLUMNS PICTURE...
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

namespace {

constexpr int kCell = 260, kCaption = 18, kGap = 6;

void drawCell(QPainter& painter, const QPoint& corner, const QString& path) {
    const QImage picture(path);
    if (picture.isNull()) std::fprintf(stderr, "picture_sheet: %s cannot be read.\n", path.toUtf8().constData());
    const QImage fitted = picture.scaled(kCell, kCell, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    painter.drawImage(corner + QPoint((kCell - fitted.width()) / 2, (kCell - fitted.height()) / 2), fitted);
    painter.drawText(QRect(corner + QPoint(0, kCell), QSize(kCell, kCaption)), Qt::AlignCenter,
                     QFileInfo(path).completeBaseName());
}

}  // namespace

int main(int argc, char** argv) {
    const int columns = argc > 3 ? std::atoi(argv[2]) : 0, count = argc - 3;
    if (columns < 1) {
        std::fprintf(stderr, "usage: picture_sheet OUT.png COLUMNS PICTURE...\n");
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const int rows = (count + columns - 1) / columns;
    QImage sheet(std::min(columns, count) * (kCell + kGap) + kGap, rows * (kCell + kCaption + kGap) + kGap,
                 QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    QFont font = painter.font();
    font.setPixelSize(12);
    painter.setFont(font);
    for (int i = 0; i < count; ++i)
        drawCell(painter, {kGap + i % columns * (kCell + kGap), kGap + i / columns * (kCell + kCaption + kGap)},
                 QString::fromLocal8Bit(argv[3 + i]));
    painter.end();
    return sheet.save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
