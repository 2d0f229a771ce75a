// mkdb SCHEMA_DIR OUT_DIR: builds Matrix.mdb and Ajustec.mdb in OUT_DIR.
// Every table of the schema goes into both files. schema/common.sql holds the
// rows both carry (Parametros, Padrao, RBalRec, Eventos, Plano) and
// schema/system.sql the rows only the system file carries (Estados, bancos).
// The files are built under a temporary name and renamed at the end, so that
// an interrupted build never leaves a half-made template behind.
#include "core/datastore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>
#include <cstdio>

namespace {

void runFile(Connection &con, const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
        throw DatabaseError(QStringLiteral("não foi possível ler %1").arg(path), QString());
    QTextStream in(&f);
    in.setEncoding(QStringConverter::Utf8);
    while (!in.atEnd()) {
        const QString line = in.readLine().trimmed();
        if (line.isEmpty() || line.startsWith(QStringLiteral("--")))
            continue;
        con.Execute(line);
    }
}

void build(const QString &schemaDir, const QString &outDir, const QString &name, const QStringList &rowFiles)
{
    const QString final = outDir + u'/' + name;
    const QString temp = final + QStringLiteral(".tmp");
    QFile::remove(temp);
    Connection::createFile(temp);
    {
        Connection con;
        con.Open(QStringLiteral("Data Source=") + temp + u';');
        for (const QString &file : rowFiles)
            runFile(con, schemaDir + u'/' + file);
        con.Close();
    }
    QFile::remove(final);
    if (!QFile::rename(temp, final))
        throw DatabaseError(QStringLiteral("não foi possível renomear %1").arg(temp), QString());
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 3) {
        std::fprintf(stderr, "uso: mkdb PASTA_SCHEMA PASTA_SAIDA\n");
        return 2;
    }
    try {
        QDir().mkpath(args[2]);
        build(args[1], args[2], QStringLiteral("Matrix.mdb"), {QStringLiteral("common.sql")});
        build(args[1], args[2], QStringLiteral("Ajustec.mdb"), {QStringLiteral("common.sql"), QStringLiteral("system.sql")});
    } catch (const std::exception &e) {
        std::fprintf(stderr, "mkdb: %s\n", e.what());
        return 1;
    }
    return 0;
}
