#include "maintenance/arquivos.h"

#include "core/dbfiles.h"
#include "core/errors.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

QString nome(const QString &caminho) { return QFileInfo(caminho).fileName(); }

// Flushes what was written to a file, or to a folder's list of names, to the disk.
void sincroniza(const QString &caminho)
{
    const int fd = ::open(QFile::encodeName(caminho).constData(), O_RDONLY);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
}

} // namespace

void substituiArquivo(const QString &de, const QString &para)
{
    if (!QFileInfo::exists(de))
        throw FalhaArquivo(kErroArquivoNaoEncontrado, nome(de),
                           QStringLiteral("Arquivo não encontrado: %1").arg(nome(de)));
    if (std::rename(QFile::encodeName(de).constData(), QFile::encodeName(para).constData()) != 0)
        throw FalhaArquivo(kErroAcessoArquivo, nome(para),
                           QStringLiteral("Não foi possível renomear %1 para %2: %3")
                               .arg(nome(de), nome(para), QString::fromLocal8Bit(std::strerror(errno))));
    sincroniza(QFileInfo(para).absolutePath());
}

void copiaArquivo(const QString &de, const QString &para)
{
    if (!QFileInfo::exists(de))
        throw FalhaArquivo(kErroArquivoNaoEncontrado, nome(de),
                           QStringLiteral("Arquivo não encontrado: %1").arg(nome(de)));
    QFile::remove(para);
    if (!QFile::copy(de, para))
        throw FalhaArquivo(kErroAcessoArquivo, nome(para),
                           QStringLiteral("Não foi possível copiar %1 para %2").arg(nome(de), nome(para)));
    QFile::setPermissions(para, QFile::permissions(para) | QFile::ReadOwner | QFile::WriteOwner);
    sincroniza(para);
}

void removeBanco(const QString &caminho)
{
    for (const char *sufixo : {"-wal", "-shm", "-journal", ""})
        QFile::remove(caminho + QLatin1String(sufixo));
}

bool temDiario(const QString &caminho) { return QFileInfo::exists(caminho + QStringLiteral("-wal")); }

void copiaBancoSegura(const QString &origem, const QString &destino)
{
    const QString temporario = destino + QStringLiteral(".tmp");
    removeBanco(temporario);
    try {
        backupDatabase(origem, temporario);
    } catch (const DatabaseError &e) {
        removeBanco(temporario);
        throw FalhaArquivo(kErroBanco, nome(origem), e.message());
    }
    sincroniza(temporario);
    substituiArquivo(temporario, destino);
}
