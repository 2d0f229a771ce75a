#pragma once
// habtool sub-commands register themselves from their own file:
//
//   static const bool registered = registerCommand(
//       "sql", "FILE  < statements", "runs statements in the system's dialect", cmdSql);
//
// A command gets its arguments after its name and returns the exit status.
#include <QDate>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <cstdio>

using HabCommand = int (*)(const QStringList &args);

bool registerCommand(const char *name, const char *usage, const char *summary, HabCommand fn);

// Output helpers: UTF-8 on standard output and standard error, '\n' endings.
void out(const QString &line);
void err(const QString &line);

// The arguments of a command: plain ones in order, options that take a value
// ("--data 01/03/2008") and switches ("--sim").
struct Argumentos {
    QStringList posicionais;
    QMap<QString, QString> valores;
    QSet<QString> chaves;
};

// Reads args by the options the command knows; false on any other option, or
// on an option given without its value.
bool leArgumentos(const QStringList &args, const QStringList &comValor, const QStringList &chaves, Argumentos &lidos);

// The date of "--data" (today without it) into data; false, after saying so,
// when the text is no date.
bool leDataGeracao(const Argumentos &a, QDate &data);

// True when the file is there; otherwise says so.
bool arquivoPresente(const QString &caminho);

// The connection string of a database file named by its path.
QString conexaoDoArquivo(const QString &caminho);
