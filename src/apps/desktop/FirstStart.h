#pragma once

#include <functional>

#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// The program that was started first in a session takes the files of later starts. It is known on the session bus by
/// the desktop file's name, and answers what the desktop asks of applications (org.freedesktop.Application). Without
/// a session bus every start is a program of its own.
class FirstStart : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

  public:
    /// Names of files, which need not be text, as links and back.
    static QStringList linksOf(const QStringList& paths);
    static QStringList pathsOf(const QStringList& links);

    /// Becomes the first, or hands the files to it.
    /// @param paths absolute
    /// @param forHost whether another program waits for the first of them
    /// @return true when another program has taken them and this one is to end; one that does not answer takes none
    bool handOver(const QStringList& paths, bool forHost = false);
    /// What to do with the files of later starts, which may be none: the window comes to the front.
    void onOpen(std::function<void(const QStringList& paths, bool forHost)> open);

  public slots:
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& links, const QVariantMap& platformData);
    void ActivateAction(const QString& action, const QVariantList& parameters, const QVariantMap& platformData);

  private:
    void take(const QStringList& paths, const QVariantMap& platformData, bool forHost = false);

    std::function<void(const QStringList&, bool)> open_;
    QStringList waiting_;  ///< that came before there was a window
    bool called_ = false, waitingForHost_ = false;
};
