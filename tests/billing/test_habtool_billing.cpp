#include "billing/baixa.h"
#include "condominio.h"
#include "support/habtoolrun.h"

#include <gtest/gtest.h>

TEST(HabtoolBilling, EmiteBaixaDesfazRecalcEventtotAjusta)
{
    Condominio c;
    c.apto(1, QStringLiteral("Ana"), 300, 0, 40);
    c.apto(2, QStringLiteral("Bia"), 250);
    ASSERT_TRUE(gravaParametros(c.con, c.mes(true, QStringLiteral("000010"))).empty());
    c.usuario(kCodigoDesfazBaixa, QStringLiteral("Caixa"), true, true, true);
    c.con.Close();
    const QString arquivo = c.dir.file(QStringLiteral("Con001.mdb"));

    HabtoolResult s = habtool({QStringLiteral("emite"), arquivo});
    EXPECT_EQ(s.exitCode, 0) << s.err.toStdString();
    EXPECT_EQ(s.out, QStringLiteral("emitidos 2\nfnreci 000012\n"));
    EXPECT_TRUE(s.err.contains(QStringLiteral("Foram selecionados 2 recibos")));
    // Already issued in this emission.
    s = habtool({QStringLiteral("emite"), arquivo, QStringLiteral("--sim")});
    EXPECT_EQ(s.out, QStringLiteral("emitidos 0\nfnreci 000012\n"));
    // A run cut short leaves Fnreci behind the receipts: the next one is refused
    // with the save's own check, until the number is saved again.
    auto fnreci = [&](const char *numero) {
        c.con.Open(session.conAtiva);
        c.con.Execute(QStringLiteral("UPDATE Parametros Set fnreci = '%1' Where codigo = 1").arg(QLatin1String(numero)));
        c.con.Close();
    };
    fnreci("000011");
    s = habtool({QStringLiteral("emite"), arquivo, QStringLiteral("--sim")});
    EXPECT_EQ(s.exitCode, 1);
    EXPECT_EQ(s.out, QString());
    EXPECT_TRUE(s.err.contains(QStringLiteral(
        "O número do maior recibo cadastrado é 000012 e você informou como recibo anterior o nr. 000011")));
    fnreci("000012");
    EXPECT_EQ(habtool({QStringLiteral("emite"), arquivo, QStringLiteral("--sim")}).exitCode, 0);

    s = habtool({QStringLiteral("baixa"), arquivo, QStringLiteral("11"), QStringLiteral("15/03/2003"), QStringLiteral("Caixa")});
    EXPECT_EQ(s.exitCode, 0) << s.err.toStdString();
    EXPECT_EQ(s.out, QStringLiteral("valido %1\n").arg(11 + 37695 + 486));
    s = habtool({QStringLiteral("baixa"), arquivo, QStringLiteral("000012"), QStringLiteral("15/03/2003"), QStringLiteral("Ninguém")});
    EXPECT_EQ(s.exitCode, 1);
    EXPECT_TRUE(s.err.contains(kMsgBaixaSemDireito));
    s = habtool({QStringLiteral("baixa"), arquivo, QStringLiteral("000099"), QStringLiteral("15/03/2003"), QStringLiteral("Caixa")});
    EXPECT_EQ(s.exitCode, 1);

    s = habtool({QStringLiteral("baixa"), arquivo, QStringLiteral("000011"), QStringLiteral("--desfaz"), QStringLiteral("731")});
    EXPECT_EQ(s.exitCode, 0) << s.err.toStdString();
    EXPECT_EQ(s.out, QStringLiteral("desfeita\n"));

    s = habtool({QStringLiteral("recalc"), arquivo});
    EXPECT_EQ(s.out, QStringLiteral("recibos 2\n"));
    s = habtool({QStringLiteral("eventtot"), arquivo, QStringLiteral("WHERE situacao = 'A'")});
    EXPECT_EQ(s.out, QStringLiteral("001\tTaxa Condominial\tH\t550.00\n003\tFundo de Reserva\tR\t40.00\n"));

    s = habtool({QStringLiteral("ajusta"), arquivo, QStringLiteral("honor=320,5"), QStringLiteral("--tipo"), QStringLiteral("01")});
    EXPECT_EQ(s.exitCode, 0) << s.err.toStdString();
    EXPECT_TRUE(s.err.contains(QStringLiteral("Ajuste Finalizado !!!")));
    EXPECT_EQ(habtool({QStringLiteral("ajusta"), arquivo}).exitCode, 1);

    c.con.Open(session.conAtiva);
    EXPECT_EQ(c.valor(QStringLiteral("SELECT situacao FROM Recibos WHERE codigo = '000011'"), "situacao"), QStringLiteral("A"));
    EXPECT_EQ(c.dinheiro(QStringLiteral("SELECT vtotr FROM Recibos WHERE codigo = '000011'"), "vtotr"), reais(40));
    EXPECT_EQ(c.dinheiro(QStringLiteral("SELECT honor FROM Aptos WHERE codigo = '000002'"), "honor"), reais(320.5));
}
