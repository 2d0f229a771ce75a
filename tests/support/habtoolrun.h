#pragma once
// Runs the built habtool with arguments (and, if given, text on its standard
// input) and gathers its exit status and output.
#include "support/fixtures.h"

#include <QProcess>
#include <QStringList>

struct HabtoolResult {
    int exitCode = -1;
    QString out;
    QString err;
};

inline HabtoolResult habtool(const QStringList &args, const QString &input = QString())
{
    QProcess p;
    p.start(builtProgramDir() + QStringLiteral("habtool"), args);
    if (!input.isEmpty())
        p.write(input.toUtf8());
    p.closeWriteChannel();
    p.waitForFinished(120000);
    HabtoolResult r;
    r.exitCode = p.exitCode();
    r.out = QString::fromUtf8(p.readAllStandardOutput());
    r.err = QString::fromUtf8(p.readAllStandardError());
    return r;
}
