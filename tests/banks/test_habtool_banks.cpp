#include "bankfile.h"
#include "banks/bancos.h"
#include "support/habtoolrun.h"

#include <QFile>
#include <gtest/gtest.h>

TEST(HabtoolBanks, DigitFactorAndSlip)
{
    EXPECT_EQ(habtool({"dv", "Modulo10", "1"}).out, QStringLiteral("8\n"));
    EXPECT_EQ(habtool({"dv", "Modulo11Letra", "6"}).out, QStringLiteral("P\n"));
    EXPECT_EQ(habtool({"dv", "Modulo11Barra", "12P"}).out, QStringLiteral("\n"));
    EXPECT_EQ(habtool({"dv", "Modulo12", "1"}).exitCode, 2);
    EXPECT_EQ(habtool({"fator", "03/07/2000"}).out, QStringLiteral("1000\n"));
    EXPECT_EQ(habtool({"fator", "22/02/2025"}).out, QStringLiteral("10000\n"));

    const HabtoolResult itau = habtool({"boleto", "341", "codigo=000321", "vtotal=432,10", "dvencto=15/01/2007",
                                        "agencia=0057", "cedente=12345-6", "carteira=109"});
    EXPECT_EQ(itau.exitCode, 0);
    EXPECT_EQ(itau.out, QStringLiteral("nrbco=000003218\n"
                                       "campolivre=1090000032180057123456000\n"
                                       "barrabco=34198338700000432101090000032180057123456000\n"
                                       "lindigbco=34191.09008 00032.180051 71234.560002 8 33870000043210\n"));

    // 422 without nnr starts at the receipt; with nnr one above it.
    const HabtoolResult safra = habtool({"boleto", "422", "codigo=000500", "vtotal=99.99", "dvencto=20/02/2008",
                                         "agencia=0123", "cedente=123456-7", "carteira=01_", "nnr=12345678"});
    EXPECT_TRUE(safra.out.startsWith(QStringLiteral("nrbco=123456797\n")));
    EXPECT_TRUE(safra.out.endsWith(QStringLiteral("ritaunn=12345679\n")));
    EXPECT_TRUE(habtool({"boleto", "422", "codigo=000500", "vtotal=1", "dvencto=20/02/2008", "nnr=0"})
                    .out.startsWith(QStringLiteral("nrbco=5002\n")));

    // 151: the form-level agency changes the digit.
    const QStringList nossaCaixa{"boleto", "151", "codigo=000789", "vtotal=1000", "dvencto=30/06/2008",
                                 "agencia=0456", "cedente=1234567", "carteira=01_"};
    EXPECT_TRUE(habtool(nossaCaixa).out.startsWith(QStringLiteral("nrbco=0000007891\n")));
    EXPECT_TRUE(habtool(nossaCaixa + QStringList{"agenciaform=0456"}).out.startsWith(QStringLiteral("nrbco=0000007890\n")));

    const HabtoolResult refused = habtool({"boleto", "001", "codigo=1", "vtotal=1", "dvencto=01/01/2007",
                                           "convenio=123456", "carteira=18_"});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(refused.out.isEmpty());
    EXPECT_TRUE(refused.err.contains(QStringLiteral("convênio de 7 posições")));
}

TEST(HabtoolBanks, BarrasRunsOnACondominiumFile)
{
    BankFile file;
    file.apto(QStringLiteral("000101"), QStringLiteral("Ana"), QStringLiteral("123.456.789-09"));
    file.recibo(QStringLiteral("000045"), QStringLiteral("000101"), QStringLiteral("150"), QStringLiteral("04/10/2004"));
    file.recibo(QStringLiteral("000046"), QStringLiteral("000101"), QStringLiteral("150"), QStringLiteral("04/10/2004"));
    file.parametros(QStringLiteral("104"), QStringLiteral("0123"), QStringLiteral("00123"), QStringLiteral("870"),
                    QStringLiteral("00"));

    const HabtoolResult one = habtool({"barras", file.path(), "--data", "10/01/2007", "--recibo", "45"});
    EXPECT_EQ(one.exitCode, 0) << one.err.toStdString();
    EXPECT_TRUE(one.err.contains(QStringLiteral("Código de Barra e Linha Digitável Calculada")));
    EXPECT_EQ(file.coluna("000045", "barrabco"), QStringLiteral("10496237700000150008200000045012387000000123"));
    EXPECT_EQ(file.coluna("000045", "nrbco"), QStringLiteral("82000000455"));
    EXPECT_EQ(file.coluna("000045", "demisbco"), QStringLiteral("10/01/2007"));
    EXPECT_EQ(file.coluna("000046", "barrabco"), QString());

    // Without a selection: the open receipts without a number, so only 000046.
    EXPECT_EQ(habtool({"barras", file.path(), "--data", "11/01/2007"}).exitCode, 0);
    EXPECT_EQ(file.coluna("000046", "codbco"), QStringLiteral("104"));
    EXPECT_EQ(file.coluna("000045", "demisbco"), QStringLiteral("10/01/2007"));
    const HabtoolResult none = habtool({"barras", file.path()});
    EXPECT_EQ(none.exitCode, 1);
    EXPECT_TRUE(none.err.contains(QStringLiteral("Não há registros para esta condição !")));

    file.parametros(QStringLiteral("341"), QStringLiteral("0057"), QStringLiteral("12345-6"), QString(),
                    QStringLiteral("109"));
    const HabtoolResult itau = habtool({"barras", file.path(), "--select", "SELECT * FROM Recibos"});
    EXPECT_EQ(itau.exitCode, 1);
    EXPECT_TRUE(itau.err.contains(QStringLiteral("Este Banco utiliza emissão de Remessa !")));
}

TEST(HabtoolBanks, RemessaRunsOnACondominiumFile)
{
    BankFile file;
    file.apto(QStringLiteral("000101"), QStringLiteral("Ana Müller"), QStringLiteral("123.456.789-09"));
    file.recibo(QStringLiteral("000001"), QStringLiteral("000101"), QStringLiteral("99.99"), QStringLiteral("02/20/2008"));
    file.recibo(QStringLiteral("000002"), QStringLiteral("000101"), QStringLiteral("99.99"), QStringLiteral("02/20/2008"));
    file.parametros(QStringLiteral("422"), QStringLiteral("0123"), QStringLiteral("123456-7"), QString(),
                    QStringLiteral("01"), QStringLiteral("12345678"));
    const QString out = file.dir.path() + QStringLiteral("SAFRA.TXT");

    const HabtoolResult run = habtool({"remessa", file.path(), out, "--data", "10/01/2008"});
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(run.err.contains(QStringLiteral("Arquivo Finalizado, foram gerados 0002 recibos neste arquivo !")));
    QFile f(out);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray bytes = f.readAll();
    f.close();
    EXPECT_EQ(bytes.size(), 4 * 402);
    EXPECT_EQ(bytes.mid(402 + 62, 9), QByteArray("123456797"));
    EXPECT_EQ(bytes.mid(402 + 234, 10), QByteArray("Ana Muller"));
    EXPECT_EQ(file.ritauNn(), QStringLiteral("12345680"));
    EXPECT_EQ(file.coluna("000002", "codbco"), QStringLiteral("422"));

    // The file exists: without --sim the answer is No and the file stays.
    const HabtoolResult again = habtool({"remessa", file.path(), out, "--select", "SELECT * FROM Recibos"});
    EXPECT_EQ(again.exitCode, 1);
    EXPECT_TRUE(again.err.contains(QStringLiteral("sobregrava ?")));
    EXPECT_EQ(file.ritauNn(), QStringLiteral("12345680"));
    const HabtoolResult yes = habtool({"remessa", file.path(), out, "--select", "SELECT * FROM Recibos", "--sim"});
    EXPECT_EQ(yes.exitCode, 0) << yes.err.toStdString();
    EXPECT_EQ(file.ritauNn(), QStringLiteral("12345682"));

    file.parametros(QStringLiteral("104"), QStringLiteral("0123"), QStringLiteral("12345678"), QStringLiteral("870"),
                    QStringLiteral("00"));
    const HabtoolResult caixa = habtool({"remessa", file.path(), out, "--sim"});
    EXPECT_EQ(caixa.exitCode, 1);
    EXPECT_TRUE(caixa.err.contains(QStringLiteral("Este Banco não utiliza Remessa !")));
}
