#include "farm/ReportSheet.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include <QImage>
#include <QJsonObject>
#include <QPainter>

#include "core/files/FileIdentity.h"
#include "core/files/NameText.h"
#include "core/image/ImageReader.h"
#include "core/image/ImageWriter.h"
#include "core/text/Fonts.h"
#include "farm/JudgementText.h"
#include "farm/ReportFile.h"
#include "pipeline/SaveImage.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr int kCell = 400, kGap = 12, kLine = 18, kCaption = 4 * kLine, kColumns = 4, kDpi = 100;
constexpr std::size_t kReasons = 3;

struct Entry {
    std::string path, name;
    Judgement judgement;
};

/// Name and number, and the heaviest reasons.
void writeCaption(QPainter& painter, const QRect& cell, const Entry& entry) {
    const QRect first(cell.left(), cell.bottom() + 4, cell.width(), kLine);
    const QString name = painter.fontMetrics().elidedText(textOfName(entry.name), Qt::ElideMiddle, kCell - 50);
    painter.drawText(first, Qt::AlignLeft, name);
    painter.drawText(first, Qt::AlignRight, QString::number(entry.judgement.confidence));
    QString reasons;
    const std::vector<Doubt>& doubts = entry.judgement.doubts;
    for (std::size_t i = 0; i < std::min(doubts.size(), kReasons); ++i)
        reasons += (i == 0 ? "" : "; ") + textOfName(doubts[i].text);
    const QRect below(first.left(), first.bottom() + 1, kCell, kCaption - kLine);
    painter.setClipRect(below);
    painter.drawText(below, Qt::AlignLeft | Qt::TextWordWrap, reasons);
    painter.setClipping(false);
}

/// The place in doubt, one to one; all of the picture, smaller, where it is everywhere.
QImage cutOut(const QImage& picture, const QRect& place) {
    const QRect shown = place & picture.rect();
    const QImage part = shown.isEmpty() ? picture : picture.copy(shown);
    if (part.width() <= kCell && part.height() <= kCell) return part;
    return part.scaled(kCell, kCell, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

/// @return whether the picture could be read
bool drawEntry(QPainter& painter, const QRect& cell, const Entry& entry) {
    painter.fillRect(cell, QColor(225, 225, 225));
    writeCaption(painter, cell, entry);
    const ReadPicture read = isPlainFile(entry.path) ? readPicture(entry.path) : ReadPicture();
    if (read.pixels.isNull()) {
        painter.drawText(cell, Qt::AlignCenter, "This picture is not there any more.");
        return false;
    }
    const QImage part = cutOut(read.pixels, entry.judgement.place);
    painter.drawImage(cell.center() - QPoint(part.width() / 2, part.height() / 2), part);
    return true;
}

/// Draws and saves; `made` says what came of it.
void draw(const std::vector<Entry>& entries, const std::string& out, MadeSheet& made) {
    const int count = static_cast<int>(entries.size()), columns = std::min(count, kColumns);
    const int rows = (count + columns - 1) / columns;
    QImage sheet(columns * (kCell + kGap) + kGap, rows * (kCell + kCaption + kGap) + kGap, QImage::Format_RGBA8888);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    QFont font = painter.font();
    font.setPixelSize(14);
    painter.setFont(font);
    for (int i = 0; i < count; ++i) {
        const QRect cell(kGap + i % columns * (kCell + kGap), kGap + i / columns * (kCell + kCaption + kGap), kCell,
                         kCell);
        if (!drawEntry(painter, cell, entries[static_cast<std::size_t>(i)])) ++made.gone;
    }
    painter.end();
    made.pictures = count;
    if (made.gone == count) {
        made.problem = "None of the pictures is there any more: no sheet was made. --pictures names their folder.";
        return;
    }
    made.problem =
        writePicture(out, {sheet.constBits(), sheet.width(), sheet.height(), fileTypeForPath(out), kDpi, {}});
    if (!made.problem.empty()) made.problem = out + ": " + made.problem + ".";
}

/// The pictures that the report judges, worst first; those of the same number in its order.
std::vector<Entry> entriesOf(const ReportFile& report, const std::string& folder, MadeSheet& made) {
    std::vector<Entry> entries;
    for (const QJsonObject& job : report.jobs) {
        const std::string name = nameOfText(job["out"].toString());
        if (job["status"].toString() == "failed") {
            ++made.failed;
        } else if (std::optional<Judgement> judgement = judgementOf(job); judgement && !name.empty()) {
            entries.push_back({(fs::path(folder) / name).string(), name, std::move(*judgement)});
        }
    }
    std::stable_sort(entries.begin(), entries.end(), [](const Entry& one, const Entry& other) {
        return one.judgement.confidence < other.judgement.confidence;
    });
    return entries;
}

/// Why the sheet may not go to its place; "" when it may.
std::string whyNotTo(const SheetOrder& order, const ReportFile& report, const std::vector<Entry>& entries) {
    if (fileTypeForPath(order.out) == 0)
        return order.out + ": the sheet's name must end in .jpg, .jpeg, .png, .tif or .tiff.";
    std::vector<std::string> named = {order.report};
    for (const Entry& entry : entries)
        named.push_back(entry.path);
    for (const QJsonObject& job : report.jobs) {
        for (const char* key : {"foreground", "background", "state"})
            named.push_back(nameOfText(job[key].toString()));
    }
    for (const std::string& path : named) {
        if (!path.empty() && isSameFile(order.out, path))
            return order.out + " would be written over " + path + "; the sheet needs a name of its own.";
    }
    return "";
}

}  // namespace

MadeSheet drawSheet(const SheetOrder& order) {
    MadeSheet made;
    const ReportFile report = readReport(order.report);
    made.problem = report.problem;
    if (!made.problem.empty()) return made;
    std::string folder = order.folder;
    for (const QJsonObject& head : report.heads) {
        if (folder.empty()) folder = nameOfText(head["folder"].toString());
    }
    if (folder.empty()) {
        made.problem = order.report + " does not say where its pictures lie; --pictures names their folder.";
        return made;
    }
    std::vector<Entry> entries = entriesOf(report, folder, made);
    if (entries.empty()) {
        made.problem = "No picture of " + order.report +
                       " was judged: it is of an older version, or nothing was keyed. --again makes them anew.";
        return made;
    }
    made.problem = whyNotTo(order, report, entries);
    if (made.problem.empty()) made.problem = whyNoFonts();
    if (!made.problem.empty()) return made;
    entries.resize(std::min(entries.size(), static_cast<std::size_t>(std::clamp(order.worst, 1, kMostOnSheet))));
    draw(entries, order.out, made);
    return made;
}

}  // namespace tavrin
