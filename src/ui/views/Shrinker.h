#pragma once

#include <QImage>
#include <QObject>
#include <QThreadPool>

namespace tavrin {

/// Makes a picture smaller for the screen on a thread of its own, so that the window never waits for it. Of requests
/// that come meanwhile only the last one is done.
class Shrinker : public QObject {
    Q_OBJECT

  public:
    explicit Shrinker(QObject* parent = nullptr);
    ~Shrinker() override;

    /// Wants this picture at a size in device pixels; `done` follows unless the same is already under work.
    void want(const QImage& picture, QSize size);

  signals:
    /// @param key `cacheKey` of the picture that was wanted
    void done(const QImage& small, qint64 key);

  private:
    void start();

    QThreadPool pool_;
    QImage wanted_;
    QSize size_;
    bool busy_ = false, again_ = false;
};

/// Makes rows [first, last) of a picture anew in a smaller one of the whole of it, which stands for the rest.
/// @param small `Format_ARGB32_Premultiplied`
void shrinkRows(const QImage& picture, int first, int last, QImage& small);

}  // namespace tavrin
