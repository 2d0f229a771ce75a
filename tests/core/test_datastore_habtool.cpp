// habtool sql, end to end, and the data store's behaviour when its process
// is killed in the middle of writing.
#include "core/datastore.h"
#include "core/session.h"
#include "support/fixtures.h"
#include "support/habtoolrun.h"

#include <QProcess>
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
