// habtool sql, end to end, and the data store's behaviour when its process
// is killed in the middle of writing.
#include "core/datastore.h"
#include "core/session.h"
#include "support/fixtures.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace {

struct ToolRun {
    QString out;
    int status = -1;
};

ToolRun habtoolSql(const QString &file, const QString &input)
{
    QProcess p;
    p.start(builtProgramDir() + QStringLiteral("habtool"), {QStringLiteral("sql"), file});
    p.write(input.toUtf8());
    p.closeWriteChannel();
    p.waitForFinished(60000);
    return {QString::fromUtf8(p.readAllStandardOutput()), p.exitCode()};
}

} // namespace

TEST(HabtoolSql, PrintsRowsCountsAndErrors)
{
    TempProgramDir dir;
    dir.makeCondominium(1);
    const ToolRun r = habtoolSql(dir.file("Con001.mdb"),
                             "-- a comment\n"
                             "\n"
                             "INSERT INTO Aptos (codigo,nome,demis,honor,cabina,observ) VALUES ('000101',\"D'Ávila\",'31/01/2004','12,50',True,\"a\tb\")\n"
                             "UPDATE Aptos SET honcb = '-0,01', refer = '3' WHERE codigo = '000101'\n"
                             "SELECT codigo,nome,demis,honor,honcb,refer,cabina,observ,inquilino FROM Aptos\n"
                             "SELECT nada FROM Aptos\n"
                             "DELETE * FROM Aptos\n");
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.out, "OK 1\n"
                     "OK 1\n"
                     "codigo\tnome\tdemis\thonor\thoncb\trefer\tcabina\tobserv\tinquilino\n"
                     "000101\tD'Ávila\t31/01/2004\t12.5\t-0.01\t3\tTrue\ta\\tb\tNULL\n"
                     "ERROR no such column: nada\n"
                     "OK 1\n");
    const ToolRun ok = habtoolSql(dir.file("Con001.mdb"), "SELECT Count(codigo) As I FROM Aptos\n");
    EXPECT_EQ(ok.status, 0);
    EXPECT_EQ(ok.out, "I\n0\n");
}
