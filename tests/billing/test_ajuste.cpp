#include "billing/ajuste.h"
#include "billing/emissao.h"
#include "condominio.h"
#include "support/scriptedprompter.h"

#include <gtest/gtest.h>

TEST(AjusteTaxas, AllApartmentsAndByType)
{
    Condominio c;
    c.apto(1, QStringLiteral("Cabina"), 300, 15, 0, 10, QStringLiteral("A"), QStringLiteral("1"), QStringLiteral("01"), true);
    c.apto(2, QStringLiteral("Sem cabina"), 300, 15, 0, 10, QStringLiteral("A"), QStringLiteral("1"), QStringLiteral("01"));
    c.apto(3, QStringLiteral("Aposentado"), 300, 0, 0, 10, QStringLiteral("A"), QStringLiteral("1"), QStringLiteral("02"),
           false, true);
    // honcb, diavcto and honor of the three units.
    auto aptos = [] { return leLinhas(session.conAtiva, QStringLiteral("SELECT honcb,diavcto,honor FROM Aptos ORDER BY codigo")); };

    ScriptedPrompter prompt;
    EXPECT_FALSE(ajustaTodos(c.con, AjusteTaxas{}));
    EXPECT_EQ(prompt.last().text, QStringLiteral("Não há valores para ajuste !!!"));
    AjusteTaxas a;
    a.honcb = reais(30);
    a.apos = 25;
    prompt.answer(vbNo, QStringLiteral("Tem certeza que deseja fazer os ajustes ?"));
    EXPECT_FALSE(ajustaTodos(c.con, a));
    EXPECT_EQ(aptos(), QStringLiteral("15|10|300\n15|10|300\n0|10|300\n"));

    prompt.answer(vbYes);
    EXPECT_TRUE(ajustaTodos(c.con, a));
    EXPECT_EQ(prompt.last().text, QStringLiteral("Ajuste Finalizado !!!"));
    // Only a unit with a cabin keeps that fee; normal 0 leaves the day, the retired get theirs.
    EXPECT_EQ(aptos(), QStringLiteral("30|10|300\n0|10|300\n0|25|300\n"));

    AjusteTaxas tipo2;
    tipo2.honor = reais(500);
    prompt.answer(vbYes);
    EXPECT_TRUE(ajustaPorTipo(c.con, {{QStringLiteral("01"), AjusteTaxas{}}, {QStringLiteral("02"), tipo2}}));
    EXPECT_EQ(aptos(), QStringLiteral("30|10|300\n0|10|300\n0|25|500\n"));

    // A fee alone, with cents: the cabins' fee is zeroed too, as it always was.
    AjusteTaxas soHonor;
    soHonor.honor = reais(320.5);
    prompt.answer(vbYes);
    EXPECT_TRUE(ajustaTodos(c.con, soHonor));
    EXPECT_EQ(aptos(), QStringLiteral("0|10|320,5\n0|10|320,5\n0|25|320,5\n"));
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
    // The run put the fund (event 003, type R) into vtoth.
    EXPECT_EQ(c.linha(QStringLiteral("SELECT vtoth,vtotr FROM Recibos WHERE codigo = '000001'")), QStringLiteral("340|0"));

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
    EXPECT_EQ(c.linha(QStringLiteral("SELECT vtoth,vtotr,vtotal FROM Recibos WHERE codigo = '000001'")), QStringLiteral("300|40|340"));
    EXPECT_EQ(c.linha(QStringLiteral("SELECT vtoth FROM Recibos WHERE codigo = '000002'")), QStringLiteral("0"));
    // Event 099 doesn't exist: it counts in vtotal only.
    EXPECT_EQ(c.linha(QStringLiteral("SELECT vtoth,vtott,vtotal FROM Recibos WHERE codigo = '013609'")), QStringLiteral("50|7|60"));
}
