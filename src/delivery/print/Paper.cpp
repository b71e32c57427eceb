#include "delivery/print/Paper.h"

#include <algorithm>
#include <cmath>

#include <QLocale>
#include <QPageSize>
#include <QRegularExpression>

namespace tavrin {

namespace {

constexpr float kPoints = 72.0F, kSheetDpi = 600.0F;

/// In single precision, as the margins always were: sheets lie where they lay.
float marginOf(double paper, int pixels) {
    const float inches = static_cast<float>(paper) / kPoints;
    return std::max(0.0F, (inches - static_cast<float>(pixels) / kSheetDpi) / 2.0F) * kPoints;
}

Paper paperOf(QPageSize::PageSizeId id) {
    const QSizeF points = QPageSize::size(id, QPageSize::Point);
    return {points.width(), points.height(), QPageSize::key(id).toStdString()};
}

std::optional<Paper> measured(const QString& text) {
    static const QRegularExpression form(R"(^([\d.]+)\s*x\s*([\d.]+)\s*(in|cm|mm)?$)",
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) return {};
    const QString unit = match.captured(3).toLower();
    const double points = unit == "cm" ? 72.0 / 2.54 : unit == "mm" ? 72.0 / 25.4 : 72.0;
    const double width = match.captured(1).toDouble() * points, height = match.captured(2).toDouble() * points;
    constexpr double kLeast = 36.0, kMost = 14400.0;  // half an inch, and the largest page of a PDF
    if (width < kLeast || height < kLeast || width > kMost || height > kMost) return {};
    return Paper{width, height,
                 (match.captured(1) + 'x' + match.captured(2) + (unit.isEmpty() ? "in" : unit)).toStdString()};
}

}  // namespace

SheetMargins marginsOn(const Paper& paper, int pixelWidth, int pixelHeight) {
    const float across = marginOf(paper.width, pixelWidth), down = marginOf(paper.height, pixelHeight);
    return {across, across, down, down};
}

/// What is printed has the paper's size in whole points, and shows through the window that the margins leave.
QRectF printedArea(const Paper& paper, const SheetMargins& margins) {
    const double left = margins.left, right = margins.right, top = margins.top, bottom = margins.bottom;
    return {left, bottom, std::min(paper.width - left - right, std::floor(paper.width)),
            std::min(paper.height - top - bottom, std::floor(paper.height))};
}

bool isCutOff(const Paper& paper, int pixelWidth, int pixelHeight) {
    constexpr double kUnseen = 1.0;  // of a point: papers are told in whole ones
    const double points = kPoints / kSheetDpi;
    return pixelWidth * points > paper.width + kUnseen || pixelHeight * points > paper.height + kUnseen;
}

std::optional<Paper> paperOf(const std::string& text) {
    const QString wanted = QString::fromStdString(text).trimmed();
    if (std::optional<Paper> paper = measured(wanted)) return paper;
    for (int id = 0; id < QPageSize::LastPageSize; ++id) {
        const auto size = static_cast<QPageSize::PageSizeId>(id);
        if (size == QPageSize::Custom) continue;
        if (wanted.compare(QPageSize::key(size), Qt::CaseInsensitive) == 0 ||
            wanted.compare(QPageSize::name(size), Qt::CaseInsensitive) == 0)
            return paperOf(size);
    }
    return {};
}

std::string paperName(double width, double height) {
    const QSizeF size(std::min(width, height), std::max(width, height));
    const QPageSize::PageSizeId id = QPageSize::id(size, QPageSize::Point, QPageSize::FuzzyMatch);
    const QString key = QPageSize::key(id);
    if (id != QPageSize::Custom && !key.startsWith("Imperial")) return key.toStdString();  // which say their inches
    return QString("%1x%2in").arg(width / kPoints, 0, 'g', 4).arg(height / kPoints, 0, 'g', 4).toStdString();
}

Paper usualPaper() {
    const bool inches = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return paperOf(inches ? QPageSize::Letter : QPageSize::A4);
}

std::vector<Paper> usualPapers() {
    std::vector<Paper> papers;
    for (const auto id : {QPageSize::A4, QPageSize::A3, QPageSize::A5, QPageSize::A6, QPageSize::Letter,
                          QPageSize::Legal, QPageSize::Tabloid})
        papers.push_back(paperOf(id));
    for (const char* photo : {"4x6in", "5x7in", "8x10in", "10x15cm", "13x18cm"})
        papers.push_back(*measured(photo));
    return papers;
}

}  // namespace tavrin
