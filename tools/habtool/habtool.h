#pragma once
// habtool sub-commands register themselves from their own file:
//
//   static const bool registered = registerCommand(
//       "sql", "FILE  < statements", "runs statements in the system's dialect", cmdSql);
//
// A command gets its arguments after its name and returns the exit status.
#include "core/money.h"

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

// ---- Reading the arguments ---------------------------------------------------
// Every number and date a command takes is read here, once. A reader that
// refuses says so on standard error, naming the argument and its text
// ("honor inválido: \"1.2.3,4\" (um valor como 1234,56)"), and returns false;
// the command then ends with kArgumentoInvalido.
constexpr int kArgumentoInvalido = 2;

// Digits with at most one decimal comma or point and one or two decimals:
// "1234,50", "100", "0.5". No sign, no thousands separators.
bool valorBemFormado(const QString &texto);
bool leValor(const QString &nome, const QString &texto, Money &valor);
// Digits only, within min..max.
bool leInteiro(const QString &nome, const QString &texto, int min, int max, int &valor);
bool leMes(const QString &nome, const QString &texto, int &mes);   // 1 to 12
bool leAno(const QString &nome, const QString &texto);             // four digits
bool leData(const QString &nome, const QString &texto, QDate &data);   // dd/mm/yyyy
bool leMesAno(const QString &nome, const QString &texto);          // mm/yyyy
// A user's name as the statements carry it: no apostrophe.
bool leUsuario(const QString &nome, const QString &texto);

// True when the file is there and is a database of the system; otherwise says
// which of the two it is not and leaves the file as it was. Commands that
// open a database file check it first and end with kArgumentoInvalido.
bool bancoPresente(const QString &caminho);
// True when the file is there; otherwise says so.
bool arquivoPresente(const QString &caminho);

// The connection string of a database file named by its path.
QString conexaoDoArquivo(const QString &caminho);
