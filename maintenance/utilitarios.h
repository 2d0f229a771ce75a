#pragma once
// The data utilities: safety copies of the installation's database files to
// a folder the user chooses, taken while the program runs; the restore of a
// copy over a condominium's file, which keeps the file it replaces; the
// integrity check; the compaction. See docs/maintenance.md.
#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

struct ArquivoInstalacao {
    int codigo = 0;     // 0: the system file
    QString nome;       // the condominium's name; for the system file "Arquivo do sistema"
    QString arquivo;    // "Con001.mdb"
};

// The system file and the file of each condominium of Clientes that has one,
// in the order of the codes. Reads Con000.mdb.
QList<ArquivoInstalacao> arquivosDaInstalacao(const QString &dir);

// The name of a safety copy: the file, the condominium's name without
// accents and the date, "Con001 Condominio Residencial Jardim das Palmeiras 2008-03-01.mdb".
QString nomeCopia(const ArquivoInstalacao &a, const QDate &data);

// Copies the file of a (in dir) into pasta under nomeCopia, with the online
// copy, so that what forms hold open is copied as they see it. A name that is
// taken gets " (2)", " (3)"...: no copy is ever written over. Returns the
// path written. Throws FalhaArquivo.
QString copiaSeguranca(const QString &dir, const ArquivoInstalacao &a, const QString &pasta, const QDate &data);

// Why the file copia can't be restored, in a sentence for the user; empty
// when it can. Reads the file only.
QString problemaDaCopia(const QString &copia);

// The name under which restauraCopia keeps the file it replaces, in dir:
// "Con001 antes da restauracao 2008-03-01 15.30.12.bak".
QString nomeAntesDaRestauracao(const ArquivoInstalacao &a, const QDateTime &quando);

// Restores copia over the file of a: the file as it stands is first kept in
// dir under nomeAntesDaRestauracao (returned), then the copy's content
// replaces the file's in one step, so that forms that hold it open read the
// copy from then on. The copy is checked first: one that problemaDaCopia
// refuses changes nothing. Throws FalhaArquivo.
QString restauraCopia(const QString &dir, const ArquivoInstalacao &a, const QString &copia, const QDateTime &quando);

// Compacts a file; its sizes before and after, in bytes. Throws FalhaArquivo.
void compactaArquivo(const QString &caminho, qint64 &antes, qint64 &depois);
