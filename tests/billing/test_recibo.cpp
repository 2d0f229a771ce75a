#include "billing/recibo.h"
#include "condominio.h"
#include "core/conversions.h"

#include <gtest/gtest.h>

TEST(ReciboTotais, OneRuleForEveryType)
{
    Condominio c;
    // +100.00 H and -10.00 D: the discount is added, never subtracted.
    TotaisRecibo t = calculaTotais(c.con, {{"001", "", 0, reais(100)}, {"030", "", 0, reais(-10)}});
    EXPECT_EQ(t.vtoth, reais(100));
    EXPECT_EQ(t.vtotd, reais(-10));
    EXPECT_EQ(t.vtotal, reais(90));

    // R, T, and a type outside the four falls to vtotd.
    t = calculaTotais(c.con, {{"003", "", 0, reais(5.5)}, {"010", "", 0, reais(20)}, {"040", "", 0, reais(1.25)}});
    EXPECT_EQ(t.vtotr, reais(5.5));
    EXPECT_EQ(t.vtott, reais(20));
    EXPECT_EQ(t.vtotd, reais(1.25));
    EXPECT_EQ(t.vtotal, reais(26.75));

    // A deleted event counts in vtotal only: the partial sums fall short.
    c.con.Execute(QStringLiteral("DELETE FROM Eventos WHERE codigo = '020'"));
    t = calculaTotais(c.con, {{"001", "", 0, reais(100)}, {"020", "", 0, reais(15)}});
    EXPECT_EQ(t.vtotal, reais(115));
    EXPECT_EQ(t.vtoth + t.vtotr + t.vtott + t.vtotd, reais(100));
}

TEST(ReciboValores, ReferenceAmountRoundsHalfUpAndTowardZeroBelow)
{
    EXPECT_EQ(valorComReferencia(1.5, reais(100)), reais(150));
    EXPECT_EQ(valorComReferencia(1.5, reais(0.15)), reais(0.23));    // 0.225 goes up
    EXPECT_EQ(valorComReferencia(1.5, reais(-0.15)), reais(-0.22));  // -0.225 goes toward zero
    EXPECT_EQ(valorComReferencia(0.3333, reais(10)), reais(3.33));
}

TEST(ReciboNumeracao, NextNumberAndWriteBack)
{
    EXPECT_EQ(proximoNumero(QStringLiteral("000100")), QStringLiteral("000101"));
    EXPECT_EQ(proximoNumero(QString()), QStringLiteral("000001"));
    EXPECT_EQ(proximoNumero(QStringLiteral("000999")), QStringLiteral("001000"));
    // Past 999999 the number grows to seven digits rather than failing the run.
    EXPECT_EQ(proximoNumero(QStringLiteral("999999")), QStringLiteral("1000000"));

    Condominio c;
    c.con.Execute(sqlGravaFnreci(QStringLiteral("000050")));
    // A session that issued nothing from an empty Fnreci stands at 000001: nothing written.
    EXPECT_EQ(gravaUltimoNumero(c.con, QStringLiteral("000001")), QString());
    EXPECT_EQ(c.valor(QStringLiteral("SELECT fnreci FROM Parametros Where codigo = 1"), "fnreci"), QStringLiteral("000050"));
    EXPECT_EQ(gravaUltimoNumero(c.con, QStringLiteral("000301")), QStringLiteral("000300"));
    EXPECT_EQ(c.valor(QStringLiteral("SELECT fnreci FROM Parametros Where codigo = 1"), "fnreci"), QStringLiteral("000300"));
}

TEST(ReciboCarimbo, ValidoIsNumberPlusDaysPlusNameCodes)
{
    const QDate d(2003, 3, 15);  // day 37695 counting 30/12/1899 as day 0
    // 123 + 37695 + ('A' 65 + 'n' 110 + 'a' 97)
    EXPECT_EQ(carimboValido(QStringLiteral("000123"), d, QStringLiteral("Ana")), 38090);
    // 'J' 74 + 'o' 111 + 's' 115 + 'é' 233
    EXPECT_EQ(carimboValido(QStringLiteral("000123"), d, QStringLiteral("José")), 38351);
    // An empty name leaves b alone.
    EXPECT_EQ(carimboValido(QStringLiteral("000123"), d, QString()), 37818);
    EXPECT_EQ(carimboValido(QStringLiteral("000001"), QDate(1899, 12, 31), QString()), 2);
}

TEST(ReciboEscrita, DatesAndAmountsInTheBrazilianForms)
{
    EXPECT_EQ(textoData(QDate(2003, 2, 5)), QStringLiteral("05/02/2003"));
    EXPECT_EQ(textoData(QDate()), QString());
    EXPECT_EQ(textoTotalInsert(reais(90)), QStringLiteral("90,00"));
    EXPECT_EQ(textoTotalInsert(reais(-10)), QStringLiteral("-10,00"));
    EXPECT_EQ(textoTotalInsert(reais(1234.5)), QStringLiteral("1234,50"));
    EXPECT_EQ(textoValor(reais(90)), QStringLiteral("90"));
    EXPECT_EQ(textoValor(reais(12.5)), QStringLiteral("12,5"));
    EXPECT_EQ(textoValor(reais(-0.01)), QStringLiteral("-0,01"));
}

TEST(ReciboGrade, AdjustmentDropsEmptyRowsAndFaultsAreGathered)
{
    const std::vector<ItemRecibo> itens = ajustaGrade({
        {"001", "Fev", " ", "350,00"},
        {"000", "", "", "10,00"},      // no event
        {"002", "", "", "0,00"},       // a row of 0.00 disappears
        {"003", "", "", "abc"},        // not a number
        {"030", "", "1,5000", "-10"},
        {"010", "", "", ""},           // blank value
    });
    ASSERT_EQ(itens.size(), 2u);
    EXPECT_EQ(itens[0].item, QStringLiteral("001"));
    EXPECT_EQ(itens[0].refer, 0.0);
    EXPECT_EQ(itens[0].valor, reais(350));
    EXPECT_EQ(itens[1].refer, 1.5);
    EXPECT_EQ(itens[1].valor, reais(-10));

    TotaisRecibo zero;
    // No items skips the value test.
    std::vector<ErroGravacao> e = confereRecibo(0, zero, kEmptyDate, QString());
    ASSERT_EQ(e.size(), 3u);
    EXPECT_EQ(e[0].mensagem, kMsgSemItens);
    EXPECT_EQ(e[1].mensagem, kMsgSemVencimento);
    EXPECT_EQ(e[2].mensagem, kMsgSemCobranca);
    EXPECT_EQ(e[0].tipo, QStringLiteral("Erro Fatal"));
    e = confereRecibo(2, zero, QStringLiteral("10/02/2003"), QStringLiteral("1"));
    ASSERT_EQ(e.size(), 1u);
    EXPECT_EQ(e[0].mensagem, kMsgSemValor);
    TotaisRecibo negativo;
    negativo.vtotal = reais(-5);
    EXPECT_TRUE(confereRecibo(1, negativo, QStringLiteral("10/02/2003"), QStringLiteral("1")).empty());
}
