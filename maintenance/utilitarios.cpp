#include "maintenance/utilitarios.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/dbfiles.h"
#include "core/installation.h"
#include "core/session.h"
#include "maintenance/arquivos.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

QString semExtensao(const QString &arquivo) { return QFileInfo(arquivo).completeBaseName(); }

// A name the file systems of the office all take: no accents, none of / \ : * ? " < > |.
QString nomeDeArquivo(const QString &texto)
{
    QString t = SemAcento(texto);
    t.replace(QRegularExpression(QStringLiteral("[/\\\\:*?\"<>|]")), QStringLiteral(" "));
    return t.simplified();
}

} // namespace

QList<ArquivoInstalacao> arquivosDaInstalacao(const QString &dir)
{
    QList<ArquivoInstalacao> arquivos;
    arquivos << ArquivoInstalacao{0, QStringLiteral("Arquivo do sistema"), nomeArquivoCondominio(0)};
    Connection cn;
    cn.ConnectionTimeout = 100;
    cn.Open(connectionString(dir, nomeArquivoCondominio(0), session.dbSenha));
    Recordset rs = cn.Execute(QStringLiteral("SELECT codigo, nome FROM Clientes ORDER BY codigo"));
    while (!rs.eof()) {
        const int codigo = int(rs[QStringLiteral("codigo")].toInt());
        const QString arquivo = nomeArquivoCondominio(codigo);
        if (codigo != 0 && QFileInfo::exists(dir + arquivo))
            arquivos << ArquivoInstalacao{codigo, rs[QStringLiteral("nome")].text().trimmed(), arquivo};
        rs.moveNext();
    }
    return arquivos;
}

QString nomeCopia(const ArquivoInstalacao &a, const QDate &data)
{
    return nomeDeArquivo(semExtensao(a.arquivo) + u' ' + a.nome + u' ' + data.toString(Qt::ISODate))
           + QStringLiteral(".mdb");
}

QString copiaSeguranca(const QString &dir, const ArquivoInstalacao &a, const QString &pasta, const QDate &data)
{
    if (!QFileInfo(pasta).isDir())
        throw FalhaArquivo(kErroArquivoNaoEncontrado, pasta, QStringLiteral("A pasta %1 não existe.").arg(pasta));
    const QString base = QDir(pasta).filePath(nomeCopia(a, data));
    QString destino = base;
    for (int n = 2; QFileInfo::exists(destino); ++n)
        destino = base.left(base.size() - 4) + QStringLiteral(" (%1).mdb").arg(n);
    copiaBancoSegura(dir + a.arquivo, destino);
    return destino;
}

QString problemaDaCopia(const QString &copia)
{
    const QStringList achados = checkDatabase(copia);
    if (achados.isEmpty())
        return QString();
    return QStringLiteral("A cópia %1 não pode ser restaurada: %2").arg(QFileInfo(copia).fileName(), achados.first());
}

QString nomeAntesDaRestauracao(const ArquivoInstalacao &a, const QDateTime &quando)
{
    return semExtensao(a.arquivo) + QStringLiteral(" antes da restauracao ")
           + quando.toString(QStringLiteral("yyyy-MM-dd HH.mm.ss")) + QStringLiteral(".bak");
}

QString restauraCopia(const QString &dir, const ArquivoInstalacao &a, const QString &copia, const QDateTime &quando)
{
    const QString alvo = dir + a.arquivo;
    if (QFileInfo(copia).canonicalFilePath() == QFileInfo(alvo).canonicalFilePath())
        throw FalhaArquivo(kErroAcessoArquivo, a.arquivo,
                           QStringLiteral("A cópia escolhida é o próprio arquivo %1.").arg(a.arquivo));
    const QString problema = problemaDaCopia(copia);
    if (!problema.isEmpty())
        throw FalhaArquivo(kErroAcessoArquivo, QFileInfo(copia).fileName(), problema);
    const QString guardado = dir + nomeAntesDaRestauracao(a, quando);
    copiaBancoSegura(alvo, guardado);
    try {
        backupDatabase(copia, alvo);
    } catch (const DatabaseError &e) {
        throw FalhaArquivo(kErroBanco, a.arquivo, e.message());
    }
    return guardado;
}

void compactaArquivo(const QString &caminho, qint64 &antes, qint64 &depois)
{
    try {
        compactDatabase(caminho, &antes, &depois);
    } catch (const DatabaseError &e) {
        throw FalhaArquivo(kErroBanco, QFileInfo(caminho).fileName(), e.message());
    }
}
