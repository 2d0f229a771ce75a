#pragma once
// Runs the built habtool and gathers its output.
#include "support/fixtures.h"

#include <QProcess>
#include <QStringList>

struct HabtoolResult {
    int exitCode = -1;
    QString out;
    QString err;
};

inline HabtoolResult habtool(const QStringList &args)
{
    QProcess p;
    p.start(builtProgramDir() + QStringLiteral("habtool"), args);
    p.waitForFinished(120000);
    HabtoolResult r;
    r.exitCode = p.exitCode();
    r.out = QString::fromUtf8(p.readAllStandardOutput());
    r.err = QString::fromUtf8(p.readAllStandardError());
    return r;
}
