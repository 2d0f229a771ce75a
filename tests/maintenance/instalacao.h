#pragma once
// An installation for the maintenance tests: the demo (made once by mkdemo,
// with few units) with two more condominiums, and a picture of the data of a
// database file to compare before and after.
#include "support/fixtures.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <ostream>

// Count and checksum of each table, by table name.
struct Tabela {
    long linhas = 0;
    QByteArray soma;
    bool operator==(const Tabela &o) const { return linhas == o.linhas && soma == o.soma; }
};
using Retrato = QMap<QString, Tabela>;
inline void PrintTo(const Tabela &t, std::ostream *os) { *os << t.linhas << " linhas " << t.soma.toHex().left(8).constData(); }

// The rows of each table (every table of the schema when tabelas is empty),
// whatever their order, through a connection of its own.
Retrato retrato(const QString &arquivo, const QStringList &tabelas = {});

// Copies every file of the folder de into para (made when missing).
void copiaPasta(const QString &de, const QString &para);

// A program directory (with '/') made once for the test program: the demo
// with Con001.mdb, plus Con002.mdb and Con003.mdb made from it and changed,
// the row of a condominium 4 that has no file, and the build's Ajustec.mdb.
QString instalacaoModelo();
