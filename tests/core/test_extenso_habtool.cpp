// The console commands of the conventions: their output is a contract.
#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>

namespace {
struct ToolRun {
    int status = -1;
    QString out, err;
};

ToolRun habtool(const QStringList &args)
{
    QProcess p;
    p.start(QStringLiteral(HAB_BIN_DIR "/habtool"), args);
    p.waitForFinished(60000);
    return {p.exitCode(), QString::fromUtf8(p.readAllStandardOutput()), QString::fromUtf8(p.readAllStandardError())};
}
} // namespace

TEST(HabtoolConventions, ExtensoPrintsTheMarkedTextAndTheTwoLines)
{
    const ToolRun r = habtool({QStringLiteral("extenso"), QStringLiteral("1234,50")});
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    const QStringList outLines = r.out.split(u'\n');
    ASSERT_EQ(outLines.size(), 4);
    EXPECT_EQ(outLines[0], QStringLiteral("UM MIL DU-ZEN-TOS E TRIN-TA E QUA-TRO RE-AIS E CIN-QUEN-TA CEN-TA-VOS"));
    EXPECT_EQ(outLines[1].size(), 37);
    EXPECT_EQ(outLines[2].size(), 77);

    const ToolRun narrow = habtool({QStringLiteral("extenso"), QStringLiteral("100"), QStringLiteral("20"), QStringLiteral("30")});
    EXPECT_EQ(narrow.out.split(u'\n').value(1), QStringLiteral("(CEM REAIS) ********"));

    const ToolRun tooLarge = habtool({QStringLiteral("extenso"), QStringLiteral("1000000000,00")});
    EXPECT_EQ(tooLarge.status, 1);
    EXPECT_TRUE(tooLarge.out.isEmpty());
    EXPECT_FALSE(tooLarge.err.isEmpty());

    EXPECT_EQ(habtool({QStringLiteral("extenso")}).status, 2);
}

TEST(HabtoolConventions, CpfCgcAndEmbaralha)
{
    EXPECT_EQ(habtool({QStringLiteral("cpf"), QStringLiteral("11144477735")}).out, QStringLiteral("True\n"));
    const ToolRun wrong = habtool({QStringLiteral("cpf"), QStringLiteral("11144477736")});
    EXPECT_EQ(wrong.out, QStringLiteral("False\n"));
    EXPECT_TRUE(wrong.err.contains(QStringLiteral("CPF Inválido !")));
    EXPECT_EQ(habtool({QStringLiteral("cgc"), QStringLiteral("11222333000181")}).out, QStringLiteral("True\n"));

    EXPECT_EQ(habtool({QStringLiteral("embaralha"), QStringLiteral("senha"), QStringLiteral("AB")}).out,
              QStringLiteral("[ 7320.5=]\n"));
    EXPECT_EQ(habtool({QStringLiteral("embaralha"), QStringLiteral("adm"), QString()}).out, QStringLiteral("[ 0]\n"));
    EXPECT_EQ(habtool({QStringLiteral("embaralha"), QStringLiteral("outro"), QStringLiteral("AB")}).status, 2);
}
