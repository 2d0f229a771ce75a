#include "accounting/atualiza.h"
#include "contabil.h"

#include <QProcess>

namespace {
QString S(const char *t) { return QString::fromUtf8(t); }

struct Saida {
    int status;
    QStringList linhas;
};

Saida habtool(const QStringList &args)
{
    QProcess p;
    p.start(builtProgramDir() + QStringLiteral("habtool"), args);
    p.waitForFinished(120000);
    QString texto = QString::fromUtf8(p.readAllStandardOutput());
    if (texto.endsWith(QLatin1Char('\n')))
        texto.chop(1);
    return {p.exitCode(), texto.isEmpty() ? QStringList() : texto.split(QLatin1Char('\n'))};
}
} // namespace

// The output formats of the accounting commands are a contract.
TEST_F(Contabil, HabtoolCommandsRunTheRoutinesOnAFile)
{
    planoPadrao();
    lanca(S("05/03/2008"), S("03.001"), S("01.001"), S("1500,5"));
    lanca(S("10/03/2008"), S("02.001"), S("03.001"), S("2000"));
    con.Close();
    const QString arquivo = dir.file(S("Con001.mdb"));

    const Saida atualiza = habtool({S("atualiza"), arquivo, S("03/2008")});
    EXPECT_EQ(atualiza.status, 0);
    EXPECT_EQ(atualiza.linhas, QStringList({kPasso1, kPasso2, kPasso3, kPasso4, kAtualizacaoFinalizada}));

    const Saida pcontas = habtool({S("pcontas"), arquivo, S("2008"), S("3"), S("--caixa")});
    EXPECT_EQ(pcontas.status, 0);
    EXPECT_EQ(pcontas.linhas, QStringList({S("-499,50")}));

    const Saida demonstrativo = habtool({S("demonstrativo"), arquivo, S("2"), S("3"), S("2008")});
    EXPECT_EQ(demonstrativo.status, 0);
    ASSERT_GE(demonstrativo.linhas.size(), 2);
    EXPECT_EQ(demonstrativo.linhas.at(1), S("PRESTAÇÃO DE CONTAS DE Março/2008"));
    EXPECT_TRUE(demonstrativo.linhas.contains(S("DÉFICIT TOTAL DO MÊS (Receitas - Despesas)........     499,50")));

    EXPECT_EQ(habtool({S("razao"), arquivo, S("2008"), S("3"), S("02.001"), S("02.999")}).status, 0);
    con.Open(connectionString(dir.path(), S("Con001.mdb"), QString()));
    EXPECT_EQ(linhas(S("SELECT * FROM MovRazao")), 2);  // opening line and the debit of 02.001
    EXPECT_EQ(plano(S("03.001"), S("sf03")), reais("-499,5"));
    con.Close();

    EXPECT_EQ(habtool({S("razao"), arquivo, S("2008"), S("7")}).status, 1);       // no entries in July
    EXPECT_EQ(habtool({S("balancete"), arquivo, S("2008"), S("5"), S("3")}).status, 2);
    con.Open(connectionString(dir.path(), S("Con001.mdb"), QString()));
    EXPECT_EQ(linhas(S("SELECT * FROM MovRazao")), 0);  // emptied before July was found empty
}
