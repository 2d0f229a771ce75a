#include "banks/checkdigits.h"
#include "core/conversions.h"

#include <gtest/gtest.h>
#include <limits>

namespace {
const std::vector<QString (*)(const QString &)> allRoutines{Modulo10,      Modulo10Pesos,      Modulo11Barra,
                                                            Modulo11Resto, Modulo11Letra,      Modulo11Ascendente,
                                                            Modulo11Direto};
}

TEST(CheckDigits, TextThatIsNotANumberGivesNoDigit)
{
    for (auto routine : allRoutines) {
        EXPECT_EQ(routine(QString()), QString());
        EXPECT_EQ(routine(QStringLiteral("   ")), QString());
        EXPECT_EQ(routine(QStringLiteral("12345670000000005P")), QString());
        EXPECT_EQ(routine(QStringLiteral("12 34")), QString());
        EXPECT_EQ(routine(QStringLiteral("1,2,3")), QString());
        EXPECT_EQ(routine(QStringLiteral("123")).size(), 1);
    }
}

TEST(CheckDigits, Modulo10)
{
    EXPECT_EQ(Modulo10(QStringLiteral("0")), QStringLiteral("0"));
    EXPECT_EQ(Modulo10(QStringLiteral("1")), QStringLiteral("8"));
    // 9 x 2 = 18 counts as 1 + 8.
    EXPECT_EQ(Modulo10(QStringLiteral("9")), QStringLiteral("1"));
    // Weight 1 on the second digit from the right.
    EXPECT_EQ(Modulo10(QStringLiteral("10")), QStringLiteral("9"));
    // Field 1 of a 341 typed line: 341910900.
    EXPECT_EQ(Modulo10(QStringLiteral("341910900")), QStringLiteral("8"));
    EXPECT_EQ(Modulo10(QStringLiteral("0003218005")), QStringLiteral("1"));
}

TEST(CheckDigits, Modulo10PesosJumpsAtPosition15)
{
    // 23 digits: weights 3,7,9,1,3,7,9,1,3 for positions 23..15, then 1 at 14.
    EXPECT_EQ(Modulo10Pesos(QStringLiteral("00000000000001000000000")), QStringLiteral("9"));
    // ...and 3 at position 13.
    EXPECT_EQ(Modulo10Pesos(QStringLiteral("00000000000010000000000")), QStringLiteral("7"));
    // Position 15 itself carries 3.
    EXPECT_EQ(Modulo10Pesos(QStringLiteral("00000000000000100000000")), QStringLiteral("7"));
    // Shorter than 15: no jump, position 1 of 14 carries 7.
    EXPECT_EQ(Modulo10Pesos(QStringLiteral("10000000000000")), QStringLiteral("3"));
    // 16 digits: position 15 carries 7, so no jump; position 2 carries 9.
    EXPECT_EQ(Modulo10Pesos(QStringLiteral("0100000000000000")), QStringLiteral("1"));
    EXPECT_EQ(Modulo10Pesos(QStringLiteral("0")), QStringLiteral("0"));
    EXPECT_EQ(Modulo10Pesos(QStringLiteral("1")), QStringLiteral("7"));
}

TEST(CheckDigits, Modulo11BarraAndResto)
{
    // Remainder 0 and 10 both give "1": Modulo11Barra never gives "0".
    EXPECT_EQ(Modulo11Barra(QStringLiteral("0")), QStringLiteral("1"));
    EXPECT_EQ(Modulo11Barra(QStringLiteral("6")), QStringLiteral("1"));   // 54 % 11 = 10
    EXPECT_EQ(Modulo11Barra(QStringLiteral("2")), QStringLiteral("7"));   // 18 % 11
    // Weights 9..2 then 9 again: the ninth digit from the right weighs 9.
    EXPECT_EQ(Modulo11Barra(QStringLiteral("100000000")), QStringLiteral("9"));
    EXPECT_EQ(Modulo11Barra(QStringLiteral("10000000")), QStringLiteral("2"));
    for (int d = 0; d <= 9; ++d)
        for (int e = 0; e <= 9; ++e)
            EXPECT_NE(Modulo11Barra(QString::number(d) + QString::number(e)), QStringLiteral("0"));

    EXPECT_EQ(Modulo11Resto(QStringLiteral("0")), QStringLiteral("0"));
    EXPECT_EQ(Modulo11Resto(QStringLiteral("6")), QStringLiteral("0"));
    EXPECT_EQ(Modulo11Resto(QStringLiteral("2")), QStringLiteral("7"));
    EXPECT_EQ(Modulo11Resto(QStringLiteral("00000000000123")), QStringLiteral("6"));
}

TEST(CheckDigits, Modulo11LetraAscendenteDireto)
{
    EXPECT_EQ(Modulo11Letra(QStringLiteral("6")), QStringLiteral("P"));   // 12 % 11 = 1, 11 - 1 = 10
    EXPECT_EQ(Modulo11Letra(QStringLiteral("0")), QStringLiteral("0"));   // 11 - 0 = 11
    EXPECT_EQ(Modulo11Letra(QStringLiteral("1")), QStringLiteral("9"));
    EXPECT_EQ(Modulo11Letra(QStringLiteral("1000000")), QStringLiteral("9")); // seventh digit weighs 2 again

    EXPECT_EQ(Modulo11Ascendente(QStringLiteral("6")), QStringLiteral("0"));
    EXPECT_EQ(Modulo11Ascendente(QStringLiteral("0")), QStringLiteral("1"));
    EXPECT_EQ(Modulo11Ascendente(QStringLiteral("1")), QStringLiteral("9"));
    EXPECT_EQ(Modulo11Ascendente(QStringLiteral("10000000")), QStringLiteral("2"));  // eighth weighs 9
    EXPECT_EQ(Modulo11Ascendente(QStringLiteral("100000000")), QStringLiteral("9")); // ninth weighs 2

    EXPECT_EQ(Modulo11Direto(QStringLiteral("5")), QStringLiteral("0"));   // 10 % 11
    EXPECT_EQ(Modulo11Direto(QStringLiteral("0")), QStringLiteral("0"));
    EXPECT_EQ(Modulo11Direto(QStringLiteral("1")), QStringLiteral("2"));
    EXPECT_EQ(Modulo11Direto(QStringLiteral("1000000")), QStringLiteral("2"));
    EXPECT_EQ(Modulo11Direto(QStringLiteral("100000")), QStringLiteral("7"));
}

TEST(CheckDigits, FatorVencimentoHasNoWrap)
{
    EXPECT_EQ(Fator_Vencimento(QDate(1997, 10, 7)), 0);
    EXPECT_EQ(Fator_Vencimento(QDate(1997, 10, 6)), -1);
    EXPECT_EQ(Fator_Vencimento(QDate(2000, 7, 2)), 999);
    EXPECT_EQ(Fator_Vencimento(QDate(2000, 7, 3)), 1000);
    EXPECT_EQ(Fator_Vencimento(QDate(2007, 1, 15)), 3387);
    EXPECT_EQ(Fator_Vencimento(QDate(2025, 2, 21)), 9999);
    EXPECT_EQ(Fator_Vencimento(QDate(2025, 2, 22)), 10000);
    EXPECT_THROW(Fator_Vencimento(QDate()), RunFailure);
    EXPECT_THROW(Fator_Vencimento(QDate(2200, 1, 1)), RunFailure);
}

TEST(CheckDigits, MontaBarraAndMontaLinhaPutTheFieldsInPlace)
{
    const QString livre = QStringLiteral("1090000032180057123456000");
    const QString barra = Monta_Barra(QStringLiteral("341"), QStringLiteral("9"), Money::fromDouble(432.10), 3387, livre);
    EXPECT_EQ(barra, QStringLiteral("34198338700000432101090000032180057123456000"));

    EXPECT_EQ(valorBarra(Money::fromDouble(1234.50)), QStringLiteral("0000123450"));
    EXPECT_EQ(valorBarra(Money()), QStringLiteral("0000000000"));
    // Ten digits of centavos hold up to 99.999.999,99; more stops the run.
    EXPECT_EQ(valorBarra(Money::fromUnits(999'999'999'900)), QStringLiteral("9999999999"));
    for (const int64_t units : {int64_t(1'000'000'000'000), std::numeric_limits<int64_t>::max()})
        EXPECT_THROW(valorBarra(Money::fromUnits(units)), RunFailure) << units;

    // A factor of 3 or 5 digits is left as it falls: the code is shorter or longer.
    EXPECT_EQ(Monta_Barra(QStringLiteral("341"), QStringLiteral("9"), Money::fromDouble(1), 999, livre).size(), 43);
    EXPECT_EQ(Monta_Barra(QStringLiteral("341"), QStringLiteral("9"), Money::fromDouble(1), 10000, livre).size(), 45);

    const QString linha = Monta_Linha(QStringLiteral("341"), QStringLiteral("3419") + livre, QStringLiteral("8"),
                                      Money::fromDouble(432.10), 3387);
    EXPECT_EQ(linha, QStringLiteral("34191.09008 00032.180051 71234.560002 8 33870000043210"));
}
