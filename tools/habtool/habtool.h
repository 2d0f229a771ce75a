#pragma once
// habtool sub-commands register themselves from their own file:
//
//   static const bool registered = registerCommand(
//       "sql", "FILE  < statements", "runs statements in the system's dialect", cmdSql);
//
// A command gets its arguments after its name and returns the exit status.
#include <QString>
#include <QStringList>
#include <cstdio>

using HabCommand = int (*)(const QStringList &args);

bool registerCommand(const char *name, const char *usage, const char *summary, HabCommand fn);

// Output helpers: UTF-8 on standard output and standard error, '\n' endings.
void out(const QString &line);
void err(const QString &line);
