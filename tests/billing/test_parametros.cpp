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

TEST(ParametrosGravacao, OneStatementInTheFormsOrder)
{
    ParametrosEmissao p;
    p.fnemis = QStringLiteral("0203");
    p.fdemis = QStringLiteral("05/02/2003");
    p.fmvcto = QStringLiteral("02/2003");
    p.fnreci = QStringLiteral("000100");
    p.fordem = QLatin1Char('A');
    p.fsempr = QStringLiteral("2");
    p.fpimpr = 1.5;
    p.ftitu1 = QStringLiteral("1a. Via");
    p.ftitu2 = QStringLiteral("D'Ávila");
    p.fvref = {reais(100), reais(12.5), Money()};
    p.fhonor = true;
    p.fautom = true;
    p.fevnt = {QStringLiteral("020"), QStringLiteral("___"), QString(), QString()};
    p.fvlev = {-10, 0, 0, 0};
    p.fcpev = {QStringLiteral("Multa"), QString(), QString(), QString()};
    p.fEvTc = QStringLiteral("001");
    p.fCpTc = QStringLiteral("Fev");
    p.fEvCb = QStringLiteral("002");
    p.fEvFr = QStringLiteral("003");
    p.fmsg = QStringLiteral("Pague em dia");
    EXPECT_EQ(sqlGravaParametros(p),
              QStringLiteral("UPDATE Parametros Set fnemis = '0203',fdemis = '05/02/2003',fmvcto = '02/2003',"
                             "fnreci = '000100',fordem = 'A',fsempr = '2',fpimpr = '1,5',ftitu1 = \"1a. Via\","
                             "ftitu2 = \"D'Ávila\",fvref1 = '100',fvref2 = '12,5',fvref3 = '0',fretit = False,"
                             "fspool = False,fautom = True,fhonor = True,fpdigi = False,fevnt1 = '020',"
                             "fevnt2 = '___',fevnt3 = '',fevnt4 = '',fvlev1 = '-10',fvlev2 = '0',fvlev3 = '0',"
                             "fvlev4 = '0',fcpev1 = 'Multa',fcpev2 = '',fcpev3 = '',fcpev4 = '',fEvTc = '001',"
                             "fCpTc = 'Fev',fEvCb = '002',fCpCb = '',fEvFr = '003',fCpfr = '',"
                             "fmsg = \"Pague em dia\" Where codigo = 1"));
    p.fdemis = kEmptyDate;
    p.fmvcto = kEmptyMonthYear;
    p.fordem = QLatin1Char('S');
    p.fsempr = QStringLiteral("T");
    const QString s = sqlGravaParametros(p);
    EXPECT_TRUE(s.contains(QStringLiteral("fdemis = null,fmvcto = null,fnreci = '000100',fordem = 'S',fsempr = 'T',")))
        << s.toStdString();
}

TEST(ParametrosGravacao, StoredMonthAndDayReadBackAsTyped)
{
    Condominio c;
    ParametrosEmissao p = c.mes();
    p.fvlev[0] = -10;
    p.fevnt[0] = QStringLiteral("030");
    p.fcpev[0] = QStringLiteral("Pontualidade");
    p.fvref[1] = reais(100);
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
    EXPECT_EQ(lido.fvref[1], reais(100));
    EXPECT_EQ(lido.fcpev[0], QStringLiteral("Pontualidade"));
    EXPECT_EQ(lido.fEvTc, QStringLiteral("001"));
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
