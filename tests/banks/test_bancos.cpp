#include "banks/bancos.h"
#include "banks/boletoimpressao.h"

#include "banks/checkdigits.h"
#include "core/conversions.h"
#include "core/installation.h"
#include "slipcheck.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace {
ReciboBanco recibo(const char *codigo, double valor, QDate vencto)
{
    return ReciboBanco{QString::fromLatin1(codigo), Money::fromDouble(valor), vencto};
}

ParametrosBanco parametros(const char *banco, const char *agencia, const char *cedente, const char *convenio,
                           const char *carteira)
{
    ParametrosBanco p;
    p.banco = QString::fromLatin1(banco);
    p.agencia = QString::fromLatin1(agencia);
    p.cedente = QString::fromLatin1(cedente);
    p.convenio = QString::fromLatin1(convenio);
    p.carteira = QString::fromLatin1(carteira);
    return p;
}
} // namespace

// The slips below were worked out by hand from each bank's rule and checked
// by the FEBRABAN layout (slipcheck.h).

TEST(Banco001, AgreementOfSevenAndTheLetterP)
{
    const auto p = parametros("001", "0123", "12345", "1234567", "18_");
    const Boleto b = Banco001(recibo("000123", 1234.50, QDate(2003, 3, 15)), p);
    expectSlip(b, "123456700000001234", "0000001234567000000012318", "00199198500001234500000001234567000000012318",
               "00190.00009 01234.567004 00000.123182 9 19850000123450", "001", "1985", "0000123450");

    // Receipt 5 has the digit "P": it shows in the number, never in the bar code.
    const Boleto withP = Banco001(recibo("000005", 50, QDate(2003, 3, 15)), parametros("001", "0123", "", "1234567", "17_"));
    EXPECT_EQ(withP.nrbco, QStringLiteral("12345670000000005P"));
    EXPECT_EQ(withP.barra, QStringLiteral("00193198500000050000000001234567000000000517"));
    expectSlipLayout(withP.barra, withP.linha, "001", "1985", "0000005000", withP.campoLivre);

    for (const char *agreement : {"123456", "12345678", ""}) {
        const Boleto refused = Banco001(recibo("000123", 10, QDate(2003, 3, 15)),
                                        parametros("001", "0123", "", agreement, "18_"));
        EXPECT_TRUE(refused.recusa.startsWith(QStringLiteral("Atenção, Não foi estabelecido o número de convênio de 7")));
        EXPECT_TRUE(refused.barra.isEmpty());
    }
}

TEST(Banco104, CedentFilledToEight)
{
    const auto p = parametros("104", "0123", "00123", "870", "00_");
    const Boleto b = Banco104(recibo("000045", 150.00, QDate(2004, 4, 10)), p);
    expectSlip(b, "82000000455", "8200000045012387000000123", "10496237700000150008200000045012387000000123",
               "10498.20002 00045.012382 70000.001233 6 23770000015000", "104", "2377", "0000015000");
    // The agreement goes as typed: a short one gives a short free field.
    EXPECT_EQ(Banco104(recibo("000045", 1, QDate(2004, 4, 10)), parametros("104", "0123", "123", "87", "00_"))
                  .campoLivre.size(),
              24);
}

TEST(Banco237, WalletFromTheTextWithPrompts)
{
    const auto p = parametros("237", "1234", "0012345", "", "06_");
    const Boleto b = Banco237(recibo("000077", 89.90, QDate(2005, 5, 5)), p);
    expectSlip(b, "06/00000000077-0", "1234060000000007700123450", "23794276700000089901234060000000007700123450",
               "23791.23405 60000.000004 77001.234507 4 27670000008990", "237", "2767", "0000008990");

    // Receipt 7 in wallet 06 has the digit "P", which stays out of the free field.
    const Boleto withP = Banco237(recibo("000007", 10, QDate(2005, 5, 5)), p);
    EXPECT_EQ(withP.nrbco, QStringLiteral("06/00000000007-P"));
    EXPECT_EQ(withP.campoLivre, QStringLiteral("1234060000000000700123450"));
    expectSlipLayout(withP.barra, withP.linha, "237", "2767", "0000001000", withP.campoLivre);
}

TEST(Banco409, NumberOfFourteenWithHyphen)
{
    const auto p = parametros("409", "0123", "1234567", "1234567", "___");
    const Boleto b = Banco409(recibo("000123", 250.00, QDate(2006, 10, 10)), p);
    expectSlip(b, "00000000000123-6", "5123456700000000000001236", "40995329000000250005123456700000000000001236",
               "40995.12347 56700.000005 00000.012369 5 32900000025000", "409", "3290", "0000025000");
}

TEST(Banco341, AccountWithItsDigit)
{
    const auto p = parametros("341", "0057", "12345-6", "", "109");
    const Boleto b = Banco341(recibo("000321", 432.10, QDate(2007, 1, 15)), p);
    EXPECT_EQ(b.dv, Modulo10(QStringLiteral("0057") + QStringLiteral("12345") + QStringLiteral("109") +
                             QStringLiteral("00000321")));
    expectSlip(b, "000003218", "1090000032180057123456000", "34198338700000432101090000032180057123456000",
               "34191.09008 00032.180051 71234.560002 8 33870000043210", "341", "3387", "0000043210");
    // A short wallet is filled to 3 from its bare text.
    EXPECT_TRUE(Banco341(recibo("000321", 1, QDate(2007, 1, 15)), parametros("341", "0057", "123456", "", "12_"))
                    .campoLivre.startsWith(QStringLiteral("012")));
}

TEST(Banco422, CounterAndShortNumber)
{
    const QString first = QStringLiteral("000500");
    EXPECT_EQ(contador422Inicial(QStringLiteral("12345678"), &first), 12345679);
    EXPECT_EQ(contador422Inicial(QStringLiteral("0"), &first), 500);
    EXPECT_EQ(contador422Inicial(QString(), &first), 500);
    EXPECT_EQ(contador422Inicial(QString(), nullptr), 1);
    EXPECT_THROW(contador422Inicial(QStringLiteral("123456789"), &first), RunFailure);

    const auto p = parametros("422", "0123", "123456-7", "", "01_");
    const Boleto b = Banco422(recibo("000500", 99.99, QDate(2008, 2, 20)), p, 12345679);
    expectSlip(b, "123456797", "7001230012345671234567972", "42299378800000099997001230012345671234567972",
               "42297.00127 30012.345671 12345.679729 9 37880000009999", "422", "3788", "0000009999");
    EXPECT_EQ(ritauNn422(b.nrbco), QStringLiteral("12345679"));

    // A counter below 8 digits: the number and free field come out short, and
    // RitauNn takes the check digit along.
    const Boleto shortOne = Banco422(recibo("000500", 99.99, QDate(2008, 2, 20)), p, 500);
    EXPECT_EQ(shortOne.nrbco, QStringLiteral("5002"));
    EXPECT_EQ(shortOne.campoLivre, QStringLiteral("70012300123456750022"));
    EXPECT_EQ(ritauNn422(shortOne.nrbco), QStringLiteral("5002"));
}

TEST(Banco151, PrefixAndFormLevelAgency)
{
    auto p = parametros("151", "0456", "1234567", "05", "01_");
    p.agenciaForm = QStringLiteral("0456");
    const Boleto b = Banco151(recibo("000789", 1000.00, QDate(2008, 6, 30)), p);
    EXPECT_EQ(b.dv, Modulo10Pesos(QStringLiteral("04560101234567000000789")));
    expectSlip(b, "0000007890", "9000078900456112345615113", "15193391900001000009000078900456112345615113",
               "15199.00003 78900.456118 23456.151135 3 39190000100000", "151", "3919", "0000100000");

    // First run after opening the form: the agency field is empty and the
    // digit weighs 19 digits.
    p.agenciaForm.clear();
    const Boleto first = Banco151(recibo("000789", 1000.00, QDate(2008, 6, 30)), p);
    EXPECT_EQ(first.dv, Modulo10Pesos(QStringLiteral("0101234567000000789")));
    EXPECT_EQ(first.nrbco, QStringLiteral("0000007891"));
    EXPECT_EQ(first.barra, QStringLiteral("15191391900001000009000078910456112345615192"));
    expectSlipLayout(first.barra, first.linha, "151", "3919", "0000100000", first.campoLivre);

    p.carteira = QStringLiteral("02_");
    EXPECT_TRUE(Banco151(recibo("000789", 1, QDate(2008, 6, 30)), p).nrbco.startsWith(QStringLiteral("00")));
    p.carteira = QStringLiteral("05_");
    EXPECT_EQ(Banco151(recibo("000789", 1, QDate(2008, 6, 30)), p).nrbco, QStringLiteral("9900007893"));
}

TEST(Banco353, NumberOfEightWithModulo11)
{
    const auto p = parametros("353", "1234", "123456", "", "102");
    const Boleto b = Banco353(recibo("000123", 75.25, QDate(2007, 12, 1)), p);
    expectSlip(b, "000001236", "9012345600000000012360102", "35391370700000075259012345600000000012360102",
               "35399.01235 45600.000009 00123.601023 1 37070000007525", "353", "3707", "0000007525");
}

TEST(Bancos, UnknownBankIsRefused)
{
    const Boleto b = calculaBoleto(QStringLiteral("999"), recibo("000001", 1, QDate(2007, 1, 1)), ParametrosBanco{});
    EXPECT_EQ(b.recusa, QStringLiteral("Programado apenas para os Bancos 001, 104, 151, 237, 341, 353, 409 e 422"));
}

// Many receipts, every bank: with a factor of 4 digits and a free field of 25
// the bar code has 44 digits and the typed line agrees with it.
TEST(Bancos, EverySlipFollowsTheLayout)
{
    QRandomGenerator rng(20240601);
    struct Case {
        const char *banco;
        ParametrosBanco p;
    };
    std::vector<Case> cases{
        {"001", parametros("001", "0123", "", "7654321", "18_")},
        {"104", parametros("104", "4321", "87654321", "870", "00_")},
        {"237", parametros("237", "0987", "7654321", "", "09_")},
        {"409", parametros("409", "0123", "1234567", "7654321", "___")},
        {"341", parametros("341", "0057", "98765-4", "", "175")},
        {"422", parametros("422", "0123", "123456-7", "", "01_")},
        {"151", parametros("151", "0456", "7654321", "05", "05_")},
        {"353", parametros("353", "1234", "654321", "", "102")},
    };
    for (int i = 0; i < 3000; ++i) {
        const QString codigo = QString::number(rng.bounded(1, 1000000)).rightJustified(6, u'0');
        const Money valor = Money::fromUnits(qint64(rng.bounded(1, 99999999)) * 100);
        const QDate vencto = QDate(2000, 7, 3).addDays(rng.bounded(0, 9000));
        for (auto &c : cases) {
            c.p.agenciaForm = (i % 2) ? c.p.agencia : QString();
            const Boleto b = calculaBoleto(c.p.banco, ReciboBanco{codigo, valor, vencto}, c.p, 10000000 + i);
            ASSERT_TRUE(b.recusa.isEmpty());
            ASSERT_EQ(b.campoLivre.size(), 25) << c.banco;
            const QString fator = QString::number(Fator_Vencimento(vencto));
            expectSlipLayout(b.barra, b.linha, QString::fromLatin1(c.banco), fator, valorBarra(valor), b.campoLivre);
            if (HasFailure())
                FAIL() << c.banco << " " << codigo.toStdString();
        }
    }
}

// The installation's cyclic factor: off, the factor keeps growing past 9999;
// on, from 22/02/2025 it restarts at 1000 and the 44-digit code reads back.
TEST(Bancos, FatorCiclicoPorData)
{
    struct Case {
        QDate vencto;
        int off, on;
    };
    const std::vector<Case> cases{{QDate(2008, 3, 10), 3807, 3807},
                                  {QDate(2025, 2, 21), 9999, 9999},
                                  {QDate(2025, 2, 22), 10000, 1000},
                                  {QDate(2026, 11, 23), 10639, 1639}};
    const ParametrosBanco p = parametros("341", "0057", "98765-4", "", "175");
    for (const Case &c : cases) {
        EXPECT_EQ(Fator_Vencimento(c.vencto, false), c.off) << c.vencto.toString().toStdString();
        EXPECT_EQ(Fator_Vencimento(c.vencto, true), c.on) << c.vencto.toString().toStdString();
        fatorVencimentoCiclico = true;
        const Boleto b = calculaBoleto(p.banco, ReciboBanco{QStringLiteral("000123"), Money::fromUnits(5573700), c.vencto}, p);
        fatorVencimentoCiclico = false;
        expectSlipLayout(b.barra, b.linha, p.banco, QString::number(c.on), valorBarra(Money::fromUnits(5573700)),
                         b.campoLivre);
    }
}

// A bar code the engine cannot draw (a 422 counter under eight digits gives 37
// or 38 digits) prints a slip without bars: the print names those receipts.
TEST(Boletos, ReceiptsWhoseBarCodeIsNotFortyFourDigitsAreNamed)
{
    ImpressaoBoletos impressao;
    impressao.colunas = colunasBoleto();
    const qsizetype barra = impressao.colunas.indexOf(QStringLiteral("barrabco"));
    const qsizetype numero = impressao.colunas.indexOf(QStringLiteral("NumDoc"));
    const struct {
        const char *recibo, *codigo;
    } casos[] = {
        {"000001", "34191380700000647501090000001100074200458260"},  // 44 digits: drawn
        {"000002", "4229380700000647501234567000000000"},            // short
        {"000003", ""},                                               // never computed
        {"000004", "3419138070000064750109000000110007420045826X"},  // not all digits
    };
    for (const auto &c : casos) {
        QStringList linha(impressao.colunas.size());
        linha[barra] = QString::fromLatin1(c.codigo);
        linha[numero] = QString::fromLatin1(c.recibo);
        impressao.linhas.push_back(linha);
    }
    EXPECT_EQ(recibosSemBarraValida(impressao), (QStringList{"000002", "000003", "000004"}));
}
