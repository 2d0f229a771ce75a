// The dialect, construct by construct, with statement texts of the system,
// run through a Connection on a copy of the template.
#include "core/datastore.h"
#include "core/jetdialect.h"
#include "core/val.h"
#include "support/fixtures.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

class Dialect : public ::testing::Test {
protected:
    void SetUp() override { con.Open(dir.makeCondominium(1)); }

    // The single value of a one-row, one-column read.
    Field one(const QString &sql)
    {
        Recordset rs = con.Execute(sql);
        EXPECT_FALSE(rs.eof()) << sql.toStdString();
        const QString name = rs.columnNames().value(0);
        return rs.eof() ? Field() : rs[name];
    }
    long exec(const QString &sql)
    {
        long n = -1;
        con.Execute(sql, &n);
        return n;
    }

    TempProgramDir dir;
    Connection con;
};

} // namespace

TEST(Val, ReadsTheLeadingNumberAsTheOriginalRuntime)
{
    EXPECT_EQ(val(QStringView(u"")), 0);
    EXPECT_EQ(val(QStringView(u"000123")), 123);
    EXPECT_EQ(val(QStringView(u" 1 2\t3\n4")), 1234);      // blanks anywhere are ignored
    EXPECT_EQ(val(QStringView(u"12,5")), 12);             // the comma stops the reading
    EXPECT_EQ(val(QStringView(u"12.5kg")), 12.5);
    EXPECT_EQ(val(QStringView(u"-3.25")), -3.25);
    EXPECT_EQ(val(QStringView(u"1.5.7")), 1.5);
    EXPECT_EQ(val(QStringView(u"2E3")), 2000);
    EXPECT_EQ(val(QStringView(u"2D2x")), 200);
    EXPECT_EQ(val(QStringView(u"3E")), 3);
    EXPECT_EQ(val(QStringView(u"&H1F")), 31);
    EXPECT_EQ(val(QStringView(u"&O17")), 15);
    EXPECT_EQ(val(QStringView(u"abc")), 0);
    EXPECT_EQ(val(std::string_view("  42 ")), 42);
}

TEST(DialectReadings, DatesNumbersAndRounding)
{
    using namespace jet;
    EXPECT_EQ(readDateLiteral(u"04/03/2008"), QDate(2008, 4, 3));     // month first
    EXPECT_EQ(readDateLiteral(u"31/01/2004"), QDate(2004, 1, 31));    // first above 12: day first
    EXPECT_EQ(readDateLiteral(u"02/2004"), QDate(2004, 2, 1));
    EXPECT_EQ(readDateLiteral(u"2004-01-31"), QDate(2004, 1, 31));
    EXPECT_FALSE(readDateLiteral(u"13/13/2004").isValid());
    EXPECT_EQ(readDateText(u"03/04/2008"), QDate(2008, 4, 3));        // quoted text is day first
    EXPECT_EQ(readDateText(u"01/13/2004"), QDate(2004, 1, 13));       // not a day-first date
    EXPECT_EQ(readDateText(u"01/2004"), QDate(2004, 1, 1));
    EXPECT_EQ(readDateText(u"5/6/04"), QDate(2004, 6, 5));
    EXPECT_FALSE(readDateText(u"__/__/____").isValid());
    EXPECT_EQ(readNumberText(u"12,50"), 12.5);
    EXPECT_EQ(readNumberText(u"12.50"), 12.5);
    EXPECT_EQ(readNumberText(u"1.234,56"), 1234.56);
    EXPECT_EQ(readNumberText(u"-0,01"), -0.01);
    EXPECT_EQ(readNumberText(u"1.234.567"), 1234567);
    EXPECT_FALSE(readNumberText(u"12a").has_value());
    EXPECT_FALSE(readNumberText(u"").has_value());
    EXPECT_EQ(roundHalfEven(2.5, 0), 2);
    EXPECT_EQ(roundHalfEven(3.5, 0), 4);
    EXPECT_EQ(roundHalfEven(1.005, 2), 1.0);   // 1.005 is a tie in decimal
    EXPECT_EQ(roundHalfEven(1.015, 2), 1.02);
    EXPECT_EQ(roundHalfEven(-2.5, 0), -2);
    EXPECT_EQ(roundHalfEven(12.3456, 2), 12.35);
}

TEST_F(Dialect, DateLiteralsAreMonthFirstAndQuotedDatesDayFirst)
{
    exec("INSERT INTO Recibos (codigo,codap,demis) VALUES ('000001','000101',#04/03/2008#)");
    EXPECT_EQ(one("SELECT demis FROM Recibos WHERE codigo = '000001'").toDate(), QDate(2008, 4, 3));
    EXPECT_EQ(one("SELECT demis FROM Recibos WHERE codigo = '000001'").text(), "03/04/2008");
    EXPECT_EQ(exec("UPDATE Parametros Set ano_mov = #01/01/2008# Where codigo = 1"), 1);
    EXPECT_EQ(one("SELECT ano_mov FROM parametros").toDate(), QDate(2008, 1, 1));
    exec("UPDATE Parametros Set mes_movSaldfin = #02/2004# Where Codauto = 1");
    EXPECT_EQ(one("SELECT mes_movsaldfin FROM parametros where codigo = 1").toDate(), QDate(2004, 2, 1));
    EXPECT_FALSE(con.Execute("SELECT * FROM recibos WHERE demis = #04/03/2008#").eof());
    EXPECT_TRUE(con.Execute("SELECT * FROM recibos WHERE demis = #03/04/2008#").eof());
    // A first number above 12 is read day first.
    exec("UPDATE Recibos SET demis = #13/04/2008# WHERE codigo = '000001'");
    EXPECT_EQ(one("SELECT demis FROM Recibos").toDate(), QDate(2008, 4, 13));
    // Quoted day-first text written to and compared with a date column.
    exec("Update Recibos Set drecbto = '31/01/2009' Where codigo = '000001'");
    EXPECT_EQ(one("SELECT drecbto FROM Recibos").toDate(), QDate(2009, 1, 31));
    EXPECT_FALSE(con.Execute("SELECT * FROM Recibos WHERE drecbto = '31/01/2009'").eof());
    exec("UPDATE parametros SET mes_movpo = '03/2005' WHERE codauto = 1");
    EXPECT_EQ(one("SELECT mes_movpo FROM parametros").toDate(), QDate(2005, 3, 1));
    exec("INSERT INTO Mov04 (datalan,ctadeb,ctacre,nrdoc,histlan,vlrlan) VALUES('15/02/2004',\"01.001\",\"07.001\",\"12\",\"Taxa\",'100,5')");
    Recordset rs = con.Execute("SELECT ctadeb,vlrlan FROM Mov04 WHERE datalan BETWEEN #02/01/2004# AND #02/29/2004# ORDER BY ctadeb");
    ASSERT_FALSE(rs.eof());
    EXPECT_EQ(rs["vlrlan"].toMoney(), Money::fromUnits(1005000));
    EXPECT_THROW(exec("Update Recibos Set drecbto = '__/__/____'"), DatabaseError);
    EXPECT_THROW(exec("SELECT * FROM Recibos WHERE demis = #13/13/2008#"), DatabaseError);
}

TEST_F(Dialect, FreeTextLiteralsKeepApostrophesAndQuotes)
{
    exec("INSERT INTO Grupos(codgrupo,Grupo,Descri) VALUES ('01',True,\"Bloco D'Ávila\")");
    EXPECT_EQ(one("SELECT descri FROM Grupos Where codgrupo = '01'").text(), "Bloco D'Ávila");
    exec("Update Grupos Set Descri = \"Diz \"\"olá\"\"\" Where codgrupo = '01'");
    EXPECT_EQ(one("SELECT descri FROM Grupos Where codgrupo = '01'").text(), "Diz \"olá\"");
    exec("Update Grupos Set Descri = 'O''Neil' Where codgrupo = '01'");
    EXPECT_EQ(one("SELECT descri FROM grupos").text(), "O'Neil");
    // A double-quoted word is never read as a column.
    EXPECT_EQ(one("SELECT \"codgrupo\" AS x FROM Grupos").text(), "codgrupo");
}

TEST_F(Dialect, TrueFalseNullAndIsNull)
{
    exec("INSERT INTO Tpveiculos(codgrupo,Grupo,Descri) VALUES ('01',True,\"Fiat\")");
    exec("INSERT INTO Tpveiculos(codgrupo,Grupo,Descri) VALUES ('0101',False,\"Uno\")");
    EXPECT_EQ(one("SELECT descri FROM TpVeiculos WHERE grupo = True ORDER BY descri").text(), "Fiat");
    EXPECT_EQ(one("SELECT descri FROM TpVeiculos WHERE grupo = False And Left(codgrupo, 2) = '01'").text(), "Uno");
    EXPECT_EQ(one("SELECT grupo FROM TpVeiculos WHERE codgrupo = '01'").text(), "Verdadeiro");
    EXPECT_FALSE(one("SELECT grupo FROM TpVeiculos WHERE codgrupo = '0101'").toBool());
    exec("INSERT INTO Moradores(nome,nascto,vinculo,codap) VALUES (\"Ana\",'10/05/1990',\"Filha\",'000101')");
    exec("Update Moradores Set nascto = Null, vinculo = \"\" Where nome = 'Ana'");
    Recordset rs = con.Execute("SELECT nascto, vinculo, isnull(nascto) AS n, isnull(vinculo) AS v FROM Moradores");
    ASSERT_FALSE(rs.eof());
    EXPECT_TRUE(rs["nascto"].isNull());
    EXPECT_FALSE(rs["vinculo"].isNull());        // the empty text is not Null
    EXPECT_EQ(rs["vinculo"].text(), "");
    EXPECT_TRUE(rs["n"].toBool());
    EXPECT_FALSE(rs["v"].toBool());
    EXPECT_FALSE(con.Execute("SELECT * FROM Moradores WHERE nascto Is Null").eof());
}

TEST_F(Dialect, ValLeftRightRoundAndCount)
{
    for (const char *code : {"000009", "000010", "000100"})
        exec(QStringLiteral("INSERT INTO Recibos (codigo,codap,vtotal,vtotd) VALUES ('%1','001234','10.125','2.5')").arg(code));
    Recordset rs = con.Execute("SELECT * FROM Recibos WHERE val(codigo) >= 10 ORDER BY codigo");
    ASSERT_FALSE(rs.eof());
    EXPECT_EQ(rs["codigo"].text(), "000010");
    EXPECT_EQ(one("SELECT Count(codigo) As I FROM Recibos").toInt(), 3);
    EXPECT_EQ(one("SELECT Count(codauto) as Y FROM Recibos WHERE val(codigo) < 50").toInt(), 2);
    EXPECT_EQ(one("SELECT Left(Right(CodAp, 4), 2) As Entrada FROM Recibos").text(), "12");
    EXPECT_EQ(one("SELECT Right(codigo, 3) As r FROM Recibos WHERE codigo = '000100'").text(), "100");
    EXPECT_EQ(one("SELECT ROUND(SUM(vtotal),2) AS total FROM Recibos").toDouble(), 30.38);  // 30.375: half to even
    EXPECT_EQ(one("SELECT ROUND(Sum(vtotd)) As totd FROM Recibos").toDouble(), 8);       // 7.5
    EXPECT_EQ(one("SELECT MAX(codigo) as maxcod FROM Recibos").text(), "000100");
    EXPECT_EQ(one("SELECT codauto FROM Recibos WHERE codauto = ( SELECT MAX (codauto) FROM Recibos)").toInt(), 3);
    // Left and Right keep their meaning as join words.
    EXPECT_NO_THROW(con.Execute("SELECT Recibos.codigo FROM Recibos LEFT JOIN Aptos ON Recibos.codap = Aptos.codigo"));
    exec("UPDATE plano SET sf01 = Round('12,345',2) WHERE codigo = '01.001'");
    EXPECT_EQ(one("SELECT sf01 FROM plano WHERE codigo = '01.001'").toDouble(), 12.34);
}

TEST_F(Dialect, LikeWithUnderscoreAndDeleteForms)
{
    EXPECT_EQ(one("SELECT COUNT(codigo) as I FROM plano WHERE codigo LIKE '__.'").toInt(), 7);
    EXPECT_EQ(one("SELECT Count(codigo) As I FROM plano WHERE codigo LIKE '01.___'").toInt(), 6);
    EXPECT_EQ(exec("DELETE * FROM Plano WHERE codigo = '01.001'"), 1);
    EXPECT_EQ(exec("DELETE FROM Plano WHERE codigo LIKE '02.%'"), 5);
    EXPECT_EQ(exec("DELETE FROM Eventtot"), 0);
}

TEST_F(Dialect, NamesWithoutRegardToCase)
{
    exec("INSERT INTO Pjuridica(codigo,nome,tipo) VALUES(0,'(Nenhum)',0)");
    exec("INSERT INTO Pjuridica(codigo,nome,tipo) VALUES(0,'(Nenhum)',1)");
    EXPECT_EQ(one("SELECT Count(codigo) As I FROM PJuridica WHERE tipo = '1'").toInt(), 1);
    EXPECT_EQ(one("SELECT NOME FROM pjuridica WHERE TIPO = '0'").text(), "(Nenhum)");
    Recordset rs = con.Execute("SELECT * FROM PJuridica Where Codigo = 0");
    EXPECT_EQ(rs["CODAUTO"].toInt(), 1);
    EXPECT_EQ(rs["Nome"].text(), "(Nenhum)");
    // Text compares without regard to case, as the original engine did.
    EXPECT_FALSE(con.Execute("SELECT * FROM Pjuridica WHERE nome = '(NENHUM)'").eof());

    // Accented letters too, and in a sort an accented letter stands with its plain one.
    for (const char *nome : {"Bruno", "Álvaro", "joão", "Joao", "Érica", "Ana"})
        exec(QStringLiteral("INSERT INTO Moradores(nome,codap) VALUES(\"%1\",'000101')").arg(QString::fromUtf8(nome)));
    EXPECT_EQ(one("SELECT Count(nome) As I FROM Moradores WHERE nome = 'JOÃO'").toInt(), 1);
    EXPECT_EQ(one("SELECT nome FROM Moradores WHERE nome = 'ÁLVARO'").text(), "Álvaro");
    QStringList ordem;
    for (Recordset m = con.Execute("SELECT * FROM Moradores ORDER BY nome"); !m.eof(); m.moveNext())
        ordem << m["nome"].text();
    EXPECT_EQ(ordem, QStringList({"Álvaro", "Ana", "Bruno", "Érica", "Joao", "joão"}));
}

TEST_F(Dialect, QuotedNumbersReachNumberAndMoneyColumns)
{
    exec("INSERT INTO Aptos (codigo,nome) VALUES ('000101',\"Ana\")");
    exec("UPDATE Aptos SET honor = '12,50' WHERE codigo = '000101'");
    EXPECT_EQ(one("SELECT honor FROM Aptos").toMoney(), Money::fromUnits(125000));
    exec("UPDATE Aptos SET honor = '12.5' WHERE codigo = '000101'");
    EXPECT_FALSE(con.Execute("SELECT * FROM Aptos WHERE honor = '12,50'").eof());
    exec("UPDATE Aptos SET honcb = '0,123456' WHERE codigo = '000101'");
    EXPECT_EQ(one("SELECT honcb FROM Aptos").toMoney(), Money::fromUnits(1235));   // four places
    exec("Update Aptos Set diavcto = '10' WHERE codigo = '000101'");
    EXPECT_EQ(one("SELECT diavcto FROM Aptos").value(), QVariant(qint64(10)));
    EXPECT_EQ(one("SELECT honor FROM Aptos").text(), "12,5");
    exec("UPDATE Aptos SET honcb = 0 WHERE cabina = false");
    EXPECT_TRUE(one("SELECT honcb FROM Aptos").toMoney().isZero());
    exec("Update Recibos Set vtoth = '' ");
    EXPECT_THROW(exec("UPDATE Aptos SET honor = 'doze' WHERE codigo = '000101'"), DatabaseError);
    exec("INSERT INTO Eventtot(codigo,nome,tipo,valortot) VALUES ('001',\"Taxa\",'H','1.234,5')");
    EXPECT_EQ(one("SELECT valortot FROM Eventtot").toDouble(), 1234.5);
    // A number in a text column keeps its own text.
    exec("UPDATE Parametros Set pplde0 = 5 Where codigo = 1");
    EXPECT_EQ(one("SELECT pplde0 FROM Parametros").text(), "5");
}

TEST_F(Dialect, CopyBetweenFilesMatchesColumnsByName)
{
    exec("INSERT INTO Aptos (codigo,nome,honor) VALUES ('000101',\"Ana\",'100')");
    exec("INSERT INTO Aptos (codigo,nome,honor) VALUES ('000102',\"Bia\",'200')");
    Connection dest;
    dest.Open(dir.makeCondominium(2));
    long n = 0;
    dest.Execute(QStringLiteral("INSERT INTO Aptos SELECT * FROM Aptos in '%1'").arg(dir.file("Con001.mdb")), &n);
    EXPECT_EQ(n, 2);
    Recordset rs;
    rs.Open("SELECT * FROM Aptos ORDER BY codigo", dest, 1, 2);
    EXPECT_EQ(rs.recordCount(), 2);
    EXPECT_EQ(rs["nome"].text(), "Ana");
    EXPECT_EQ(rs["honor"].toMoney(), Money::fromInt(100));
    dest.Execute(QStringLiteral("INSERT INTO Eventos SELECT * FROM Eventos in '%1'").arg(dir.file("Con000.mdb")), &n);
    EXPECT_EQ(n, 15);
    // A missing file is an error and is not created.
    EXPECT_THROW(dest.Execute(QStringLiteral("INSERT INTO Aptos SELECT * FROM Aptos in '%1'").arg(dir.file("Con777.mdb"))),
                 DatabaseError);
    EXPECT_FALSE(QFile::exists(dir.file("Con777.mdb")));
}

TEST_F(Dialect, ListsRangesOrderNumbersAndBooleanWords)
{
    for (const char *d : {"05/01/2004", "20/01/2004", "10/02/2004"})
        exec(QStringLiteral("INSERT INTO Mov04 (datalan,ctadeb,ctacre,vlrlan) VALUES ('%1',\"01.001\",\"07.001\",'1')").arg(d));
    EXPECT_EQ(one("SELECT Count(codauto) As I FROM Mov04 WHERE datalan BETWEEN '01/01/2004' AND '31/01/2004'").toInt(), 2);
    EXPECT_EQ(one("SELECT Count(codauto) As I FROM Mov04 WHERE datalan IN ('05/01/2004', '10/02/2004')").toInt(), 2);
    EXPECT_EQ(one("SELECT Count(codauto) As I FROM Mov04 WHERE vlrlan IN ('1,0', '2')").toInt(), 3);
    // A number of ORDER BY names a column.
    EXPECT_EQ(one("SELECT nome, codigo FROM Eventos ORDER BY 2 DESC").text(), "Abatimento");
    // A boolean field concatenated in Portuguese still reads as a boolean.
    exec("INSERT INTO RBalancete(codigo,nome,tipo,classe,sintetico,sini) VALUES ('01.',\"RECEITAS\",'R','O',Verdadeiro,'1.234,5')");
    EXPECT_TRUE(one("SELECT sintetico FROM RBalancete").toBool());
    EXPECT_EQ(one("SELECT sini FROM RBalancete").toDouble(), 1234.5);
    // The statement row keeps codigo = 1 after the forms delete and insert it.
    exec("DELETE FROM RBalRec");
    exec("INSERT INTO RBalRec(mesbase,modelo,nlinhas,titulo,LinAdic1,LinAdic2,LinAdic3,LinAdic4,arqtexto,arqway) "
         "VALUES(#03/2004#,'1',40,\"Demonstrativo\",\"\",\"\",\"\",\"\",True,\"/tmp/x.txt\")");
    EXPECT_EQ(exec("UPDATE rBalRec SET arqway = '/tmp/y.txt', Titulo = 'Novo' Where codigo = 1"), 1);
    Recordset rs = con.Execute("SELECT * FROM RbalRec");
    EXPECT_EQ(rs["mesbase"].toDate(), QDate(2004, 3, 1));
    EXPECT_TRUE(rs["arqtexto"].toBool());
    EXPECT_EQ(rs["titulo"].text(), "Novo");
}

TEST_F(Dialect, ALoopOfOneShapeReadsEachStatementsOwnValues)
{
    // One shape, many values: the cached statement must bind each time anew.
    for (int i = 1; i <= 50; ++i)
        exec(QStringLiteral("INSERT INTO Aptos (codigo,nome,honor,demis) VALUES ('%1',\"Nome %2\",'%2,25','%3/01/2004')")
                 .arg(i, 6, 10, QLatin1Char('0'))
                 .arg(i)
                 .arg(i % 28 + 1, 2, 10, QLatin1Char('0')));
    for (int i : {1, 17, 50}) {
        Recordset rs = con.Execute(QStringLiteral("SELECT * FROM Aptos WHERE codigo = '%1'").arg(i, 6, 10, QLatin1Char('0')));
        ASSERT_FALSE(rs.eof());
        EXPECT_EQ(rs["nome"].text(), QStringLiteral("Nome %1").arg(i));
        EXPECT_EQ(rs["honor"].toMoney(), Money::fromUnits(i * 10000 + 2500));
        EXPECT_EQ(rs["demis"].toDate(), QDate(2004, 1, i % 28 + 1));
    }
    // The same shape with an empty text, an apostrophe and a quote.
    exec("UPDATE Aptos SET nome = \"\" WHERE codigo = '000001'");
    exec("UPDATE Aptos SET nome = \"O'Hara \"\"Jr\"\"\" WHERE codigo = '000002'");
    EXPECT_EQ(one("SELECT nome FROM Aptos WHERE codigo = '000001'").text(), "");
    EXPECT_FALSE(one("SELECT nome FROM Aptos WHERE codigo = '000001'").isNull());
    EXPECT_EQ(one("SELECT nome FROM Aptos WHERE codigo = '000002'").text(), "O'Hara \"Jr\"");
}

TEST_F(Dialect, OutOfRangeDatesAndMoneyFailTheOneStatementAndWriteNothing)
{
    exec("INSERT INTO Recibos (codigo,codap,dvencto) VALUES ('000001','000101',#01/10/2008#)");
    exec("INSERT INTO Moradores(nome,codap) VALUES (\"Ana\",'000101')");
    exec("INSERT INTO Aptos (codigo,nome,honor) VALUES ('000101',\"Ana\",'1000')");
    // Every road into a date column: literal, quoted text, bare number.
    for (const char *sql : {"DELETE FROM Recibos WHERE dvencto > #12/31/20080#",
                            "UPDATE Recibos SET dvencto = #31/12/99999#",
                            "UPDATE Recibos SET dvencto = '31/12/99999'",
                            "SELECT * FROM Recibos WHERE dvencto < '01/01/10000'",
                            "UPDATE Moradores SET nascto = 99999999",
                            // Money the currency cannot hold, written bare, quoted or computed.
                            "UPDATE Aptos SET honor = 1e300",
                            "UPDATE Aptos SET honor = '999999999999999999'",
                            "UPDATE Aptos SET honor = honor * 1e20 WHERE codigo = '000101'",
                            "UPDATE Aptos SET nome = 'x', honcb = (honor * 1e20), honfr = 1"}) {
        try {
            exec(sql);
            ADD_FAILURE() << "accepted: " << sql;
        } catch (const DatabaseError &) {
        }
    }
    EXPECT_EQ(one("SELECT Count(codigo) As I FROM Recibos").toInt(), 1);
    EXPECT_EQ(one("SELECT dvencto FROM Recibos").toDate(), QDate(2008, 1, 10));
    EXPECT_EQ(one("SELECT nome FROM Aptos").text(), "Ana");
    EXPECT_EQ(one("SELECT honor FROM Aptos").toMoney(), Money::fromInt(1000));
    EXPECT_TRUE(one("SELECT honcb FROM Aptos").isNull() || one("SELECT honcb FROM Aptos").toMoney().isZero());
    // What fits goes through: a day count, and arithmetic rounded to four places.
    exec("UPDATE Moradores SET nascto = 5");
    EXPECT_EQ(one("SELECT nascto FROM Moradores").toDate(), QDate(1900, 1, 4));
    exec("UPDATE Aptos SET honor = honor / 3, honcb = 2 WHERE codigo = '000101'");
    EXPECT_EQ(one("SELECT honor FROM Aptos").toMoney(), Money::fromUnits(3333333));
    EXPECT_EQ(one("SELECT honcb FROM Aptos").toMoney(), Money::fromInt(2));
}
