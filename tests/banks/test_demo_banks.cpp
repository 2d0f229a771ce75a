// End to end on the demo installation: mkdemo makes the condominium file,
// habtool runs the remittance and the slip runs on it.
#include "banks/checkdigits.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/session.h"
#include "remessafields.h"
#include "support/habtoolrun.h"
#include "slipcheck.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {
QStringList openReceipts(Connection &con)
{
    QStringList codes;
    for (Recordset rs = con.Execute(QStringLiteral("SELECT codigo FROM Recibos WHERE situacao = 'A' ORDER BY codigo"));
         !rs.eof(); rs.moveNext())
        codes << rs["codigo"].text();
    return codes;
}
} // namespace

TEST(DemoBanks, RemessaAndBarrasOnTheDemoFile)
{
    const QString mkdemo = builtProgramDir() + QStringLiteral("mkdemo");
    if (!QFile::exists(mkdemo))
        GTEST_SKIP() << "mkdemo não foi construído";
    QTemporaryDir dir;
    QProcess make;
    make.start(mkdemo, {dir.path()});
    ASSERT_TRUE(make.waitForFinished(300000));
    ASSERT_EQ(make.exitCode(), 0) << make.readAllStandardError().toStdString();
    const QString file = dir.path() + QStringLiteral("/Con001.mdb");

    Connection con;
    con.Open(connectionString(dir.path() + QStringLiteral("/"), QStringLiteral("Con001.mdb"), QString()));
    const QStringList open = openReceipts(con);
    ASSERT_FALSE(open.isEmpty());

    // The demo's bank is Itaú, wallet 175: the remittance of the open receipts.
    const QString out = dir.path() + QStringLiteral("/ITAU.TXT");
    const HabtoolResult run = habtool({"remessa", file, out, "--data", "01/03/2008"});
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(run.err.contains(QStringLiteral("Arquivo Finalizado, foram gerados ") +
                                 ZeroEsq(QString::number(open.size()), 4)));
    QFile f(out);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray bytes = f.readAll();
    EXPECT_EQ(bytes.size(), (open.size() + 2) * 402);
    QStringList lines = QString::fromLatin1(bytes).split(QStringLiteral("\r\n"));
    lines.removeLast();
    ASSERT_EQ(lines.size(), open.size() + 2);
    expectFields(lines.first(), {{27, 38, "074200045826"}, {77, 94, "341BANCO ITAU SA  "}});
    for (int i = 1; i <= open.size(); ++i) {
        const QString &r = lines[i];
        EXPECT_EQ(r.size(), 400);
        // The condominium has a CNPJ: "102" at 347.
        expectFields(r, {{1, 17, "61074200045826175"}, {45, 50, open[i - 1]}, {347, 349, "102"},
                         {395, 400, ZeroEsq(QString::number(i + 1), 6)}});
    }
    EXPECT_TRUE(lines.last().startsWith(QStringLiteral("9 ")));

    for (Recordset rs = con.Execute(QStringLiteral("SELECT * FROM Recibos WHERE situacao = 'A'")); !rs.eof();
         rs.moveNext()) {
        EXPECT_EQ(rs["codbco"].text(), QStringLiteral("341"));
        EXPECT_EQ(rs["nrbco"].text(), ZeroEsq(rs["codigo"].text(), 8) + rs["nrbco"].text().right(1));
        expectSlipLayout(rs["barrabco"].text(), rs["lindigbco"].text(), QStringLiteral("341"),
                         QStringLiteral("3807"), valorBarra(rs["vtotal"].toMoney()),
                         QStringLiteral("175") + rs["nrbco"].text() + QStringLiteral("0742045826000"));
    }
    // Now every open receipt has a number: nothing left for the default selection.
    EXPECT_EQ(habtool({"remessa", file, out, "--sim"}).exitCode, 1);

    // The same file under Bradesco: "Gerrar Barras" over the open receipts.
    con.Execute(QStringLiteral("UPDATE Parametros Set RBanco = '237', RitauCart = '06', RitauCc = '0045826' "
                               "Where codigo = 1"));
    const HabtoolResult barras = habtool({"barras", file, "--data", "02/03/2008", "--select",
                                          "SELECT * FROM Recibos WHERE situacao = 'A' ORDER BY codigo"});
    EXPECT_EQ(barras.exitCode, 0) << barras.err.toStdString();
    for (Recordset rs = con.Execute(QStringLiteral("SELECT * FROM Recibos WHERE situacao = 'A'")); !rs.eof();
         rs.moveNext()) {
        EXPECT_EQ(rs["codbco"].text(), QStringLiteral("237"));
        EXPECT_EQ(rs["demisbco"].text(), QStringLiteral("02/03/2008"));
        EXPECT_TRUE(rs["nrbco"].text().startsWith(QStringLiteral("06/00000")));
        EXPECT_EQ(rs["barrabco"].text().left(3), QStringLiteral("237"));
        EXPECT_EQ(rs["barrabco"].text().size(), 44);
    }
    con.Close();
}
