// Open, Execute and Recordset behaviour, the template files, and the file
// left behind by a close.
#include "core/datastore.h"
#include "core/schemacatalog.h"
#include "core/session.h"
#include "core/transaction.h"
#include "support/fixtures.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

TEST(DataStore, OpenReadsTheFileOutOfTheConnectionString)
{
    TempProgramDir dir;
    Connection con;
    EXPECT_EQ(con.State(), 0);
    con.ConnectionTimeout = 100;
    con.Open(connectionString(dir.path(), QStringLiteral("Con000.mdb"), QString()));
    EXPECT_EQ(con.State(), 1);
    EXPECT_EQ(con.filePath(), dir.file("Con000.mdb"));
    con.Close();
    EXPECT_EQ(con.State(), 0);
    // The adjustment's string names no password.
    con.Open(kConnectionPrefix + dir.path() + QStringLiteral("Matrix.mdb;Jet OLEDB;"));
    EXPECT_EQ(con.filePath(), dir.file("Matrix.mdb"));
    con.Close();
    // A missing file fails and is never created.
    Connection missing;
    EXPECT_THROW(missing.Open(connectionString(dir.path(), QStringLiteral("Con042.mdb"), QString())), DatabaseError);
    EXPECT_FALSE(QFile::exists(dir.file("Con042.mdb")));
    EXPECT_EQ(missing.State(), 0);
    EXPECT_THROW(missing.Execute("SELECT * FROM Aptos"), DatabaseError);
    // A file that is no database fails too.
    QFile junk(dir.file("Con043.mdb"));
    ASSERT_TRUE(junk.open(QIODevice::WriteOnly));
    junk.write(QByteArray(4096, 'x'));
    junk.close();
    EXPECT_THROW(missing.Open(connectionString(dir.path(), QStringLiteral("Con043.mdb"), QString())), DatabaseError);
}

TEST(DataStore, RecordsetsWalkRowsAndReachFieldsByName)
{
    TempProgramDir dir;
    Connection con;
    con.Open(dir.makeCondominium(1));
    Recordset fwd = con.Execute("SELECT codigo,nome FROM Eventos ORDER BY codigo");
    EXPECT_EQ(fwd.State(), 1);
    EXPECT_EQ(fwd.recordCount(), -1);  // forward-only
    EXPECT_EQ(fwd["CODIGO"].text(), "001");
    fwd.moveNext();
    EXPECT_EQ(fwd["codigo"].text(), "002");
    EXPECT_THROW(fwd["valor"], DatabaseError);   // not in the column list
    fwd.moveFirst();
    EXPECT_EQ(fwd["codigo"].text(), "001");

    Recordset ks;
    ks.Open("SELECT * FROM Eventos", con, 1, 2);
    EXPECT_EQ(ks.recordCount(), 15);
    long seen = 0;
    while (!ks.eof()) {
        ++seen;
        ks.moveNext();
    }
    EXPECT_EQ(seen, 15);
    EXPECT_THROW(ks.moveNext(), DatabaseError);
    EXPECT_THROW(ks["codigo"], DatabaseError);   // no current record at EOF
    ks.Close();
    EXPECT_EQ(ks.State(), 0);

    // A write gives a closed recordset and the rows affected.
    long n = -1;
    Recordset none = con.Execute("UPDATE Eventos SET valor = '1,5' WHERE tipo = 'H'", &n);
    EXPECT_EQ(none.State(), 0);
    EXPECT_EQ(n, 2);
    // A recordset is a snapshot: later statements do not disturb it.
    Recordset snap = con.Execute("SELECT * FROM Eventos WHERE tipo = 'H'");
    con.Execute("DELETE FROM Eventos");
    EXPECT_EQ(snap["nome"].text(), "Taxa Condominial");
    // Two tables that give one name: the qualified name picks each.
    con.Execute("INSERT INTO Aptos (codauto,codigo,nome) VALUES (7,'000101',\"Ana\")");
    con.Execute("INSERT INTO Mobra (codigo,nome,codemap,tipo) VALUES (1,\"Zé\",7,'A')");
    Recordset join = con.Execute(
        "SELECT Mobra.*,Aptos.Nome FROM Mobra INNER JOIN Aptos ON Mobra.CodEmAp = Aptos.Codauto WHERE Mobra.codigo = 1");
    ASSERT_FALSE(join.eof());
    EXPECT_EQ(join["mobra.nome"].text(), "Zé");
    EXPECT_EQ(join["Aptos.nome"].text(), "Ana");
}

TEST(DataStore, FieldsConvertAsTheFormsExpect)
{
    TempProgramDir dir;
    Connection con;
    con.Open(dir.makeCondominium(1));
    con.Execute("INSERT INTO Aptos (codigo,nome,demis,honor,refer,cabina,diavcto) "
                "VALUES ('000101',\"Ana\",'31/01/2004','1234,5','0,25',True,10)");
    Recordset rs = con.Execute("SELECT * FROM Aptos");
    EXPECT_EQ(rs["demis"].text(), "31/01/2004");
    EXPECT_EQ(rs["demis"].kind(), ColumnKind::Date);
    EXPECT_EQ(rs["honor"].text(), "1234,5");
    EXPECT_EQ(rs["honor"].toMoney(), Money::fromUnits(12345000));
    EXPECT_EQ(rs["refer"].toDouble(), 0.25);
    EXPECT_EQ(rs["cabina"].text(), "Verdadeiro");
    EXPECT_TRUE(rs["cabina"].toBool());
    EXPECT_EQ(rs["diavcto"].toInt(), 10);
    EXPECT_EQ(rs["codauto"].kind(), ColumnKind::Counter);
    EXPECT_TRUE(rs["ufpro"].isNull());               // never written
    EXPECT_EQ(rs["ufpro"].text(), "");
    EXPECT_EQ(rs["honcb"].toMoney(), Money());        // numbers start at 0
    EXPECT_FALSE(rs["quitado"].toBool());
    // Counters never reuse a number.
    con.Execute("DELETE FROM Aptos");
    con.Execute("INSERT INTO Aptos (codigo) VALUES ('000102')");
    EXPECT_EQ(con.Execute("SELECT codauto FROM Aptos")["codauto"].toInt(), 2);
}

TEST(DataStore, FailingStatementsCarryTheEngineMessageAndTheText)
{
    TempProgramDir dir;
    Connection con;
    con.Open(dir.makeCondominium(1));
    try {
        con.Execute("SELECT nada FROM Aptos");
        FAIL() << "no error";
    } catch (const DatabaseError &e) {
        EXPECT_TRUE(e.message().contains("nada"));
        EXPECT_EQ(e.statement(), "SELECT nada FROM Aptos");
    }
    EXPECT_THROW(con.Execute("SELECT * FROM Inexistente"), DatabaseError);
    EXPECT_THROW(con.Execute("UPDATE Aptos SET nome = 'sem fim"), DatabaseError);
    // The connection goes on working after a failure.
    EXPECT_EQ(con.Execute("SELECT Count(codigo) As I FROM Plano")["I"].toInt(), 35);
}

TEST(DataStore, ATransactionKeepsAStepWholeOrNotAtAllAndSendsNoText)
{
    TempProgramDir dir;
    const QString file = dir.makeCondominium(1);
    Connection con;
    con.Open(file);
    auto codigos = [&] {
        QStringList c;
        for (Recordset rs = con.Execute("SELECT codigo FROM Aptos ORDER BY codigo"); !rs.eof(); rs.moveNext())
            c << rs["codigo"].text();
        return c.join(u',');
    };
    QStringList heard;
    const StatementListener before = setStatementListener([&](const QString &sql) { heard << sql; });
    {
        Transaction step(con);
        con.Execute("INSERT INTO Aptos (codigo,nome) VALUES ('000101',\"Ana 😀 Ávila\")");
        step.commit();
    }
    // A failing statement rolls back what its step had written; the error goes on up.
    auto failingPair = [&] {
        Transaction pair(con);
        con.Execute("INSERT INTO Aptos (codigo) VALUES ('000102')");
        con.Execute("INSERT INTO Aptos (codigo,demis) VALUES ('000103','não é data')");
        pair.commit();
    };
    EXPECT_THROW(failingPair(), DatabaseError);
    setStatementListener(before);
    EXPECT_EQ(heard.size(), 3);  // the statements only, none of the transaction's
    EXPECT_EQ(codigos(), "000101");
    EXPECT_EQ(con.Execute("SELECT nome FROM Aptos WHERE nome LIKE '%Ávila'")["nome"].text(), "Ana 😀 Ávila");
    // Nested: an inner step rolled back leaves the outer one's work.
    {
        Transaction outer(con);
        con.Execute("INSERT INTO Aptos (codigo) VALUES ('000104')");
        { Transaction inner(con); con.Execute("INSERT INTO Aptos (codigo) VALUES ('000105')"); }
        outer.commit();
    }
    EXPECT_EQ(codigos(), "000101,000104");
    // Until the commit the file holds the state before the step.
    {
        Transaction cut(con);
        con.Execute("DELETE FROM Aptos");
        Connection other;
        other.Open(file);
        EXPECT_EQ(other.Execute("SELECT Count(codigo) AS I FROM Aptos")["I"].toInt(), 2);
    }
    EXPECT_EQ(codigos(), "000101,000104");
}

TEST(Templates, HoldEveryTableAndTheirStartingRows)
{
    TempProgramDir dir;
    for (const QString &file : {QStringLiteral("Matrix.mdb"), QStringLiteral("Con000.mdb")}) {
        Connection con;
        con.Open(connectionString(dir.path(), file, QString()));
        for (const TableDef &t : SchemaCatalog::instance().tables()) {
            QStringList cols;
            for (const ColumnDef &c : t.columns)
                cols << c.name;
            EXPECT_NO_THROW(con.Execute(QStringLiteral("SELECT %1 FROM %2").arg(cols.join(u','), t.name)))
                << file.toStdString() << " " << t.name.toStdString();
        }
        Recordset p = con.Execute("SELECT * FROM Parametros Where Codigo = 1");
        ASSERT_FALSE(p.eof());
        EXPECT_EQ(p["fnreci"].text(), "000000");
        EXPECT_FALSE(con.Execute("SELECT * FROM Padrao Where Codigo = 1").eof());
        EXPECT_FALSE(con.Execute("SELECT * FROM RBalRec Where codigo = 1").eof());
        EXPECT_EQ(con.Execute("SELECT Count(codigo) As I FROM Eventos")["I"].toInt(), 15);
        EXPECT_EQ(con.Execute("SELECT Count(codigo) As I FROM Plano WHERE codigo LIKE '__.'")["I"].toInt(), 7);
        EXPECT_EQ(con.Execute("SELECT Count(codigo) As I FROM Clientes")["I"].toInt(), 0);
        EXPECT_EQ(con.Execute("SELECT Count(codigo) As I FROM Usuarios")["I"].toInt(), 0);
        EXPECT_EQ(con.Execute("SELECT Count(codigo) As I FROM Aptos")["I"].toInt(), 0);
    }
    Connection sys;
    sys.Open(connectionString(dir.path(), QStringLiteral("Con000.mdb"), QString()));
    EXPECT_EQ(sys.Execute("SELECT Count(UF) As I FROM Estados")["I"].toInt(), 27);
    EXPECT_FALSE(sys.Execute("SELECT UF FROM Estados Where UF = 'SP'").eof());
    for (int bank : {1, 104, 151, 237, 341, 353, 409, 422})
        EXPECT_FALSE(sys.Execute(QStringLiteral("SELECT nome FROM bancos WHERE codigo = %1").arg(bank)).eof()) << bank;
    // Every column of the budget, January 2002 to December 2008.
    EXPECT_NO_THROW(sys.Execute("SELECT po0201, po0812 FROM Plano"));
}

TEST(DataStore, AClosedFileIsOneFileThatCanBeCopiedRenamedAndDeleted)
{
    TempProgramDir dir;
    const QString file = dir.file("Con005.mdb");
    {
        Connection a, b;
        a.Open(dir.makeCondominium(5));
        b.Open(connectionString(dir.path(), QStringLiteral("Con005.mdb"), QString()));
        a.Execute("INSERT INTO Aptos (codigo,nome) VALUES ('000101',\"Ana\")");
        EXPECT_FALSE(b.Execute("SELECT * FROM Aptos").eof());
        a.Close();
        b.Close();
    }
    const QStringList left = QDir(dir.path()).entryList({QStringLiteral("Con005*")}, QDir::Files);
    EXPECT_EQ(left, QStringList{QStringLiteral("Con005.mdb")});
    ASSERT_TRUE(QFile::copy(file, dir.file("Seg11005.bak")));
    ASSERT_TRUE(QFile::remove(file));
    ASSERT_TRUE(QFile::rename(dir.file("Seg11005.bak"), dir.file("Con006.mdb")));
    Connection c;
    c.Open(connectionString(dir.path(), QStringLiteral("Con006.mdb"), QString()));
    EXPECT_EQ(c.Execute("SELECT nome FROM Aptos WHERE codigo = '000101'")["nome"].text(), "Ana");
    EXPECT_EQ(c.Execute("PRAGMA integrity_check").fieldAt(0).text(), "ok");
}
