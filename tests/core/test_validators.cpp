#include "core/conversions.h"
#include "core/datastore.h"
#include "core/scramble.h"
#include "core/validators.h"
#include "support/fixtures.h"
#include "support/scriptedprompter.h"

#include <gtest/gtest.h>

TEST(ValidaCPF, ChecksBothDigitsAndComplainsOnlyAboutWrongDigits)
{
    ScriptedPrompter p;
    EXPECT_TRUE(ValidaCPF(QStringLiteral("11144477735")));
    EXPECT_TRUE(ValidaCPF(QStringLiteral("11111111111"))) << "equal digits that agree are accepted";
    EXPECT_TRUE(ValidaCPF(QStringLiteral("00000000000")));
    EXPECT_TRUE(p.calls.empty());

    EXPECT_FALSE(ValidaCPF(QStringLiteral("123")));
    EXPECT_FALSE(ValidaCPF(QStringLiteral(" 1114447773")));
    EXPECT_FALSE(ValidaCPF(QString()));
    EXPECT_TRUE(p.calls.empty()) << "a wrong length says nothing";

    EXPECT_FALSE(ValidaCPF(QStringLiteral("11144477736")));
    ASSERT_EQ(p.calls.size(), 1u);
    EXPECT_EQ(p.last().text, QStringLiteral("CPF Inválido !"));
    EXPECT_EQ(p.last().title, QStringLiteral("Erro"));
    EXPECT_EQ(p.last().style, vbCritical);

    // Trimmed it has eleven characters, but the input as it came differs.
    EXPECT_FALSE(ValidaCPF(QStringLiteral("11144477735 ")));
    EXPECT_EQ(p.calls.size(), 2u);
}

TEST(ValidaCPF, CheckDigitOfRemainderZeroOrOneIsZero)
{
    ScriptedPrompter p;
    // 100000001: first sum 1*2 + 1*10 = 12, remainder 1 -> 0; then 0 -> 1*3+1*11 = 14, 14 % 11 = 3 -> 8.
    EXPECT_TRUE(ValidaCPF(QStringLiteral("10000000108")));
    EXPECT_TRUE(p.calls.empty());
}

TEST(ValidaCGC, WeightsCycleFromTwoToNine)
{
    ScriptedPrompter p;
    EXPECT_TRUE(ValidaCGC(QStringLiteral("11222333000181")));
    EXPECT_TRUE(ValidaCGC(QStringLiteral("11111111111180")));
    EXPECT_FALSE(ValidaCGC(QStringLiteral("1122233300018")));
    EXPECT_TRUE(p.calls.empty());
    EXPECT_FALSE(ValidaCGC(QStringLiteral("11222333000182")));
    ASSERT_EQ(p.calls.size(), 1u);
    EXPECT_EQ(p.last().text, QStringLiteral("CGC Inválido !"));
    EXPECT_EQ(p.last().title, QStringLiteral("Erro"));
    EXPECT_EQ(p.last().style, vbCritical);
}

TEST(Embaralha, OneAlgorithmWithParityAndOffset)
{
    EXPECT_EQ(EmbaralhaSenha(QStringLiteral("AB")), QStringLiteral(" 7320.5="));
    EXPECT_EQ(EmbaralhaSenha(QString()), QStringLiteral(" 0"));
    EXPECT_EQ(EmbaralhaAdm(QStringLiteral("AB")), QStringLiteral(" 8580.5D"));
    EXPECT_EQ(EmbaralhaAdm(QString()), QStringLiteral(" 0"));
    // Codes are those of the Windows code page, both ways.
    EXPECT_EQ(EmbaralhaAdm(QStringLiteral("aé")), QStringLiteral(" 54450ë"));
    EXPECT_EQ(EmbaralhaAdm(QStringLiteral("a€")), QStringLiteral(" 25312.5‚"));
    EXPECT_EQ(EmbaralhaSenha(QStringLiteral("senha123")), EmbaralhaSenha(QStringLiteral("senha123")));
    EXPECT_NE(EmbaralhaSenha(QStringLiteral("senha123")), EmbaralhaSenha(QStringLiteral("senha124")));
}

TEST(Embaralha, SumAbove32767AndCodesAbove255AreFailures)
{
    // Odd places carry 255 and even places 1: the sum reaches 32767 at place
    // 255 and overflows at place 256, before any code leaves 0..255.
    QString longText;
    for (int i = 0; i < 128; ++i)
        longText += QStringLiteral("ÿ\u0001");
    EXPECT_THROW(EmbaralhaAdm(longText), RunFailure);
    EXPECT_NO_THROW(EmbaralhaAdm(longText.left(255)));

    // Place 2 plus code 255 is no character.
    EXPECT_THROW(EmbaralhaAdm(QStringLiteral("ÿÿ")), RunFailure);
}

TEST(ValidaUF, FindsTheStateInTheSystemFile)
{
    TempProgramDir dir;
    dir.useInSession();
    EXPECT_TRUE(ValidaUF(QStringLiteral("SP")));
    EXPECT_TRUE(ValidaUF(QStringLiteral("AC")));
    EXPECT_FALSE(ValidaUF(QStringLiteral("XX")));
    EXPECT_FALSE(ValidaUF(QString()));
    // A quote breaks the statement: a database failure, never a silent false.
    EXPECT_THROW(ValidaUF(QStringLiteral("S'P")), DatabaseError);
}
