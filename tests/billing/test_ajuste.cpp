#include "billing/ajuste.h"
#include "billing/emissao.h"
#include "condominio.h"
#include "support/scriptedprompter.h"

#include <gtest/gtest.h>

TEST(AjusteTaxas, StatementsInOrderSkippingZeros)
{
    AjusteTaxas a;
    a.honor = reais(400.5);
    a.honcb = reais(25);
    a.honfr = reais(10);
    a.normal = 10;
    a.apos = 20;
    EXPECT_EQ(sqlAjusteTodos(a), QStringList({
                                     "UPDATE Aptos SET honor = '400,5'",
                                     "UPDATE Aptos SET honcb = '25' WHERE cabina = true",
                                     "UPDATE Aptos SET honcb = 0 WHERE cabina = false",
                                     "UPDATE Aptos SET honfr = '10'",
                                     "UPDATE Aptos SET diavcto = 10 WHERE aposentado = false",
                                     "UPDATE Aptos SET diavcto = 20 WHERE aposentado = true",
                                 }));
    AjusteTaxas soHonor;
    soHonor.honor = reais(300);
    EXPECT_EQ(sqlAjusteTodos(soHonor), QStringList({"UPDATE Aptos SET honor = '300'",
                                                    "UPDATE Aptos SET honcb = 0 WHERE cabina = true"}));
    EXPECT_EQ(sqlAjusteTipo({QStringLiteral("02"), a}),
              QStringList({
                  "UPDATE Aptos SET honor = '400,5' WHERE tapto = '02'",
                  "UPDATE Aptos SET honcb = '25' WHERE cabina = true AND tapto = '02'",
                  "UPDATE Aptos SET honcb = 0 WHERE cabina = false AND tapto = '02'",
                  "UPDATE Aptos SET honfr = '10' WHERE tapto = '02'",
                  "UPDATE Aptos SET diavcto = 10 WHERE aposentado = false AND tapto = '02'",
                  "UPDATE Aptos SET diavcto = 20 WHERE aposentado = true AND tapto = '02'",
              }));
    AjusteTipo soDia{QStringLiteral("03"), {}};
    soDia.valores.apos = 5;
    EXPECT_EQ(sqlAjusteTipo(soDia), QStringList({"UPDATE Aptos SET diavcto = 5 WHERE aposentado = true AND tapto = '03'"}));
}

TEST(AjusteTaxas, AllApartmentsAndByType)
{
    Condominio c;
    c.apto(1, QStringLiteral("Cabina"), 300, 15, 0, 10, QStringLiteral("A"), QStringLiteral("1"), QStringLiteral("01"), true);
    c.apto(2, QStringLiteral("Sem cabina"), 300, 15, 0, 10, QStringLiteral("A"), QStringLiteral("1"), QStringLiteral("01"));
    c.apto(3, QStringLiteral("Aposentado"), 300, 0, 0, 10, QStringLiteral("A"), QStringLiteral("1"), QStringLiteral("02"),
           false, true);
    auto aptos = [&](int n, const char *col) {
        return c.valor(QStringLiteral("SELECT * FROM Aptos WHERE codigo = '%1'").arg(n, 6, 10, QLatin1Char('0')), col);
    };

    ScriptedPrompter prompt;
    EXPECT_FALSE(ajustaTodos(c.con, AjusteTaxas{}));
    EXPECT_EQ(prompt.last().text, QStringLiteral("Não há valores para ajuste !!!"));
    AjusteTaxas a;
    a.honcb = reais(30);
    a.apos = 25;
    prompt.answer(vbNo, QStringLiteral("Tem certeza que deseja fazer os ajustes ?"));
    EXPECT_FALSE(ajustaTodos(c.con, a));
    EXPECT_EQ(aptos(1, "honcb"), QStringLiteral("15"));

    prompt.answer(vbYes);
    EXPECT_TRUE(ajustaTodos(c.con, a));
    EXPECT_EQ(prompt.last().text, QStringLiteral("Ajuste Finalizado !!!"));
    EXPECT_EQ(aptos(1, "honcb"), QStringLiteral("30"));
    EXPECT_EQ(aptos(2, "honcb"), QStringLiteral("0"));
    EXPECT_EQ(aptos(1, "diavcto"), QStringLiteral("10"));  // normal 0 leaves the day
    EXPECT_EQ(aptos(3, "diavcto"), QStringLiteral("25"));

    AjusteTaxas tipo2;
    tipo2.honor = reais(500);
    prompt.answer(vbYes);
    EXPECT_TRUE(ajustaPorTipo(c.con, {{QStringLiteral("01"), AjusteTaxas{}}, {QStringLiteral("02"), tipo2}}));
    EXPECT_EQ(aptos(1, "honor"), QStringLiteral("300"));
    EXPECT_EQ(aptos(3, "honor"), QStringLiteral("500"));
}

TEST(RecalculoTotais, RepairMovesTheRunsFeeIntoItsTypesTotal)
{
    Condominio c;
    c.apto(1, QStringLiteral("Ana"), 300, 0, 40);
    const ParametrosEmissao p = c.mes(true, QStringLiteral("000000"));
    ASSERT_TRUE(gravaParametros(c.con, p).empty());
    {
        ScriptedPrompter prompt;
        prompt.answer(vbYes);
        ASSERT_EQ(emissaoAutomatica(c.con, p).emitidos, 1);
    }
    const QString r1 = QStringLiteral("SELECT * FROM Recibos WHERE codigo = '000001'");
    // The run put the fund (event 003, type R) into vtoth.
    EXPECT_EQ(c.dinheiro(r1, "vtoth"), reais(340));
    EXPECT_EQ(c.dinheiro(r1, "vtotr"), Money());

    // Receipts of the fixed date or before are left alone; all ten slots count,
    // a zero slot doesn't stop the sum; 13609 halts with a box and changes nothing.
    c.con.Execute(QStringLiteral("INSERT INTO Recibos (codigo,codap,demis,situacao,item0,valor0,vtoth,vtotal) "
                                 "VALUES('000002','000001','01/08/2002','A','001','50','0','0')"));
    c.con.Execute(QStringLiteral("INSERT INTO Recibos (codigo,codap,demis,situacao,item0,valor0,item1,valor1,item2,valor2,"
                                 "item9,valor9,vtotal) VALUES('013609','000001','02/08/2002','B','001','50',' ','0',"
                                 "'010','7','099','3','0')"));
    ScriptedPrompter prompt;
    EXPECT_EQ(recalculaTotais(c.con), 2);
    ASSERT_EQ(prompt.calls.size(), 1u);
    EXPECT_EQ(c.dinheiro(r1, "vtoth"), reais(300));
    EXPECT_EQ(c.dinheiro(r1, "vtotr"), reais(40));
    EXPECT_EQ(c.dinheiro(r1, "vtotal"), reais(340));
    EXPECT_EQ(c.dinheiro(QStringLiteral("SELECT * FROM Recibos WHERE codigo = '000002'"), "vtoth"), Money());
    const QString r3 = QStringLiteral("SELECT * FROM Recibos WHERE codigo = '013609'");
    EXPECT_EQ(c.dinheiro(r3, "vtoth"), reais(50));
    EXPECT_EQ(c.dinheiro(r3, "vtott"), reais(7));
    EXPECT_EQ(c.dinheiro(r3, "vtotal"), reais(60));  // event 099 doesn't exist: vtotal only
}
