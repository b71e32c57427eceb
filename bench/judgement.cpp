// Whether the program knows when it failed: makes pictures whose alpha is known from cut-outs, one in ten of them
// spoilt as it happens in a studio, runs a batch over them, and tells how many of those whose alpha is far off stand
// among the worst of its report. docs/key-quality.md has the figures.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include "core/raster/Rows.h"
#include "judgement/Shots.h"
#include "quality/AlphaErrors.h"

namespace {

namespace fs = std::filesystem;
using namespace tavrin;

constexpr double kFarOff = 3.0;   // times the middle error
constexpr double kLooked = 0.15;  // part of the pictures that a person looks at

/// What came of a picture. Halves are tuned on (even numbers) and told (odd numbers).
struct Outcome {
    int number = 0;
    double error = 0.0, confidence = 0.0;
    std::string spoiltBy;
    QJsonObject line;
};

std::string nameOf(int number) {
    char name[16];
    std::snprintf(name, sizeof name, "p%04d", number);
    return name;
}

/// Those that are not there yet; all pictures in the list.
void makeShots(const fs::path& folder, const std::string& cutoutFolder, int count) {
    fs::create_directories(folder / "shots");
    fs::create_directories(folder / "truth");
    const std::vector<judgement::Cutout> cutouts = judgement::readCutouts(cutoutFolder);
    std::vector<std::string> jobs(static_cast<std::size_t>(count));
    const std::string backgroundPath = (folder / "background.png").string();
    runRows({}, count, 1, [&](int i) {
        const std::string path = (folder / "shots" / (nameOf(i) + ".jpg")).string();
        const judgement::Shot shot = judgement::takeShot(cutouts, i);
        shot.picture.save(QString::fromStdString(path), "JPEG", 90);
        QImage truth = shot.truth;
        truth.setText("spoilt", shot.spoiltBy);
        truth.save(QString::fromStdString((folder / "truth" / (nameOf(i) + ".png")).string()));
        jobs[static_cast<std::size_t>(i)] = "<image>\n<foreground>" + path + "</foreground>\n<background>" +
                                            backgroundPath + "</background>\n<bluescreenprocessing>" +
                                            (shot.blueSwitch ? "YES" : "NO") + "</bluescreenprocessing>\n</image>\n";
    });
    QImage background(judgement::kWidth, judgement::kHeight, QImage::Format_RGB32);
    background.fill(qRgb(128, 128, 128));
    background.save(QString::fromStdString(backgroundPath));
    std::ofstream list(folder / "list.txt");
    for (const std::string& job : jobs)
        list << job;
}

void runBatch(const fs::path& folder, const std::string& program, const std::vector<std::string>& more) {
    QStringList arguments = {"batch", "--list", QString::fromStdString((folder / "list.txt").string())};
    arguments += {"--out", QString::fromStdString((folder / "out").string()), "--type", "png", "--again", "--quiet"};
    arguments += {"--inches", "8x10", "--dpi", "120", "--place", "corner", "--set", "bOutputTransparency=1"};
    arguments += {"--report", QString::fromStdString((folder / "report.jsonl").string())};
    for (const std::string& argument : more)
        arguments.append(QString::fromStdString(argument));
    QProcess batch;
    batch.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    batch.setStandardOutputFile(QProcess::nullDevice());
    batch.start(QString::fromStdString(program), arguments);
    if (!batch.waitForFinished(-1) || batch.exitCode() != 0) throw std::runtime_error("The batch failed.");
}

Outcome outcomeOf(const fs::path& folder, const QJsonObject& line) {
    Outcome outcome;
    outcome.line = line;
    const std::string name = fs::path(line["foreground"].toString().toStdString()).stem().string();
    outcome.number = std::stoi(name.substr(1));
    const std::string truthPath = (folder / "truth" / (name + ".png")).string();
    const QImage truth = quality::readTruth(truthPath);
    const QImage made =
        QImage(QString::fromStdString((folder / "out" / line["out"].toString().toStdString()).string()))
            .convertToFormat(QImage::Format_RGBA8888);
    if (truth.isNull() || made.size() != truth.size()) throw std::runtime_error(name + ": a picture is missing.");
    outcome.error = quality::measureAlpha(made.constBits(), truth).edges;
    outcome.spoiltBy = QImage(QString::fromStdString(truthPath)).text("spoilt").toStdString();
    outcome.confidence = line["confidence"].toDouble(-1.0);
    return outcome;
}

std::vector<Outcome> readOutcomes(const fs::path& folder) {
    std::vector<Outcome> outcomes;
    std::ifstream report(folder / "report.jsonl");
    for (std::string text; std::getline(report, text);) {
        const QJsonObject line = QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
        if (line["status"].toString() == "done") outcomes.push_back(outcomeOf(folder, line));
    }
    if (outcomes.empty()) throw std::runtime_error("There is no picture in the report.");
    return outcomes;
}

/// Prints how many of the far off ones are among the worst, and which are not.
void tell(const char* title, std::vector<Outcome> outcomes) {
    std::vector<double> errors;
    for (const Outcome& outcome : outcomes)
        errors.push_back(outcome.error);
    std::sort(errors.begin(), errors.end());
    const double middle = errors[errors.size() / 2];
    std::stable_sort(outcomes.begin(), outcomes.end(),
                     [](const Outcome& a, const Outcome& b) { return a.confidence < b.confidence; });
    const auto looked = static_cast<std::size_t>(kLooked * static_cast<double>(outcomes.size()));
    int farOff = 0, found = 0;
    std::vector<const Outcome*> missed;
    for (std::size_t i = 0; i < outcomes.size(); ++i) {
        if (outcomes[i].error <= kFarOff * middle) continue;
        ++farOff;
        if (i < looked)
            ++found;
        else
            missed.push_back(&outcomes[i]);
    }
    std::printf(
        "%s: %zu pictures, middle alpha error near edges %.2f %%; over three times that: %d, of which %d are "
        "among the worst %zu (%.0f %%)\n",
        title, outcomes.size(), middle * 100.0, farOff, found, looked, farOff > 0 ? 100.0 * found / farOff : 100.0);
    for (const Outcome* outcome : missed)
        std::printf("  missed: %s, error %.1f %%, confidence %.0f, %s\n", nameOf(outcome->number).c_str(),
                    outcome->error * 100.0, outcome->confidence,
                    outcome->spoiltBy.empty() ? "not spoilt" : outcome->spoiltBy.c_str());
}

/// A line of JSON a picture, for a closer look.
void writeTable(const fs::path& path, const std::vector<Outcome>& outcomes) {
    std::ofstream table(path);
    for (const Outcome& outcome : outcomes) {
        QJsonObject line = outcome.line;
        line["number"] = outcome.number;
        line["error"] = outcome.error;
        line["spoilt"] = QString::fromStdString(outcome.spoiltBy);
        table << QJsonDocument(line).toJson(QJsonDocument::Compact).toStdString() << '\n';
    }
}

}  // namespace

int main(int count, char** arguments) {
    CLI::App app(
        "Makes pictures with known alpha, runs a batch over them and tells whether it names those that failed");
    std::string folder, cutouts, program = TAVRIN_CLI;
    int pictures = 400;
    std::vector<std::string> more;
    bool made = false;
    app.add_option("folder", folder, "Working folder; what lies in it is replaced")->required();
    app.add_option("cutouts", cutouts, "Folder of cut-outs: X_rgba.png, or X_image with X_alpha.png")->required();
    app.add_option("--pictures", pictures, "How many")->capture_default_str();
    app.add_option("--set", more, "A setting of the batch as field=value")->take_all()->allow_extra_args(false);
    app.add_flag("--made", made, "The pictures are there already");
    CLI11_PARSE(app, count, arguments);
    try {
        std::vector<std::string> settings;
        for (const std::string& set : more) {
            settings.push_back("--set");
            settings.push_back(set);
        }
        if (!made) makeShots(folder, cutouts, pictures);
        runBatch(folder, program, settings);
        const std::vector<Outcome> outcomes = readOutcomes(folder);
        writeTable(fs::path(folder) / "table.jsonl", outcomes);
        std::vector<Outcome> halves[2];
        for (const Outcome& outcome : outcomes)
            halves[outcome.number % 2].push_back(outcome);
        tell("tuned on", halves[0]);
        tell("other half", halves[1]);
        tell("all", outcomes);
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "%s\n", problem.what());
        return 1;
    }
    return 0;
}
