#include "support/fixtures.h"

#include "core/datastore.h"
#include "core/scramble.h"
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

void TempProgramDir::execSistema(const QString &sql) const { executaSql(session.conSistema, sql); }
void TempProgramDir::execAtivo(const QString &sql) const { executaSql(session.conAtiva, sql); }
QString TempProgramDir::sistema(const QString &sql) const { return leLinha(session.conSistema, sql); }
QString TempProgramDir::ativo(const QString &sql) const { return leLinha(session.conAtiva, sql); }
void executaSql(const QString &conexao, const QString &sql)
{
    Connection cn;
    cn.Open(conexao);
    cn.Execute(sql);
    cn.Close();
}

static QString textoDaLinha(Recordset &rs)
{
    QStringList campos;
    for (const QString &c : rs.columnNames())
        campos << rs[c].text();
    return campos.join(u'|');
}

QString leLinha(const QString &conexao, const QString &sql)
{
    Connection cn;
    cn.Open(conexao);
    Recordset rs = cn.Execute(sql);
    const QString out = rs.eof() ? QStringLiteral("<nenhum>") : textoDaLinha(rs);
    rs.Close();
    cn.Close();
    return out;
}

QString leLinhas(const QString &conexao, const QString &sql)
{
    Connection cn;
    cn.Open(conexao);
    QString out;
    for (Recordset rs = cn.Execute(sql); !rs.eof(); rs.moveNext())
        out += textoDaLinha(rs) + u'\n';
    cn.Close();
    return out;
}

void insereUsuarios(const TempProgramDir &dir)
{
    const QString insere = QStringLiteral("INSERT INTO Usuarios(codigo,nome,senha,dsenha,impressora,empat,bdcon,bdadi,bdexc,"
                                          "bdalt,cfcon,cfadi,cfexc,cfalt,cfbai) VALUES(%1,\"%2\",\"%3\",'02/01/2008',%4)");
    const QString todos = QStringLiteral(",True").repeated(9).mid(1), nenhum = QStringLiteral(",False").repeated(9).mid(1);
    dir.execSistema(insere.arg(1).arg(QStringLiteral("Maria"), EmbaralhaSenha(QStringLiteral("segredo")), QStringLiteral("'L',1,") + todos));
    dir.execSistema(insere.arg(2).arg(QStringLiteral("Joao"), EmbaralhaSenha(QStringLiteral("abc")), QStringLiteral("'M',0,") + nenhum));
}
