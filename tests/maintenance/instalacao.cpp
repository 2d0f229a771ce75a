#include "instalacao.h"

#include "core/datastore.h"
#include "core/schemacatalog.h"
#include "core/session.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

Retrato retrato(const QString &arquivo, const QStringList &tabelas)
{
    QStringList nomes = tabelas;
    if (nomes.isEmpty())
        for (const TableDef &t : SchemaCatalog::instance().tables())
            nomes << t.name;
    Connection cn;
    cn.Open(connectionString(QFileInfo(arquivo).absolutePath() + u'/', QFileInfo(arquivo).fileName(), QString()));
    Retrato r;
    for (const QString &t : nomes) {
        QStringList linhas;
        Recordset rs = cn.Execute(QStringLiteral("SELECT * FROM ") + t);
        const int colunas = int(rs.columnNames().size());
        while (!rs.eof()) {
            QString linha;
            for (int c = 0; c < colunas; ++c)
                linha += (rs.fieldAt(c).isNull() ? QStringLiteral("<null>") : rs.fieldAt(c).text()) + u'\x1f';
            linhas << linha;
            rs.moveNext();
        }
        linhas.sort();
        r[t] = Tabela{long(linhas.size()),
                      QCryptographicHash::hash(linhas.join(u'\n').toUtf8(), QCryptographicHash::Sha1)};
    }
    return r;
}

void copiaPasta(const QString &de, const QString &para)
{
    QDir().mkpath(para);
    for (const QString &f : QDir(de).entryList(QDir::Files)) {
        QFile::remove(para + u'/' + f);
        ASSERT_TRUE(QFile::copy(de + u'/' + f, para + u'/' + f)) << f.toStdString();
    }
}

namespace {
void executa(const QString &dir, const QString &arquivo, const QStringList &comandos)
{
    Connection cn;
    cn.Open(connectionString(dir, arquivo, QString()));
    for (const QString &c : comandos)
        cn.Execute(c);
}
} // namespace

QString instalacaoModelo()
{
    static QTemporaryDir pasta;
    static QString dir;
    if (!dir.isEmpty())
        return dir;
    dir = pasta.path() + QStringLiteral("/modelo/");
    QProcess p;
    p.start(builtProgramDir() + QStringLiteral("mkdemo"), {dir, QStringLiteral("16")});
    p.waitForFinished(120000);
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    QFile::remove(dir + QStringLiteral("habitarium"));  // not needed by the copies each test makes
    QFile::copy(builtProgramDir() + QStringLiteral("Ajustec.mdb"), dir + QStringLiteral("Ajustec.mdb"));
    QFile::setPermissions(dir + QStringLiteral("Ajustec.mdb"), QFile::ReadOwner | QFile::WriteOwner);

    // Condominium 2: the demo's data less some units and with other fees.
    QFile::copy(dir + QStringLiteral("Con001.mdb"), dir + QStringLiteral("Con002.mdb"));
    executa(dir, QStringLiteral("Con002.mdb"),
            {QStringLiteral("DELETE FROM Aptos WHERE codigo LIKE '02%'"),
             QStringLiteral("UPDATE Aptos SET honor = '812.35'"),
             QStringLiteral("UPDATE Parametros SET fnreci = '000777' WHERE codigo = 1")});
    // Condominium 3: rows in the tables the demo leaves empty, so that every
    // table of the list carries something.
    QFile::copy(dir + QStringLiteral("Con001.mdb"), dir + QStringLiteral("Con003.mdb"));
    QStringList linhas;
    for (int ano = 0; ano <= 7; ++ano)
        linhas << QStringLiteral("INSERT INTO Mov0%1 SELECT * FROM Mov08").arg(ano);
    linhas << QStringLiteral("INSERT INTO Conarec (CodAp) VALUES ('010101')")
           << QStringLiteral("INSERT INTO Grupos (codgrupo) VALUES ('01')")
           << QStringLiteral("INSERT INTO MovEnt (datamov) VALUES (#03/01/2008#)")
           << QStringLiteral("INSERT INTO MovSai (datamov) VALUES (#03/02/2008#)")
           << QStringLiteral("INSERT INTO MovRazao (cta) VALUES ('01.001')")
           << QStringLiteral("INSERT INTO Saldini (mesano) VALUES ('01/2008')")
           << QStringLiteral("INSERT INTO RBalancete (codigo) VALUES ('01.')")
           << QStringLiteral("INSERT INTO RPcontas (codigo) VALUES ('01.')")
           << QStringLiteral("INSERT INTO Eventtot (codigo) VALUES ('001')")
           << QStringLiteral("INSERT INTO Usuarios (codigo, nome) VALUES (7, \"Síndico\")");
    executa(dir, QStringLiteral("Con003.mdb"), linhas);
    executa(dir, QStringLiteral("Con000.mdb"),
            {QStringLiteral("INSERT INTO Clientes (codigo, nome) VALUES (2, \"Edifício Solar das Acácias\")"),
             QStringLiteral("INSERT INTO Clientes (codigo, nome) VALUES (3, \"Residencial Vila Rica\")"),
             QStringLiteral("INSERT INTO Clientes (codigo, nome) VALUES (4, \"Condomínio sem arquivo\")"),
             QStringLiteral("INSERT INTO Usuarios (codigo, nome, empat) VALUES (3, \"Carla\", 2)")});
    return dir;
}
