// The console commands of the conventions: their output is a contract.
#include "support/habtoolrun.h"

#include <gtest/gtest.h>

TEST(HabtoolConventions, ExtensoPrintsTheMarkedTextAndTheTwoLines)
{
    const HabtoolResult r = habtool({"extenso", "1234,50"});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    const QStringList outLines = r.out.split(u'\n');
    ASSERT_EQ(outLines.size(), 4);
    EXPECT_EQ(outLines[0], QStringLiteral("UM MIL DU-ZEN-TOS E TRIN-TA E QUA-TRO RE-AIS E CIN-QUEN-TA CEN-TA-VOS"));
    EXPECT_EQ(outLines[1].size(), 37);
    EXPECT_EQ(outLines[2].size(), 77);

    EXPECT_EQ(habtool({"extenso", "100", "20", "30"}).out.split(u'\n').value(1), QStringLiteral("(CEM REAIS) ********"));

    const HabtoolResult tooLarge = habtool({"extenso", "1000000000,00"});
    EXPECT_EQ(tooLarge.exitCode, 1);
    EXPECT_TRUE(tooLarge.out.isEmpty());
    EXPECT_FALSE(tooLarge.err.isEmpty());

    EXPECT_EQ(habtool({"extenso"}).exitCode, 2);
}

TEST(HabtoolConventions, CpfCgcAndEmbaralha)
{
    EXPECT_EQ(habtool({"cpf", "11144477735"}).out, QStringLiteral("True\n"));
    const HabtoolResult wrong = habtool({"cpf", "11144477736"});
    EXPECT_EQ(wrong.out, QStringLiteral("False\n"));
    EXPECT_TRUE(wrong.err.contains(QStringLiteral("CPF Inválido !")));
    EXPECT_EQ(habtool({"cgc", "11222333000181"}).out, QStringLiteral("True\n"));

    EXPECT_EQ(habtool({"embaralha", "senha", "AB"}).out, QStringLiteral("[ 7320.5=]\n"));
    EXPECT_EQ(habtool({"embaralha", "adm", QString()}).out, QStringLiteral("[ 0]\n"));
    EXPECT_EQ(habtool({"embaralha", "outro", "AB"}).exitCode, 2);
}
