#pragma once

#include <sys/resource.h>

#include <QMap>
#include <QProcess>

#include "support/BuildPlaces.h"

namespace tavrin::test {

struct CliOutcome {
    int code = -1;  ///< exit code; -2 when a signal ended it
    QString out, err;
};

/// What a process that has ended or will soon has printed.
inline CliOutcome outcomeOf(QProcess& process) {
    CliOutcome outcome;
    if (!process.waitForFinished(60000)) return outcome;
    outcome.code = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -2;
    outcome.out = QString::fromUtf8(process.readAllStandardOutput());
    outcome.err = QString::fromUtf8(process.readAllStandardError());
    return outcome;
}

/// Calls tavrin-cli as a user does.
/// @param variables of the environment that differ, name and value
inline CliOutcome runCli(const QStringList& arguments, const QMap<QString, QString>& variables = {}) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto entry = variables.begin(); entry != variables.end(); ++entry)
        environment.insert(entry.key(), entry.value());
    process.setProcessEnvironment(environment);
    process.start(kCliProgram, arguments);
    return outcomeOf(process);
}

/// The same with the process held to so many bytes of addresses.
inline CliOutcome runCliWithin(std::size_t bytes, const QStringList& arguments) {
    QProcess process;
    process.setChildProcessModifier([bytes] {
        const rlimit most = {bytes, bytes};
        setrlimit(RLIMIT_AS, &most);
    });
    process.start(kCliProgram, arguments);
    return outcomeOf(process);
}

}  // namespace tavrin::test
