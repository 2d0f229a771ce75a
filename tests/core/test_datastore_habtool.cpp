// habtool sql, end to end, and the data store's behaviour when its process
// is killed in the middle of writing.
#include "core/datastore.h"
#include "core/session.h"
#include "support/fixtures.h"
#include "support/habtoolrun.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(HabtoolSql, PrintsRowsCountsAndErrors)
{
    TempProgramDir dir;
    dir.makeCondominium(1);
    const HabtoolResult r = habtool({"sql", dir.file("Con001.mdb")},
                                    "-- a comment\n"
                                    "\n"
                                    "INSERT INTO Aptos (codigo,nome,demis,honor,cabina,observ) VALUES ('000101',\"D'Ávila\",'31/01/2004','12,50',True,\"a\tb\")\n"
                                    "UPDATE Aptos SET honcb = '-0,01', refer = '3' WHERE codigo = '000101'\n"
                                    "SELECT codigo,nome,demis,honor,honcb,refer,cabina,observ,inquilino FROM Aptos\n"
                                    "SELECT nada FROM Aptos\n"
                                    "DELETE * FROM Aptos\n");
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_EQ(r.out, "OK 1\n"
                     "OK 1\n"
                     "codigo\tnome\tdemis\thonor\thoncb\trefer\tcabina\tobserv\tinquilino\n"
                     "000101\tD'Ávila\t31/01/2004\t12.5\t-0.01\t3\tTrue\ta\\tb\tNULL\n"
                     "ERROR no such column: nada\n"
                     "OK 1\n");
    const HabtoolResult ok = habtool({"sql", dir.file("Con001.mdb")}, "SELECT Count(codigo) As I FROM Aptos\n");
    EXPECT_EQ(ok.exitCode, 0);
    EXPECT_EQ(ok.out, "I\n0\n");
    // Money beyond the currency fails its own statement; the next one runs.
    const HabtoolResult big = habtool({"sql", dir.file("Con001.mdb")},
                                      "INSERT INTO Aptos (codigo,honor) VALUES ('000102','1')\n"
                                      "UPDATE Aptos SET honor = honor * 1e300\n"
                                      "SELECT honor FROM Aptos\n");
    EXPECT_EQ(big.exitCode, 1);
    EXPECT_EQ(big.out, "OK 1\nERROR Estouro de capacidade\nhonor\n1\n");
}

// Every command that opens a database file refuses a file that is none of the
// system's (an empty one above all) and leaves it as it was; a missing file
// ends with the same status.
TEST(HabtoolConsole, RefusesFilesThatAreNoDatabaseOfTheSystem)
{
    QTemporaryDir dir;
    const QString vazio = dir.filePath("Con001.mdb");
    const QString sumiu = dir.filePath("Con002.mdb");
    QFile(vazio).open(QIODevice::WriteOnly);
    const QList<QStringList> chamadas = {
        {"sql"}, {"atualiza", "06/2008"}, {"balancete", "2008", "3"}, {"pcontas", "2008", "3"}, {"razao", "2008", "3"},
        {"demonstrativo", "1", "3", "2008"}, {"emite"}, {"baixa", "1", "15/03/2003", "Caixa"}, {"recalc"},
        {"eventtot", "WHERE situacao = 'A'"}, {"ajusta", "honor=1"}, {"barras"}, {"remessa", dir.filePath("R.TXT")}};
    for (const QString &arquivo : {vazio, sumiu})
        for (QStringList args : chamadas) {
            args.insert(1, arquivo);
            const HabtoolResult r = habtool(args);
            EXPECT_EQ(r.exitCode, 2) << qPrintable(args.join(u' '));
            EXPECT_TRUE(r.err.contains(arquivo)) << qPrintable(args.join(u' ')) << qPrintable(r.err);
        }
    EXPECT_EQ(QFileInfo(vazio).size(), 0);
    EXPECT_FALSE(QFileInfo::exists(sumiu));
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList{"Con001.mdb"});
}

// Numbers, dates and user names are read once, and what is not well formed is
// refused naming the argument, before anything runs.
TEST(HabtoolConsole, RefusesMalformedArgumentsNamingThem)
{
    TempProgramDir dir;
    dir.makeCondominium(1);
    const QString f = dir.file("Con001.mdb");
    const struct {
        QStringList args;
        const char *nome;
    } casos[] = {
        {{"ajusta", f, "honor=1.2.3,4"}, "honor"},
        {{"ajusta", f, "honcb=12a"}, "honcb"},
        {{"ajusta", f, "normal=32"}, "normal"},
        {{"ajusta", f, "normal=-1"}, "normal"},
        {{"ajusta", f, "apos=99999999999999999999"}, "apos"},
        {{"extenso", "5,"}, "VALOR"},
        {{"extenso", "0,001"}, "VALOR"},
        {{"extenso", "-5"}, "VALOR"},
        {{"extenso", "5", "37", "x"}, "LARGURA2"},
        {{"boleto", "341", "vtotal=1,2,3"}, "vtotal"},
        {{"boleto", "341", "vtotal=99999999999999999999"}, "vtotal"},
        {{"boleto", "341", "dvencto=31/02/2008"}, "dvencto"},
        {{"fator", "1/1/20080"}, "vencimento"},
        {{"atualiza", f, "13/2008"}, "mês"},
        {{"balancete", f, "2008", "0"}, "MESINI"},
        {{"balancete", f, "2008", "3", "2"}, "MESFIN"},
        {{"pcontas", f, "2008", "3x"}, "MES"},
        {{"razao", f, "08", "3"}, "ANO"},
        {{"demonstrativo", f, "3", "3", "2008"}, "MODELO"},
        {{"barras", f, "--recibo", "abc"}, "--recibo"},
        {{"barras", f, "--data", "32/01/2008"}, "--data"},
        {{"baixa", f, "1", "15/13/2003", "Caixa"}, "data"},
        {{"baixa", f, "x", "15/03/2003", "Caixa"}, "NUMERO"},
        {{"baixa", f, "1", "15/03/2003", "Maria D'Ávila"}, "USUARIO"},
        {{"baixa", f, "1", "15/03/2003", "x' OR '1'='1"}, "USUARIO"},
        {{"baixa", f, "1", "--desfaz", "7x"}, "CODIGO"},
    };
    for (const auto &c : casos) {
        const HabtoolResult r = habtool(c.args);
        EXPECT_EQ(r.exitCode, 2) << qPrintable(c.args.join(u' '));
        EXPECT_TRUE(r.err.contains(QString::fromUtf8(c.nome) + QStringLiteral(" inválido: \"")))
            << qPrintable(c.args.join(u' ')) << " -> " << qPrintable(r.err);
        EXPECT_TRUE(r.out.isEmpty()) << qPrintable(c.args.join(u' '));
    }
}

// A process killed while it writes leaves a sound file holding every
// statement that had returned.
TEST(DataStoreReliability, KilledWriterLeavesEveryReturnedStatement)
{
    TempProgramDir dir;
    dir.makeCondominium(3);
    const QString file = dir.file("Con003.mdb");
    QProcess child;
    child.start(builtProgramDir() + QStringLiteral("habtool"), {QStringLiteral("sql"), file});
    ASSERT_TRUE(child.waitForStarted(30000));
    int acknowledged = 0;
    QByteArray pending;
    // Each statement waits for its "OK 1"; the last ones are sent without
    // waiting, so that the kill falls in the middle of writing.
    for (int i = 1; i <= 400; ++i) {
        const QByteArray line = QStringLiteral("INSERT INTO Recibos (codigo,codap,vtotal,obs1) VALUES ('%1','000101','%2,50',\"linha %1\")\n")
                                    .arg(i, 6, 10, QLatin1Char('0'))
                                    .arg(i)
                                    .toUtf8();
        child.write(line);
        if (i > 300)
            continue;
        while (!pending.contains('\n')) {
            ASSERT_TRUE(child.waitForReadyRead(30000)) << "no answer to statement " << i;
            pending += child.readAllStandardOutput();
        }
        const qsizetype nl = pending.indexOf('\n');
        ASSERT_EQ(pending.left(nl), "OK 1");
        pending.remove(0, nl + 1);
        ++acknowledged;
    }
    child.waitForBytesWritten(1000);
    child.kill();  // SIGKILL
    child.waitForFinished(30000);
    EXPECT_EQ(child.exitStatus(), QProcess::CrashExit);

    Connection con;
    con.Open(connectionString(dir.path(), QStringLiteral("Con003.mdb"), QString()));
    EXPECT_EQ(con.Execute("PRAGMA integrity_check").fieldAt(0).text(), "ok");
    const qint64 rows = con.Execute("SELECT Count(codauto) As I FROM Recibos")["I"].toInt();
    EXPECT_GE(rows, acknowledged);
    EXPECT_LE(rows, 400);
    // The rows are whole and in order: every number up to the count is there.
    Recordset rs = con.Execute("SELECT codigo, vtotal, obs1 FROM Recibos WHERE codigo = '000300'");
    ASSERT_FALSE(rs.eof());
    EXPECT_EQ(rs["vtotal"].toMoney(), Money::fromUnits(3005000));
    EXPECT_EQ(rs["obs1"].text(), "linha 000300");
    EXPECT_EQ(con.Execute("SELECT MAX(codauto) as m FROM Recibos")["m"].toInt(), rows);
}
