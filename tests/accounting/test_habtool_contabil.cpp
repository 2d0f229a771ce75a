#include "accounting/atualiza.h"
#include "contabil.h"
#include "support/habtoolrun.h"

namespace {
// The lines of the output, without the last line's end.
QStringList saida(const HabtoolResult &r)
{
    QString texto = r.out;
    if (texto.endsWith(QLatin1Char('\n')))
        texto.chop(1);
    return texto.isEmpty() ? QStringList() : texto.split(QLatin1Char('\n'));
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

    const HabtoolResult atualiza = habtool({S("atualiza"), arquivo, S("03/2008")});
    EXPECT_EQ(atualiza.exitCode, 0);
    EXPECT_EQ(saida(atualiza), QStringList({kPasso1, kPasso2, kPasso3, kPasso4, kAtualizacaoFinalizada}));

    const HabtoolResult pcontas = habtool({S("pcontas"), arquivo, S("2008"), S("3"), S("--caixa")});
    EXPECT_EQ(pcontas.exitCode, 0);
    EXPECT_EQ(saida(pcontas), QStringList({S("-499,50")}));

    const HabtoolResult demonstrativo = habtool({S("demonstrativo"), arquivo, S("2"), S("3"), S("2008")});
    EXPECT_EQ(demonstrativo.exitCode, 0);
    const QStringList texto = saida(demonstrativo);
    ASSERT_GE(texto.size(), 2);
    EXPECT_EQ(texto.at(1), S("PRESTAÇÃO DE CONTAS DE Março/2008"));
    EXPECT_TRUE(texto.contains(S("DÉFICIT TOTAL DO MÊS (Receitas - Despesas)........     499,50")));

    EXPECT_EQ(habtool({S("razao"), arquivo, S("2008"), S("3"), S("02.001"), S("02.999")}).exitCode, 0);
    con.Open(connectionString(dir.path(), S("Con001.mdb"), QString()));
    EXPECT_EQ(linhas(S("SELECT * FROM MovRazao")), 2);  // opening line and the debit of 02.001
    EXPECT_EQ(plano(S("03.001"), S("sf03")), reais("-499,5"));
    con.Close();

    EXPECT_EQ(habtool({S("razao"), arquivo, S("2008"), S("7")}).exitCode, 1);       // no entries in July
    EXPECT_EQ(habtool({S("balancete"), arquivo, S("2008"), S("5"), S("3")}).exitCode, 2);
    con.Open(connectionString(dir.path(), S("Con001.mdb"), QString()));
    EXPECT_EQ(linhas(S("SELECT * FROM MovRazao")), 0);  // emptied before July was found empty
}
