#pragma once
// A habdrive script: one command a line, arguments separated by blanks, an
// argument with blanks in double quotes (\" and \\ inside them).
#include <QList>
#include <QString>
#include <QStringList>

struct Comando {
    int linha = 0;  // from 1, in the script's text
    QString nome;
    QStringList args;
};

// Reads the whole script. Blank lines and lines beginning with '#' are
// skipped. A command that does not exist, a wrong number of arguments, an
// unclosed quote or a number out of range stop the reading: false, with the
// line and the reason.
bool leRoteiro(const QString &texto, QList<Comando> &comandos, int &linhaErro, QString &motivo);

// The key a `key` command names ("Tab", "PgDown", "F5", one character); 0 when none.
int teclaPorNome(const QString &nome);
