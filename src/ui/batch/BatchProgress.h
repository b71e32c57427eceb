#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QLabel;
class QProgressBar;

namespace tavrin {

/// How far a run is, and how long it will take by what it did so far.
class BatchProgress : public QWidget {
    Q_OBJECT

  public:
    explicit BatchProgress(QWidget* parent = nullptr);

    /// @param all pictures of the run, as far as that is known
    void begin(int all);
    void setAll(int all);
    /// A picture came to its end.
    void addOne(bool failed);
    void addSkipped() { ++skipped_; }
    /// Shows the sums of the run, in place of the time left.
    void end();
    /// The sums in words.
    QString sums() const;
    int made() const { return ended_ - failed_; }
    int failed() const { return failed_; }

    static QString span(double seconds);

  private:
    void refresh();

    QProgressBar* bar_;
    QLabel* left_;
    QElapsedTimer since_;
    int all_ = 0, ended_ = 0, failed_ = 0, skipped_ = 0;
};

}  // namespace tavrin
