#include "ui/batch/FastBatch.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace tavrin {

namespace {

[[maybe_unused]] constexpr int kNicer = 5;  // so that the window comes first
constexpr int kPatience = 3000;             // milliseconds for a program that is told to end

/// Beside this program, as it is installed; else the one of the path.
QString programFile() {
    const QString beside = QCoreApplication::applicationDirPath() + "/tavrin-cli";
    return QFileInfo(beside).isExecutable() ? beside : QStandardPaths::findExecutable("tavrin-cli");
}

}  // namespace

FastBatch::FastBatch(QObject* parent) : QObject(parent) {
#ifdef Q_OS_UNIX
    process_.setChildProcessModifier([] { static_cast<void>(::nice(kNicer)); });
#endif
    process_.setStandardInputFile(QProcess::nullDevice());
    connect(&process_, &QProcess::readyReadStandardOutput, this, &FastBatch::readLines);
    connect(&process_, &QProcess::readyReadStandardError, this, &FastBatch::readErrors);
    connect(&process_, &QProcess::finished, this, &FastBatch::finish);
    connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            emit ended(tr("The program tavrin-cli cannot be started: %1").arg(process_.errorString()));
    });
}

FastBatch::~FastBatch() {
    process_.disconnect(this);
    if (!isRunning()) return;
    for (int i = 0; i < 2 && isRunning(); ++i) {  // the first one asks, the second one ends it
        process_.terminate();
        process_.waitForFinished(kPatience / 2);
    }
    process_.kill();
    process_.waitForFinished(kPatience);
}

void FastBatch::start(const FastBatchJob& job, bool onlyLook) {
    if (isRunning()) return;
    job_ = job;
    onlyLook_ = onlyLook;
    stopped_ = false;
    planned_ = 0;
    QFile recipe(folder_.filePath("present.recipe"));
    const auto size = static_cast<qint64>(job.recipe.size());
    if (!recipe.open(QFile::WriteOnly) || recipe.write(job.recipe.data(), size) != size || !recipe.flush())
        return void(emit ended(tr("The present settings cannot be handed over: %1").arg(recipe.errorString())));
    recipe.close();
    run(true);
}

void FastBatch::run(bool dry) {
    dry_ = dry;
    told_ = false;
    lastWords_.clear();
    failed_ = 0;
    process_.start(programFile(), arguments(dry));
}

QStringList FastBatch::arguments(bool dry) const {
    QStringList all = {"batch",   "--json", "--recipe", folder_.filePath("present.recipe"),
                       "--names", "",       "--out",    job_.out};
    const QStringList styles = {"combine", "number", "split"}, types = {"jpeg", "png", "tiff"};
    all << "--style" << styles.value(job_.style - 1, styles[0]) << "--type"
        << types.value(job_.fileType - 1, types[0]);
    if (job_.list.isEmpty()) all << "--foregrounds" << job_.foregrounds;
    for (const auto& [option, value] : {std::pair("--list", job_.list), std::pair("--backgrounds", job_.backgrounds),
                                        std::pair("--states", job_.states)})
        if (!value.isEmpty()) all << option << value;
    if (job_.list.isEmpty() && job_.subfolders) all << "--subfolders";
    if (job_.list.isEmpty() && job_.watch && !dry) all << "--watch";
    if (job_.retryFailed) all << "--retry-failed";
    if (dry) all << "--dry-run";
    return all;
}

void FastBatch::stop() {
    stopped_ = true;
    process_.terminate();
}

void FastBatch::readLines() {
    while (process_.canReadLine())
        take(QJsonDocument::fromJson(process_.readLine()).object());
}

/// Most of it is told by the lines, too; the last words tell why a run did not begin.
void FastBatch::readErrors() {
    const QString words = QString::fromUtf8(process_.readAllStandardError()).trimmed().section('\n', -1);
    if (!words.isEmpty()) lastWords_ = words.mid(words.startsWith("tavrin-cli: ") ? 12 : 0);
}

void FastBatch::take(const QJsonObject& line) {
    const QString event = line["event"].toString(), status = line["status"].toString();
    const QString portrait = QFileInfo(line["foreground"].toString()).fileName();
    const QString out = line["out"].toString(), picture = QFileInfo(out).isAbsolute() ? out : job_.out + '/' + out;
    if (event == "end") {
        told_ = true;
    } else if (event == "note") {
        emit noted(line["text"].toString());
    } else if (status == "planned") {
        ++planned_;
        emit planned(portrait, picture);
    } else if (dry_) {
        return;  // what was made before, and what fails, is told by the run
    } else if (status == "done") {
        emit made(portrait, picture);
    } else if (status == "skipped") {
        emit skipped();
    } else if (status == "failed") {
        ++failed_;
        emit failed(portrait, picture, line["reason"].toString());
    }
}

/// A look that went well leads to the run.
void FastBatch::finish(int code, QProcess::ExitStatus status) {
    readLines();
    readErrors();
    if (status == QProcess::CrashExit && !stopped_)
        return void(
            emit ended(tr("The fast batch broke off. What it has made is there; start it again for the "
                          "rest.")));
    if (code != 0 && !told_ && !stopped_) return void(emit ended(lastWords_));  // it could not begin
    if (!dry_ || stopped_) return void(emit ended(code != 0 && failed_ == 0 && !stopped_ ? lastWords_ : QString()));
    emit looked(planned_);
    if (onlyLook_) return void(emit ended({}));
    run(false);
}

}  // namespace tavrin
