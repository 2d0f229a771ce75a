#include "support/fixtures.h"

#include "core/session.h"

#include <QFile>
#include <gtest/gtest.h>

QString builtProgramDir() { return QStringLiteral(HAB_BIN_DIR "/"); }
QString sourceDir() { return QStringLiteral(HAB_SOURCE_DIR "/"); }

static QString conFileName(int code) { return QStringLiteral("Con%1.mdb").arg(code, 3, 10, QLatin1Char('0')); }

TempProgramDir::TempProgramDir()
{
    path_ = dir_.path() + QLatin1Char('/');
    const QString bin = builtProgramDir();
    for (const auto &[from, to] : {std::pair{QStringLiteral("Matrix.mdb"), QStringLiteral("Matrix.mdb")},
                                   std::pair{QStringLiteral("Ajustec.mdb"), QStringLiteral("Con000.mdb")}}) {
        if (!QFile::copy(bin + from, path_ + to))
            ADD_FAILURE() << "não foi possível copiar " << (bin + from).toStdString();
        QFile::setPermissions(path_ + to, QFile::ReadOwner | QFile::WriteOwner);
    }
}

QString TempProgramDir::makeCondominium(int code)
{
    const QString name = conFileName(code);
    QFile::remove(path_ + name);
    if (!QFile::copy(path_ + QStringLiteral("Matrix.mdb"), path_ + name))
        ADD_FAILURE() << "não foi possível criar " << name.toStdString();
    QFile::setPermissions(path_ + name, QFile::ReadOwner | QFile::WriteOwner);
    return connectionString(path_, name, QString());
}

void TempProgramDir::useInSession(int code)
{
    session.sysPath = path_;
    session.dbSenha.clear();
    session.conSistema = connectionString(path_, QStringLiteral("Con000.mdb"), QString());
    if (code >= 0) {
        session.empat = int16_t(code);
        session.arqAtivo = conFileName(code);
        session.conAtiva = connectionString(path_, session.arqAtivo, QString());
    }
}
