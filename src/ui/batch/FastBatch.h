#pragma once

#include <QObject>
#include <QProcess>
#include <QTemporaryDir>

class QJsonObject;

namespace tavrin {

/// What a fast batch makes its pictures from, by paths; "" for what is not there.
struct FastBatchJob {
    QString foregrounds, backgrounds, states, out, list;
    int style = 1, fileType = 1;
    bool subfolders = false, watch = false;
    bool retryFailed = false;
    std::string recipe;  ///< bytes of the present recipe: what pictures without a state are made with
};

/// The batch of the command line, for the choices of the panel. It is a program of its own: whatever becomes of one
/// of the two takes nothing from the other, it gives way to the window at the processor, and its journal knows what
/// it made when it is killed. First it is asked what it would make, then it makes it.
class FastBatch : public QObject {
    Q_OBJECT

  public:
    explicit FastBatch(QObject* parent = nullptr);
    /// Ends the program if it still runs; the pictures that it has in hand are lost, and made by the next run.
    ~FastBatch() override;

    bool isRunning() const { return process_.state() != QProcess::NotRunning; }
    /// @param onlyLook tell what would be made, and make nothing
    void start(const FastBatchJob& job, bool onlyLook = false);
    /// The pictures in hand are finished.
    void stop();

  signals:
    void planned(const QString& portrait, const QString& picture);
    /// All of it was told.
    void looked(int pictures);
    void made(const QString& portrait, const QString& picture);
    void failed(const QString& portrait, const QString& picture, const QString& reason);
    void skipped();
    void noted(const QString& line);
    /// @param problem why the run broke off; "" when it came to its end, or was stopped
    void ended(const QString& problem);

  private:
    void run(bool dry);
    QStringList arguments(bool dry) const;
    void readLines();
    void readErrors();
    void take(const QJsonObject& line);
    void finish(int code, QProcess::ExitStatus status);

    QProcess process_;
    QTemporaryDir folder_;
    FastBatchJob job_;
    QString lastWords_;  ///< of the error stream
    bool dry_ = false, onlyLook_ = false, stopped_ = false, told_ = false;
    int planned_ = 0, failed_ = 0;
};

}  // namespace tavrin
