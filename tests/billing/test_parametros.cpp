#include "billing/parametros.h"
#include "condominio.h"
#include "core/conversions.h"
#include "support/scriptedprompter.h"

#include <gtest/gtest.h>

TEST(ParametrosGuarda, AutomaticRunRefusesSelectiveOrRectification)
{
    ScriptedPrompter p;
    EXPECT_FALSE(guardaOpcoes(true, QLatin1Char('S'), false));
    EXPECT_FALSE(guardaOpcoes(true, QLatin1Char('A'), true));
    EXPECT_TRUE(guardaOpcoes(false, QLatin1Char('S'), true));
    EXPECT_TRUE(guardaOpcoes(true, QLatin1Char('N'), false));
    ASSERT_EQ(p.calls.size(), 2u);
    EXPECT_EQ(p.calls[0].text, QStringLiteral("Emissão automática não permite ordem seletiva ou retificação !"));
    EXPECT_EQ(p.calls[0].title, QStringLiteral("Atenção..."));
}

TEST(ParametrosGravacao, StoredMonthAndDayReadBackAsTyped)
{
    Condominio c;
    ParametrosEmissao p = c.mes();
    p.fvlev[0] = -10;
    p.fevnt[0] = QStringLiteral("030");
    p.fcpev[0] = QStringLiteral("Pontualidade");
    p.fvref[1] = reais(12.5);  // numbers go into the statement with a comma
    p.fpimpr = 1.5;
    p.ftitu2 = QStringLiteral("D'Ávila");
    p.fordem = QLatin1Char('A');
    ASSERT_TRUE(gravaParametros(c.con, p).empty());
    const ParametrosEmissao lido = leParametros(c.con);
    // The day 05 must not be taken for a month, nor 02/2003 for a day.
    EXPECT_EQ(lido.fdemis, QStringLiteral("05/02/2003"));
    EXPECT_EQ(lido.fmvcto, QStringLiteral("02/2003"));
    EXPECT_EQ(c.valor(QStringLiteral("SELECT fdemis FROM Parametros Where codigo = 1"), "fdemis"),
              QStringLiteral("05/02/2003"));
    EXPECT_EQ(lido.fnreci, QStringLiteral("000100"));
    EXPECT_EQ(lido.fnemis, QStringLiteral("0203"));
    EXPECT_TRUE(lido.fhonor);
    EXPECT_EQ(lido.fvlev[0], -10.0);
    EXPECT_EQ(lido.fvref[1], reais(12.5));
    EXPECT_EQ(lido.fpimpr, 1.5);
    EXPECT_EQ(lido.ftitu2, QStringLiteral("D'Ávila"));
    EXPECT_EQ(lido.fordem, QLatin1Char('A'));
    EXPECT_EQ(lido.fcpev[0], QStringLiteral("Pontualidade"));
    EXPECT_EQ(lido.fEvTc, QStringLiteral("001"));

    // Blank dates go as null.
    p.fdemis = kEmptyDate;
    p.fmvcto = kEmptyMonthYear;
    EXPECT_TRUE(sqlGravaParametros(p).contains(QStringLiteral("fdemis = null,fmvcto = null,"))) << sqlGravaParametros(p).toStdString();
}

TEST(ParametrosGravacao, LastNumberMayNotGoBelowTheHighestReceipt)
{
    Condominio c;
    // No receipt at all: any number.
    EXPECT_FALSE(confereUltimoRecibo(c.con, QStringLiteral("000000")).has_value());
    c.con.Execute(QStringLiteral("INSERT INTO Recibos (codigo,codap,situacao) VALUES('000120','000001','A')"));
    const auto erro = confereUltimoRecibo(c.con, QStringLiteral("000119"));
    ASSERT_TRUE(erro.has_value());
    EXPECT_EQ(erro->tipo, QStringLiteral("Alerta de Erro"));
    EXPECT_EQ(erro->mensagem, QStringLiteral("O número do maior recibo cadastrado é 000120 e você informou como "
                                             "recibo anterior o nr. 000119"));
    EXPECT_FALSE(confereUltimoRecibo(c.con, QStringLiteral("000120")).has_value());
    EXPECT_FALSE(confereUltimoRecibo(c.con, QStringLiteral("000500")).has_value());

    // A refused save writes nothing.
    ParametrosEmissao p = c.mes(true, QStringLiteral("000110"));
    p.fnemis = QStringLiteral("9999");
    EXPECT_EQ(gravaParametros(c.con, p).size(), 1u);
    EXPECT_NE(c.valor(QStringLiteral("SELECT fnemis FROM Parametros Where codigo = 1"), "fnemis"), QStringLiteral("9999"));
}

TEST(ParametrosLegendas, CaptionsAndLetters)
{
    EXPECT_EQ(ordemDaLegenda(QStringLiteral("Alfabética")), QLatin1Char('A'));
    EXPECT_EQ(ordemDaLegenda(QStringLiteral("Numérica")), QLatin1Char('N'));
    EXPECT_EQ(ordemDaLegenda(QStringLiteral("Seletiva")), QLatin1Char('S'));
    EXPECT_EQ(selecaoDaLegenda(QStringLiteral("Todos")), QStringLiteral("T"));
    EXPECT_EQ(selecaoDaLegenda(QStringLiteral("Ativos")), QStringLiteral("A"));
    EXPECT_EQ(selecaoDaLegenda(QStringLiteral("2")), QStringLiteral("2"));
    EXPECT_EQ(legendaDaSelecao(QStringLiteral("I")), QStringLiteral("Inativos"));
}

TEST(ParametrosInicio, FixedEventCheckAndRightToStart)
{
    Condominio c;
    c.usuario(3, QStringLiteral("Emissor"), false, false, false, true);
    c.usuario(4, QStringLiteral("Retificador"), false, true, false, false);
    ScriptedPrompter p;
    EXPECT_TRUE(confereEventoFixo(c.con, QStringLiteral("030")));
    EXPECT_TRUE(confereEventoFixo(c.con, QStringLiteral("___")));
    EXPECT_FALSE(confereEventoFixo(c.con, QStringLiteral("555")));
    EXPECT_EQ(p.last().title, QStringLiteral("Erro"));

    EXPECT_TRUE(direitoDeIniciar(false, QStringLiteral("Emissor")));
    EXPECT_FALSE(direitoDeIniciar(true, QStringLiteral("Emissor")));
    EXPECT_EQ(p.last().text, QStringLiteral("Usuário não autorizado a retificar recibos !"));
    EXPECT_TRUE(direitoDeIniciar(true, QStringLiteral("Retificador")));
    EXPECT_FALSE(direitoDeIniciar(false, QStringLiteral("Retificador")));
    EXPECT_EQ(p.last().text, QStringLiteral("Usuário não autorizado a emitir recibos !"));
}
