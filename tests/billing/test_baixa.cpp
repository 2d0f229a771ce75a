#include "billing/baixa.h"
#include "billing/direitos.h"
#include "condominio.h"
#include "core/conversions.h"
#include "support/scriptedprompter.h"

#include <gtest/gtest.h>

namespace {

const QString kRecibo = QStringLiteral("SELECT * FROM Recibos WHERE codigo = '000101'");

// A receipt of 350.00 (H) and 20.00 (R) with a bank slip, and three users:
// Caixa settles only; Outro alters and deletes but doesn't settle; Gerente
// has every right and the code that undoes settlements.
struct ComRecibo : Condominio {
    ComRecibo()
    {
        apto(1, QStringLiteral("Ana"), 350);
        con.Execute(QStringLiteral(
            "INSERT INTO Recibos (codigo,codap,nemis,demis,dvencto,Tipcob,Tipbolbco,situacao,nrbco,"
            "item0,comp0,refer0,valor0,item1,comp1,refer1,valor1,vtoth,vtotr,vtott,vtotd,vtotal,Usubx,valido,codbco) "
            "VALUES('000101','000001',\"0203\",'05/02/2003','10/02/2003','1','','A','12345',"
            "'001','Fev','0','350','020','','0','20','350','20','0','0','370','',0,'341')"));
        usuario(5, QStringLiteral("Caixa"), true, false, false);
        usuario(8, QStringLiteral("Outro"), false, true, true);
        usuario(kCodigoDesfazBaixa, QStringLiteral("Gerente"), true, true, true);
    }
};

} // namespace

TEST(Direitos, ReadFromUsuariosAtTheMomentOfTheAct)
{
    ComRecibo c;
    EXPECT_TRUE(temDireito(QStringLiteral("Cfbai"), QStringLiteral("Caixa")));
    EXPECT_FALSE(temDireito(QStringLiteral("Cfalt"), QStringLiteral("Caixa")));
    EXPECT_FALSE(temDireito(QStringLiteral("Cfbai"), QStringLiteral("Ninguém")));
    // A right taken away counts at once.
    c.dir.execSistema(QStringLiteral("UPDATE Usuarios SET cfbai = False WHERE nome = 'Caixa'"));
    EXPECT_FALSE(temDireito(QStringLiteral("Cfbai"), QStringLiteral("Caixa")));
}

TEST(Baixa, SettlingWritesOnlyTheStamp)
{
    ComRecibo c;
    ScriptedPrompter prompt;
    // The date as it was: nothing asked.
    EXPECT_EQ(baixaRecibo(c.con, QStringLiteral("000101"), kEmptyDate, kEmptyDate, QStringLiteral("1"),
                          QStringLiteral("Caixa")).resultado,
              ResultadoBaixa::SemMudanca);
    // No: the original date goes back.
    prompt.answer(vbNo, QStringLiteral("Deseja Realmente Baixar Este Recibo  ?"));
    EXPECT_EQ(baixaRecibo(c.con, QStringLiteral("000101"), kEmptyDate, QStringLiteral("15/03/2003"), QStringLiteral("1"),
                          QStringLiteral("Caixa")).resultado,
              ResultadoBaixa::Restaurar);
    // Findings: no date (the field was cleared) and no place of collection.
    prompt.answer(vbYes);
    const Baixa semDados = baixaRecibo(c.con, QStringLiteral("000101"), QStringLiteral("01/03/2003"), kEmptyDate,
                                       QString(), QStringLiteral("Caixa"));
    EXPECT_EQ(semDados.resultado, ResultadoBaixa::ComErros);
    ASSERT_EQ(semDados.erros.size(), 2u);
    EXPECT_EQ(semDados.erros[0].mensagem, kMsgBaixaSemData);
    EXPECT_EQ(semDados.erros[1].mensagem, kMsgBaixaSemCobranca);
    EXPECT_EQ(c.valor(kRecibo, "situacao"), QStringLiteral("A"));

    prompt.answer(vbYes);
    const Baixa b = baixaRecibo(c.con, QStringLiteral("000101"), kEmptyDate, QStringLiteral("15/03/2003"),
                                QStringLiteral("1"), QStringLiteral("Caixa"));
    EXPECT_EQ(b.resultado, ResultadoBaixa::Baixado);
    EXPECT_EQ(b.valido, 101 + 37695 + 486);
    // Items, totals and bank marks stay.
    EXPECT_EQ(c.linha(QStringLiteral("SELECT situacao,drecbto,Usubx,valido,valor0,vtotal,nrbco,codbco FROM Recibos")),
              QStringLiteral("B|15/03/2003|Caixa|38282|350|370|12345|341"));

    // Settled already: a new date says by whom and when, and No keeps it.
    prompt.answer(vbNo, kMsgJaBaixado.arg(QStringLiteral("15/03/2003"), QStringLiteral("Caixa")));
    EXPECT_EQ(baixaRecibo(c.con, QStringLiteral("000101"), QStringLiteral("15/03/2003"), QStringLiteral("20/03/2003"),
                          QStringLiteral("1"), QStringLiteral("Caixa")).resultado,
              ResultadoBaixa::Restaurar);
    EXPECT_EQ(c.valor(kRecibo, "drecbto"), QStringLiteral("15/03/2003"));
}

TEST(Baixa, SettleButNotAlterRights)
{
    ComRecibo c;
    ScriptedPrompter prompt;
    // Outro may alter but not settle.
    prompt.answer(vbYes);
    EXPECT_EQ(baixaRecibo(c.con, QStringLiteral("000101"), kEmptyDate, QStringLiteral("15/03/2003"), QStringLiteral("1"),
                          QStringLiteral("Outro")).resultado,
              ResultadoBaixa::Restaurar);
    EXPECT_EQ(prompt.last().text, kMsgBaixaSemDireito);
    EXPECT_EQ(c.valor(kRecibo, "situacao"), QStringLiteral("A"));

    // Caixa settles, and then cannot alter.
    prompt.answer(vbYes);
    EXPECT_EQ(baixaRecibo(c.con, QStringLiteral("000101"), kEmptyDate, QStringLiteral("15/03/2003"), QStringLiteral("1"),
                          QStringLiteral("Caixa")).resultado,
              ResultadoBaixa::Baixado);
    ReciboEditado r;
    ASSERT_TRUE(leReciboEditado(c.con, QStringLiteral("000101"), &r));
    r.linhas[0].valor = QStringLiteral("400");
    prompt.answer(vbYes, QStringLiteral("Deseja Realmente Alterar Este Registro ?"));
    const Alteracao a = alteraRecibo(c.con, r, QStringLiteral("Caixa"), 5);
    EXPECT_FALSE(a.gravado);
    EXPECT_EQ(prompt.last().text, kMsgAlteraSemDireito);
    EXPECT_EQ(c.dinheiro(kRecibo, "valor0"), reais(350));
    // Nor delete.
    prompt.answer(vbYes, QStringLiteral("Deseja Realmente Excluir Este Registro ?"));
    EXPECT_FALSE(excluiRecibo(c.con, QStringLiteral("000101"), QStringLiteral("Caixa")));
    EXPECT_EQ(prompt.last().text, kMsgExcluiSemDireito);
}

TEST(Alteracao, TenSlotsAndTotalsByTheRule)
{
    ComRecibo c;
    ReciboEditado r;
    ASSERT_TRUE(leReciboEditado(c.con, QStringLiteral("000101"), &r));
    EXPECT_EQ(r.demis, QStringLiteral("05/02/2003"));
    EXPECT_EQ(r.drecbto, kEmptyDate);
    ASSERT_EQ(r.linhas.size(), 2u);

    // Replace the fine with a discount; a row of 0.00 disappears.
    r.linhas[1] = {QStringLiteral("030"), QStringLiteral("Pontualidade"), QStringLiteral("1,5"), QStringLiteral("-10,00")};
    r.linhas.push_back({QStringLiteral("010"), QString(), QString(), QStringLiteral("0,00")});
    r.dvencto = QStringLiteral("20/02/2003");
    ScriptedPrompter prompt;
    prompt.answer(vbYes);
    const Alteracao a = alteraRecibo(c.con, r, QStringLiteral("Outro"), 8);
    EXPECT_TRUE(a.gravado);
    // The bank marks stay even though the amount changed; the ten slots are
    // all written, the unused ones blank.
    EXPECT_EQ(c.linha(QStringLiteral("SELECT dvencto,comp1,refer1,vtotd,vtotr,vtotal,item2,valor2,item9,comp9,refer9,valor9,"
                                     "codbco FROM Recibos")),
              QStringLiteral("20/02/2003|Pontualidade|1,5|-10|0|340| |0| | |0|0|341"));

    // The faults stop the save.
    r.linhas.clear();
    r.dvencto = kEmptyDate;
    prompt.answer(vbYes);
    const Alteracao semItens = alteraRecibo(c.con, r, QStringLiteral("Outro"), 8);
    EXPECT_FALSE(semItens.gravado);
    ASSERT_EQ(semItens.erros.size(), 2u);
    EXPECT_EQ(semItens.erros[0].mensagem, kMsgSemItens);
    EXPECT_EQ(semItens.erros[1].mensagem, kMsgSemVencimento);
}

TEST(Alteracao, OnlyCode731UndoesASettlement)
{
    ComRecibo c;
    ScriptedPrompter prompt;
    prompt.answer(vbYes);
    ASSERT_EQ(baixaRecibo(c.con, QStringLiteral("000101"), kEmptyDate, QStringLiteral("15/03/2003"), QStringLiteral("1"),
                          QStringLiteral("Caixa")).resultado,
              ResultadoBaixa::Baixado);

    // Another user clears the date and saves: the items are saved, the settlement stays.
    ReciboEditado r;
    ASSERT_TRUE(leReciboEditado(c.con, QStringLiteral("000101"), &r));
    EXPECT_EQ(r.drecbto, QStringLiteral("15/03/2003"));
    r.drecbto = kEmptyDate;
    r.obs1 = QStringLiteral("Conferido");
    prompt.answer(vbYes);
    Alteracao a = alteraRecibo(c.con, r, QStringLiteral("Outro"), 8);
    EXPECT_TRUE(a.gravado);
    EXPECT_FALSE(a.baixaDesfeita);
    EXPECT_EQ(c.linha(QStringLiteral("SELECT obs1,situacao,drecbto FROM Recibos")), QStringLiteral("Conferido|B|15/03/2003"));

    prompt.answer(vbYes);
    a = alteraRecibo(c.con, r, QStringLiteral("Gerente"), kCodigoDesfazBaixa);
    EXPECT_TRUE(a.baixaDesfeita);
    EXPECT_EQ(c.linha(QStringLiteral("SELECT situacao,drecbto,Usubx,valido FROM Recibos")), QStringLiteral("A|||0"));
}

TEST(Exclusao, DeleteNeedsTheRightAndKeepsTheMarks)
{
    ComRecibo c;
    c.con.Execute(QStringLiteral("UPDATE Aptos SET nrecibo = '000101' WHERE codigo = '000001'"));
    ScriptedPrompter prompt;
    prompt.answer(vbNo);
    EXPECT_FALSE(excluiRecibo(c.con, QStringLiteral("000101"), QStringLiteral("Outro")));
    prompt.answer(vbYes);
    EXPECT_TRUE(excluiRecibo(c.con, QStringLiteral("000101"), QStringLiteral("Outro")));
    EXPECT_EQ(c.valor(kRecibo, "codigo"), QStringLiteral("<nenhum>"));
    EXPECT_EQ(c.valor(QStringLiteral("SELECT nrecibo FROM Aptos WHERE codigo = '000001'"), "nrecibo"),
              QStringLiteral("000101"));
}
