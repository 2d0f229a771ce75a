#include "billing/emissao.h"
#include "condominio.h"
#include "core/conversions.h"
#include "support/scriptedprompter.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

QString recibo(const QString &numero)
{
    return QStringLiteral("SELECT * FROM Recibos WHERE codigo = '") + numero + QStringLiteral("'");
}

// Answers the confirmation yes after running an action, as if something had
// changed in the file while the operator read the question.
class PrompterComAcao : public Prompter {
public:
    explicit PrompterComAcao(std::function<void()> acao) : acao_(std::move(acao)) { anterior_ = setPrompter(this); }
    ~PrompterComAcao() override { setPrompter(anterior_); }
    int msgBox(const QString &text, int, const QString &) override
    {
        textos.push_back(text);
        acao_();
        return vbYes;
    }
    QString inputBox(const QString &, const QString &, const QString &d) override { return d; }
    std::vector<QString> textos;

private:
    std::function<void()> acao_;
    Prompter *anterior_ = nullptr;
};

} // namespace

TEST(EmissaoSelecao, StatementsCarryEveryCondition)
{
    const QDate fdemis(2003, 2, 5);
    SelecaoEmissao s = montaSelecao(QStringLiteral("T"), QLatin1Char('N'), false, true, QStringLiteral("0203"), fdemis);
    EXPECT_EQ(s.lista, QStringLiteral("SELECT codauto,codigo,nome,tipcob,situ,honor,refer,diavcto,nemis,demis,nrecibo "
                                      "FROM Aptos WHERE situ <> 'I'  ORDER BY codigo"));
    EXPECT_EQ(s.contagem, QStringLiteral("SELECT Count(codigo) as I FROM Aptos WHERE situ <> 'I' "));

    s = montaSelecao(QStringLiteral("T"), QLatin1Char('A'), true, true, QStringLiteral("0203"), fdemis);
    EXPECT_EQ(s.lista, QStringLiteral("SELECT codauto,codigo,nome,tipcob,situ,honor,refer,diavcto,nemis,demis,nrecibo "
                                      "FROM Aptos WHERE situ <> 'I'  AND (honor > 0 or honcb > 0) AND not diavcto = '' "
                                      "AND not tipcob = '' AND not(nemis = '0203' AND demis = #02/05/2003#) ORDER BY nome"));
    EXPECT_EQ(s.contagem, QStringLiteral("SELECT Count(codigo) as I FROM Aptos WHERE situ <> 'I'  AND (honor > 0 or "
                                         "honcb > 0) AND not diavcto = '' AND not tipcob = '' AND not(nemis = '0203' "
                                         "AND demis = #02/05/2003#)"));

    // Without a valid fixed event the honor condition stays out; the other
    // selection keeps its two blanks in the count.
    s = montaSelecao(QStringLiteral("2"), QLatin1Char('S'), true, false, QStringLiteral("0203"), fdemis);
    EXPECT_EQ(s.lista, QStringLiteral("SELECT codauto,codigo,nome,tipcob,situ,honor,refer,diavcto FROM Aptos WHERE "
                                      "situ = '2'  AND not diavcto = '' AND not tipcob = '' AND not(nemis = '0203' AND "
                                      "demis = #02/05/2003#) ORDER BY codigo"));
    EXPECT_EQ(s.contagem, QStringLiteral("SELECT Count(codigo) as I FROM Aptos WHERE  situ = '2'  AND not diavcto = '' "
                                         "AND not tipcob = '' AND not(nemis = '0203' AND demis = #02/05/2003#)"));
}

TEST(EmissaoVencimento, DayWalksBackToAValidDate)
{
    EXPECT_EQ(dataVencimento(30, QStringLiteral("02/2003")), QDate(2003, 2, 28));
    EXPECT_EQ(dataVencimento(31, QStringLiteral("02/2004")), QDate(2004, 2, 29));
    EXPECT_EQ(dataVencimento(31, QStringLiteral("04/2003")), QDate(2003, 4, 30));
    EXPECT_EQ(dataVencimento(5, QStringLiteral("02/2003")), QDate(2003, 2, 5));
    EXPECT_EQ(dataVencimento(Field(QVariant(), ColumnKind::Number), QStringLiteral("02/2003")), QDate(2003, 2, 1));
    EXPECT_EQ(dataVencimento(0, QStringLiteral("02/2003")), QDate(2003, 2, 1));
    // A day typed above 99 in the fee adjustment still walks down to the last day.
    EXPECT_EQ(dataVencimento(120, QStringLiteral("04/2003")), QDate(2003, 4, 30));
}

TEST(EmissaoAutomatica, TwoHundredApartmentsFromFnreci100)
{
    Condominio c;
    for (int i = 1; i <= 200; ++i)
        c.apto(i, QStringLiteral("Morador %1").arg(i), 350, i % 2 ? 20 : 0, 15, i == 7 ? 30 : 10);
    const ParametrosEmissao p = c.mes();
    ASSERT_TRUE(gravaParametros(c.con, p).empty());

    ScriptedPrompter prompt;
    prompt.answer(vbYes, QStringLiteral("Foram selecionados"));
    const ResultadoEmissao r = emissaoAutomatica(c.con, p);
    ASSERT_EQ(prompt.calls.size(), 1u);
    EXPECT_EQ(prompt.calls[0].text, QStringLiteral("Foram selecionados 200 recibos para esta condição, inicia a emissão ?"));
    EXPECT_EQ(prompt.calls[0].title, QStringLiteral("Confirmação.."));
    EXPECT_TRUE(r.iniciada);
    EXPECT_FALSE(r.interrompida);
    EXPECT_EQ(r.emitidos, 200);
    EXPECT_EQ(r.fnreci, QStringLiteral("000300"));
    EXPECT_EQ(c.valor(QStringLiteral("SELECT fnreci FROM Parametros Where codigo = 1"), "fnreci"), QStringLiteral("000300"));
    EXPECT_EQ(c.linha(QStringLiteral("SELECT Count(codauto) As I, MIN(codigo) as a, MAX(codigo) as b FROM Recibos")),
              QStringLiteral("200|000101|000300"));

    // Order by code: apartment 1 got 000101; the apartment holds the receipt's own number.
    EXPECT_EQ(c.linha(QStringLiteral("SELECT nrecibo,nemis,demis FROM Aptos WHERE codigo = '000001'")),
              QStringLiteral("000101|0203|05/02/2003"));
    // Receipt of apartment 1: fee, cabin, fund; the fund's event is of type R
    // and still goes to vtoth.
    EXPECT_EQ(c.linha(QStringLiteral("SELECT codap,nemis,demis,dvencto,situacao,tipcob,item0,comp0,valor0,item1,valor1,"
                                     "item2,valor2,item3,vtoth,vtotr,vtotal FROM Recibos WHERE codigo = '000101'")),
              QStringLiteral("000001|0203|05/02/2003|10/02/2003|A|1|001|Fev/2003|350|002|20|003|15||385|0|385"));
    // Apartment 2 has no cabin: the fund moves up to slot 1.
    EXPECT_EQ(c.valor(recibo(QStringLiteral("000102")), "item1"), QStringLiteral("003"));
    // Day 30 in February 2003.
    EXPECT_EQ(c.valor(recibo(QStringLiteral("000107")), "dvencto"), QStringLiteral("28/02/2003"));
}

TEST(EmissaoAutomatica, SecondRunDuplicatesOnlyWithoutFees)
{
    Condominio c;
    for (int i = 1; i <= 3; ++i)
        c.apto(i, QStringLiteral("Apto %1").arg(i), 300);

    ParametrosEmissao semTaxa = c.mes(false, QStringLiteral("000000"));
    ASSERT_TRUE(gravaParametros(c.con, semTaxa).empty());
    {
        ScriptedPrompter prompt;
        prompt.answer(vbYes).answer(vbYes);
        EXPECT_EQ(emissaoAutomatica(c.con, semTaxa).emitidos, 3);
        semTaxa.fnreci = QStringLiteral("000003");
        ASSERT_TRUE(gravaParametros(c.con, semTaxa).empty());
        EXPECT_EQ(emissaoAutomatica(c.con, semTaxa).emitidos, 3);
    }
    // fhonor false only drops the conditions of the selection: the fee items
    // are still issued, and the month is issued twice.
    EXPECT_EQ(c.conta(QStringLiteral("SELECT Count(codauto) As I FROM Recibos")), 6);
    EXPECT_EQ(c.dinheiro(recibo(QStringLiteral("000004")), "vtotal"), reais(300));
    EXPECT_EQ(c.conta(QStringLiteral("SELECT Count(codauto) As I FROM Recibos WHERE codap = '000001'")), 2);

    ParametrosEmissao comTaxa = c.mes(true, QStringLiteral("000006"));
    ASSERT_TRUE(gravaParametros(c.con, comTaxa).empty());
    ScriptedPrompter prompt;
    const ResultadoEmissao r = emissaoAutomatica(c.con, comTaxa);
    EXPECT_FALSE(r.iniciada);
    ASSERT_EQ(prompt.calls.size(), 1u);
    EXPECT_EQ(prompt.calls[0].text, kMsgNadaAEmitir);
    EXPECT_EQ(prompt.calls[0].title, QStringLiteral("Atenção..."));
    EXPECT_EQ(c.conta(QStringLiteral("SELECT Count(codauto) As I FROM Recibos")), 6);
    // Stopped before the loop: Fnreci as it was.
    EXPECT_EQ(c.valor(QStringLiteral("SELECT fnreci FROM Parametros Where codigo = 1"), "fnreci"), QStringLiteral("000006"));
}

TEST(EmissaoAutomatica, FixedEventsAddTheHonorConditionAndAreClassified)
{
    Condominio c;
    c.apto(1, QStringLiteral("Com taxa"), 300);
    c.apto(2, QStringLiteral("Sem taxa"), 0);
    c.apto(3, QStringLiteral("Grupo dois"), 100, 0, 0, 15, QStringLiteral("2"));
    c.apto(4, QStringLiteral("Sem dia"), 100, 0, 0, -1);

    // No valid fixed event: the apartment without fees is selected and gets
    // an empty receipt of total 0; the one without a due day is left out.
    ParametrosEmissao p = c.mes(true, QStringLiteral("000000"));
    p.fevnt[0] = QStringLiteral("030");  // value 0: not valid
    ASSERT_TRUE(gravaParametros(c.con, p).empty());
    {
        ScriptedPrompter prompt;
        prompt.answer(vbYes, QStringLiteral("Foram selecionados 3 recibos"));
        EXPECT_EQ(emissaoAutomatica(c.con, p).emitidos, 3);
    }
    EXPECT_EQ(c.valor(recibo(QStringLiteral("000002")), "codap"), QStringLiteral("000002"));
    EXPECT_EQ(c.dinheiro(recibo(QStringLiteral("000002")), "vtotal"), Money());
    // situacao comes from situ.
    EXPECT_EQ(c.valor(recibo(QStringLiteral("000003")), "situacao"), QStringLiteral("2"));

    // A new emission with two fixed events: a discount (type D) and a fine (R).
    c.con.Execute(QStringLiteral("DELETE FROM Recibos"));
    p.fnemis = QStringLiteral("0303");
    p.fdemis = QStringLiteral("05/03/2003");
    p.fmvcto = QStringLiteral("03/2003");
    p.fnreci = QStringLiteral("000010");
    p.fevnt = {QStringLiteral("030"), QStringLiteral("020"), QStringLiteral("000"), QString()};
    p.fvlev = {-12.3, 5, 7, 0};  // the third has code 000: not valid
    p.fcpev = {QStringLiteral("Pontualidade"), QStringLiteral("Multa"), QString(), QString()};
    ASSERT_TRUE(gravaParametros(c.con, p).empty());
    ScriptedPrompter prompt;
    prompt.answer(vbYes, QStringLiteral("Foram selecionados 2 recibos"));
    const ResultadoEmissao r = emissaoAutomatica(c.con, p);
    EXPECT_EQ(r.emitidos, 2);
    EXPECT_EQ(c.conta(QStringLiteral("SELECT Count(codauto) As I FROM Recibos WHERE codap = '000002'")), 0);
    EXPECT_EQ(c.linha(QStringLiteral("SELECT codap,item1,comp1,valor1,item2,vtoth,vtotd,vtotr,vtotal,dvencto FROM Recibos "
                                     "WHERE codigo = '000011'")),
              QStringLiteral("000001|030|Pontualidade|-12,3|020|300|-12,3|5|292,7|10/03/2003"));
}

TEST(EmissaoAutomatica, MissingApartmentStopsTheRest)
{
    Condominio c;
    for (int i = 1; i <= 5; ++i)
        c.apto(i, QStringLiteral("Apto %1").arg(i), 200);
    const ParametrosEmissao p = c.mes(true, QStringLiteral("000100"));
    ASSERT_TRUE(gravaParametros(c.con, p).empty());

    // The list is read; apartment 3 disappears before its turn.
    PrompterComAcao prompt([&] { c.con.Execute(QStringLiteral("DELETE FROM Aptos WHERE codigo = '000003'")); });
    const ResultadoEmissao r = emissaoAutomatica(c.con, p);
    ASSERT_EQ(prompt.textos.size(), 1u);
    EXPECT_TRUE(r.interrompida);
    EXPECT_EQ(r.emitidos, 2);
    EXPECT_EQ(c.conta(QStringLiteral("SELECT Count(codauto) As I FROM Recibos")), 2);
    EXPECT_EQ(c.conta(QStringLiteral("SELECT Count(codauto) As I FROM Recibos WHERE codap = '000004'")), 0);
    EXPECT_EQ(c.valor(QStringLiteral("SELECT nrecibo FROM Aptos WHERE codigo = '000004'"), "nrecibo"), QStringLiteral("000000"));
    EXPECT_EQ(r.fnreci, QStringLiteral("000102"));
    EXPECT_EQ(c.valor(QStringLiteral("SELECT fnreci FROM Parametros Where codigo = 1"), "fnreci"), QStringLiteral("000102"));
}

TEST(EmissaoAutomatica, AReceiptThatFailsTakesItsStampBackAndTheErrorGoesUp)
{
    Condominio c;
    c.apto(1, QStringLiteral("Apto 1"), 200);
    const ParametrosEmissao p = c.mes(true, QStringLiteral("000100"));
    ASSERT_TRUE(gravaParametros(c.con, p).empty());
    PrompterComAcao prompt([&] { c.con.Execute(QStringLiteral("DROP TABLE Recibos")); });
    EXPECT_THROW(emissaoAutomatica(c.con, p), DatabaseError);
    EXPECT_EQ(c.valor(QStringLiteral("SELECT nrecibo FROM Aptos WHERE codigo = '000001'"), "nrecibo"), QStringLiteral("000000"));
}

TEST(EmissaoAutomatica, NoAnswerOrNoMonthChangesNothing)
{
    Condominio c;
    c.apto(1, QStringLiteral("Apto"), 200);
    ParametrosEmissao p = c.mes();
    ASSERT_TRUE(gravaParametros(c.con, p).empty());
    {
        ScriptedPrompter prompt;
        prompt.answer(vbNo, QStringLiteral("Foram selecionados 1 recibos"));
        EXPECT_FALSE(emissaoAutomatica(c.con, p).iniciada);
    }
    p.fmvcto = kEmptyMonthYear;
    ASSERT_TRUE(gravaParametros(c.con, p).empty());
    {
        ScriptedPrompter prompt;
        EXPECT_FALSE(emissaoAutomatica(c.con, p).iniciada);
        EXPECT_EQ(prompt.calls.size(), 1u);
    }
    EXPECT_EQ(c.conta(QStringLiteral("SELECT Count(codauto) As I FROM Recibos")), 0);
    EXPECT_EQ(c.valor(QStringLiteral("SELECT fnreci FROM Parametros Where codigo = 1"), "fnreci"), QStringLiteral("000100"));
}
