#include "banks/demonstrativo.h"
#include "contabil.h"
#include "support/scriptedprompter.h"

#include <QFile>
#include <QTemporaryDir>

namespace {
QString brancos(int n) { return QString(n, QLatin1Char(' ')); }

std::vector<QString> buffer()
{
    return std::vector<QString>(session.demonstrativo.begin(),
                                session.demonstrativo.begin() + std::max<int>(0, session.linhasDemonstrativo));
}
} // namespace

class Demonstrativo : public Contabil {
protected:
    void linha(const char *codigo, const char *nome, const char *tipo, const char *classe, const char *sini,
               const char *vdeb, const char *vcre, const char *sfin, const char *spct)
    {
        con.Execute(S("INSERT INTO RBalancete(codigo,nome,tipo,classe,sintetico,sini,vdeb,vcre,sfin,spct,spo) VALUES ('%1','%2','%3','%4',%5,'%6','%7','%8','%9','%10','0')")
                        .arg(S(codigo), S(nome), S(tipo), S(classe),
                             QString::fromLatin1(strlen(codigo) == 3 ? "True" : "False"), S(sini), S(vdeb), S(vcre),
                             S(sfin))
                        .arg(S(spct)));
    }
    void SetUp() override
    {
        Contabil::SetUp();
        linha("01.", "RECEITAS", "R", "O", "0", "0", "0", "-7000", "-1600");
        linha("01.001", "Taxa condominial", "R", "O", "0", "0", "1200", "-6000", "-1200");
        linha("01.002", "Multas", "R", "E", "0", "0", "300", "-900", "-300");
        linha("01.003", "Juros", "R", "E", "0", "0", "0", "-50", "0");
        linha("04.", "OUTRAS RECEITAS", "R", "E", "0", "0", "0", "-100", "-100");
        linha("04.001", "Aluguel do salão", "R", "E", "0", "0", "100", "-100", "-100");
        linha("02.", "DESPESAS", "D", "O", "0", "0", "0", "5000", "2000");
        linha("02.001", "Água", "D", "O", "0", "2000", "0", "5000", "2000");
        linha("02.002", "Energia", "D", "O", "0", "0", "0", "0", "0");
        linha("03.", "DISPONÍVEL", "C", "C", "1700", "1500", "2000", "1200", "-500");
        linha("03.001", "Banco Itaú - conta movimento", "C", "C", "1000", "1500", "2000", "500", "-500");
        linha("03.002", "Caixa", "C", "C", "0", "0", "0", "0", "0");
        linha("03.003", "Poupança", "C", "C", "700", "0", "0", "700", "0");
    }
};

TEST_F(Demonstrativo, Model1WritesBalancesSectionsGroupsAndResults)
{
    TotaisDemonstrativo totais;
    Monta_Demonstrativo(con, totais, 1, S("3"), S("2008"));
    const std::vector<QString> b = buffer();
    ASSERT_EQ(b.size(), 25u);
    const QString igual(70, QLatin1Char('='));
    EXPECT_EQ(b[0], igual);
    EXPECT_EQ(b[1], S("DEMONSTRATIVO MENSAL REFERENTE Março/2008"));
    EXPECT_EQ(b[2], igual);

    // Balances: synthetic and all-zero rows left out; the name cut to 21.
    EXPECT_EQ(b[4], S("SALDO DAS CONTAS:     Mês Anterior   Débito       Crédito     Mês Atual"));
    EXPECT_EQ(b[6], S("Banco Itaú - conta mo ") + S("    1.000,00") + S("    1.500,00") + S("    2.000,00") +
                        S("      500,00"));
    EXPECT_EQ(b[7], S("Poupança              ") + S("      700,00") + S("        0,00") + S("        0,00") +
                        S("      700,00"));

    // Receipts without sign; a synthetic row closes the group before it;
    // Juros (zero in the month) is left out.
    EXPECT_EQ(b[9], S("DEMONSTRAÇÃO DAS RECEITAS:               Valor Mês:   Acumulado Anual:"));
    EXPECT_EQ(b[11], S("Taxa condominial").leftJustified(40) + S("   1.200,00") + S("           6.000,00"));
    EXPECT_EQ(b[12], S("Multas").leftJustified(40) + S("     300,00") + S("             900,00"));
    EXPECT_EQ(b[13], brancos(41) + QString(10, QLatin1Char('-')) + brancos(9) + QString(10, QLatin1Char('-')));
    EXPECT_EQ(b[14], brancos(25) + S("Total..........") + S("   1.500,00") + S("           6.900,00"));
    EXPECT_EQ(b[15], S("Aluguel do salão").leftJustified(40) + S("     100,00") + S("             100,00"));
    EXPECT_EQ(b[16], brancos(15) + S("Total das Receitas ......") + S("   1.600,00") + S("           7.000,00"));

    // Expenses with the sign turned; Energia (zero) left out.
    EXPECT_EQ(b[18], S("DEMONSTRAÇÃO DAS DESPESAS:               Valor Mês:   Acumulado Anual:"));
    EXPECT_EQ(b[20], S("Água").leftJustified(40) + S("  -2.000,00") + S("          -5.000,00"));
    EXPECT_EQ(b[21], brancos(15) + S("Total das Despesas ......") + S("  -2.000,00") + S("          -5.000,00"));

    // 1.600 - 2.000 in the month is a deficit shown without sign; the year
    // 7.000 - 5.000 a surplus.
    EXPECT_EQ(b[23], S("DÉFICIT TOTAL DO MÊS (Receitas - Despesas)........") + S("       400,00"));
    EXPECT_EQ(b[24], S("SUPERÁVIT ACUMULADO NO ANO (Receitas - Despesas)..") + S("     2.000,00"));
    EXPECT_EQ(totais.receitasMes, reais("1600"));
    EXPECT_EQ(totais.despesasAno, reais("5000"));
    EXPECT_EQ(b[6].length(), 70);
    EXPECT_EQ(b[14].length(), 70);
}

TEST_F(Demonstrativo, Model2WithoutReceiptsWritesNoReceiptsHeading)
{
    con.Execute(S("UPDATE RBalancete SET spct = '0' WHERE tipo = 'R'"));
    session.demonstrativo.fill(S("antigo"));
    TotaisDemonstrativo totais;
    Monta_Demonstrativo(con, totais, 2, S("12"), S("2008"));
    const std::vector<QString> b = buffer();
    EXPECT_EQ(b[1], S("PRESTAÇÃO DE CONTAS DE Dezembro/2008"));
    for (const QString &l : b)
        EXPECT_FALSE(l.startsWith(S("RECEBIMENTOS"))) << l.toStdString();
    EXPECT_EQ(session.demonstrativo[size_t(session.linhasDemonstrativo)], QString());  // the old text is gone

    ASSERT_EQ(b.size(), 16u);
    EXPECT_EQ(b[4], S("DESPESAS DO MÊS:                         Valor Mês:"));
    EXPECT_EQ(b[6], S("Água").leftJustified(40) + S("  -2.000,00"));
    EXPECT_EQ(b[7], brancos(15) + S("Total das Despesas ......") + S("  -2.000,00"));
    EXPECT_EQ(b[9], S("DÉFICIT TOTAL DO MÊS (Receitas - Despesas)........") + S("   2.000,00"));
    EXPECT_EQ(b[11], S("SALDOS BANCÁRIOS:"));
    EXPECT_EQ(b[12], S("Banco/Conta:                  Saldo Mês Anterior   Saldo Mês Atual"));
    EXPECT_EQ(b[14], S("Banco Itaú - conta mo ") + S("              1.000,00") + S("               500,00"));
    EXPECT_EQ(b[15], S("Poupança              ") + S("                700,00") + S("               700,00"));
}

TEST(CarregaTexto, KeepsAtMost118LinesCutTo70AndDropsTheLastLineRead)
{
    QTemporaryDir dir;
    const QString caminho = dir.filePath(S("texto.txt"));
    auto escreve = [&](int n) {
        QFile f(caminho);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        for (int i = 1; i <= n; ++i)
            f.write((S("Linha %1 ").arg(i) + (i == 2 ? QString(80, QLatin1Char('x')) : S("ç")) + S("\r\n")).toUtf8());
    };

    // Exactly 118 lines: the 118th reaches the end of the file and is not kept.
    escreve(118);
    session.arqway = caminho;
    Carrega_Texto(S("Extra 1"), QString(), S("Extra 3"), QString());
    EXPECT_EQ(session.linhasDemonstrativo, 120);
    EXPECT_EQ(session.demonstrativo[0], S("Linha 1 ç"));
    EXPECT_EQ(session.demonstrativo[1].length(), 70);
    EXPECT_EQ(session.demonstrativo[116], S("Linha 117 ç"));
    EXPECT_EQ(session.demonstrativo[117], QString());
    EXPECT_EQ(session.demonstrativo[118], S("Extra 1"));
    EXPECT_EQ(session.demonstrativo[119], S("Extra 3"));
    EXPECT_EQ(session.demonstrativo[120], QString());

    // A longer file loses the rest; with 118 lines kept, the buffer holds
    // three extra lines and a fourth runs out of it.
    escreve(200);
    Carrega_Texto(S("A"), S("B"), S("C"), QString());
    EXPECT_EQ(session.linhasDemonstrativo, 122);
    EXPECT_EQ(session.demonstrativo[117], S("Linha 118 ç"));
    EXPECT_EQ(session.demonstrativo[121], S("C"));
    EXPECT_THROW(Carrega_Texto(S("A"), S("B"), S("C"), S("D")), RunFailure);

    // No path: the message, and the buffer as it was.
    ScriptedPrompter p;
    session.arqway.clear();
    session.demonstrativo[0] = S("fica");
    Carrega_Texto(QString(), QString(), QString(), QString());
    ASSERT_EQ(p.calls.size(), 1u);
    EXPECT_EQ(p.last().text, S("Selecione Novamente o Arquivo Texto !"));
    EXPECT_EQ(p.last().title, S("Atenção..."));
    EXPECT_EQ(session.demonstrativo[0], S("fica"));

    session.arqway = dir.filePath(S("nao-existe.txt"));
    EXPECT_THROW(Carrega_Texto(QString(), QString(), QString(), QString()), RunFailure);
}
