#include "banks/calcbarra.h"

#include "bankfile.h"
#include "banks/checkdigits.h"
#include "core/conversions.h"
#include "support/scriptedprompter.h"

#include <gtest/gtest.h>

namespace {
FormCalcBarra form(const QString &banco, const QString &convenio, const QString &carteira)
{
    FormCalcBarra f;
    f.parametros.banco = banco;
    f.parametros.agencia = QStringLiteral("1234");
    f.parametros.cedente = QStringLiteral("0012345");
    f.parametros.convenio = convenio;
    f.parametros.carteira = carteira;
    f.dataGeracao = QDate(2007, 1, 10);
    f.selecao = QStringLiteral("SELECT * FROM Recibos WHERE situacao = 'A' ORDER BY codigo");
    return f;
}

void fill(BankFile &file)
{
    file.apto(QStringLiteral("000101"), QStringLiteral("Ana"), QStringLiteral("123.456.789-09"));
    file.recibo(QStringLiteral("000001"), QStringLiteral("000101"), QStringLiteral("432.10"), QStringLiteral("01/15/2007"));
    file.recibo(QStringLiteral("000002"), QStringLiteral("000101"), QStringLiteral("89.90"), QStringLiteral("05/05/2005"));
    file.recibo(QStringLiteral("000003"), QStringLiteral("000101"), QStringLiteral("10"), QStringLiteral("05/05/2005"), "B");
}
} // namespace

TEST(CalcBarraRun, WritesEachReceiptOfTheSelection)
{
    BankFile file;
    fill(file);
    ScriptedPrompter prompts;
    FormCalcBarra f = form(QStringLiteral("237"), QString(), QStringLiteral("06_"));
    EXPECT_EQ(cmdCalcBarraG(file.con, f), FimCalcBarra::Calculado);
    ASSERT_EQ(prompts.calls.size(), 1u);
    EXPECT_EQ(prompts.last().text,
              QStringLiteral("Código de Barra e Linha Digitável Calculada, Seleção liberada para Impressão !"));
    EXPECT_EQ(prompts.last().title, QStringLiteral("Atenção"));
    EXPECT_EQ(f.carteira, QStringLiteral("006"));

    const Boleto expected = Banco237(ReciboBanco{QStringLiteral("000001"), Money::fromDouble(432.10), QDate(2007, 1, 15)},
                                     f.parametros);
    EXPECT_EQ(file.coluna("000001", "barrabco"), expected.barra);
    EXPECT_EQ(file.coluna("000001", "lindigbco"), expected.linha);
    EXPECT_EQ(file.coluna("000001", "nrbco"), expected.nrbco);
    EXPECT_EQ(file.coluna("000001", "codbco"), QStringLiteral("237"));
    EXPECT_EQ(file.coluna("000001", "demisbco"), QStringLiteral("10/01/2007"));
    EXPECT_EQ(file.coluna("000002", "nrbco"), QStringLiteral("06/00000000002-9"));
    // A settled receipt is outside the selection.
    EXPECT_EQ(file.coluna("000003", "barrabco"), QString());

    // One receipt by its number, filled to 6.
    FormCalcBarra one = form(QStringLiteral("409"), QStringLiteral("1234567"), QStringLiteral("___"));
    EXPECT_EQ(cmdCalcBarra(file.con, one, QStringLiteral("3")), FimCalcBarra::Calculado);
    EXPECT_EQ(one.selecao, QStringLiteral("SELECT * FROM recibos WHERE codigo = '000003'"));
    EXPECT_EQ(file.coluna("000003", "nrbco"),
              QStringLiteral("00000000000003-") + Modulo11Resto(QStringLiteral("00000000000003")));
    EXPECT_EQ(file.coluna("000001", "codbco"), QStringLiteral("237"));
}

TEST(CalcBarraRun, StopsAndMessages)
{
    BankFile file;
    fill(file);
    {
        ScriptedPrompter prompts;
        FormCalcBarra f = form(QStringLiteral("341"), QString(), QStringLiteral("109"));
        EXPECT_EQ(cmdCalcBarraG(file.con, f), FimCalcBarra::BancoComRemessa);
        EXPECT_EQ(prompts.last().text, QStringLiteral("Este Banco utiliza emissão de Remessa !"));
        EXPECT_EQ(prompts.last().title, QStringLiteral("Atenção !!"));
    }
    {
        ScriptedPrompter prompts;
        FormCalcBarra f = form(QStringLiteral("237"), QString(), QStringLiteral("06_"));
        f.selecao.clear();
        EXPECT_EQ(cmdCalcBarraG(file.con, f), FimCalcBarra::FaltaSelecao);
        EXPECT_EQ(prompts.last().text, QStringLiteral("Falta especificar os recibos da remessa, use o botão [Selecionar] !"));
    }
    {
        ScriptedPrompter prompts;
        FormCalcBarra f = form(QStringLiteral("237"), QString(), QStringLiteral("06_"));
        f.selecao = QStringLiteral("SELECT * FROM Recibos WHERE codigo = '999999'");
        EXPECT_EQ(cmdCalcBarraG(file.con, f), FimCalcBarra::SemRegistros);
        EXPECT_EQ(prompts.last().text, QStringLiteral("Não há registros para esta condição !"));
        EXPECT_EQ(prompts.last().title, QStringLiteral("Atenção !"));
    }
    {
        // Bank 353: no message and no writes.
        ScriptedPrompter prompts;
        FormCalcBarra f = form(QStringLiteral("353"), QString(), QStringLiteral("102"));
        EXPECT_EQ(cmdCalcBarraG(file.con, f), FimCalcBarra::Banco353);
        EXPECT_TRUE(prompts.calls.empty());
    }
    {
        // Bank 001 with an agreement of 6: the message after the first row is read; nothing written.
        ScriptedPrompter prompts;
        FormCalcBarra f = form(QStringLiteral("001"), QStringLiteral("123456"), QStringLiteral("18_"));
        EXPECT_EQ(cmdCalcBarraG(file.con, f), FimCalcBarra::Recusado);
        ASSERT_EQ(prompts.calls.size(), 1u);
        EXPECT_TRUE(prompts.last().text.startsWith(QStringLiteral("Atenção, Não foi estabelecido o número de convênio")));
    }
    {
        // A value the bar code's ten digits cannot hold: refused, no bar code kept.
        file.recibo(QStringLiteral("000004"), QStringLiteral("000101"), QStringLiteral("100000000"), QStringLiteral("01/15/2007"));
        ScriptedPrompter prompts;
        FormCalcBarra f = form(QStringLiteral("237"), QString(), QStringLiteral("06_"));
        EXPECT_EQ(cmdCalcBarra(file.con, f, QStringLiteral("4")), FimCalcBarra::Recusado);
        EXPECT_TRUE(prompts.last().text.contains(kValorForaDoCodigo));
    }
    for (const char *codigo : {"000001", "000002", "000003", "000004"})
        EXPECT_EQ(file.coluna(QString::fromLatin1(codigo), "barrabco"), QString()) << codigo;
}

// A saved empty bank code passes the occurrence test and has no rule: the
// receipts get the working fields as they stand, with a fresh factor.
TEST(CalcBarraRun, EmptyBankCodeWritesTheWorkingFields)
{
    BankFile file;
    fill(file);
    ScriptedPrompter prompts;
    FormCalcBarra f = form(QString(), QString(), QStringLiteral("___"));
    f.trabalho.nrbco = QStringLiteral("anterior");
    EXPECT_EQ(cmdCalcBarraG(file.con, f), FimCalcBarra::Calculado);
    EXPECT_EQ(file.coluna("000001", "nrbco"), QStringLiteral("anterior"));
    EXPECT_EQ(file.coluna("000001", "codbco"), QString());
    EXPECT_EQ(file.coluna("000001", "barrabco").left(1), QStringLiteral("9"));
}
