#include "accounting/balancete.h"
#include "accounting/razao.h"
#include "contabil.h"
#include "support/scriptedprompter.h"

namespace {
struct Linha {
    QString cta, data, cpartida, hist, tipolan, tiposal;
    qint64 nrlan;
    Money vlrlan, saldo;
};
} // namespace

class Razao : public Contabil {
protected:
    void SetUp() override
    {
        Contabil::SetUp();
        planoPadrao();
        poe(S("03.001"), S("sf02"), S("1000"));
        poe(S("01.001"), S("sf02"), S("-500"));
        lanca(S("10/03/2008"), S("03.001"), S("01.001"), S("300"), S("Taxa de março"), S("11"));
        lanca(S("05/03/2008"), S("02.001"), S("03.001"), S("120"));
        lanca(S("05/03/2008"), S("03.001"), S("01.002"), S("20"));
        lanca(S("15/04/2008"), S("02.002"), S("02.002"), S("75"));   // same account on both sides
        lanca(S("20/04/2008"), S("01."), S("03.001"), S("10"));      // the synthetic side is dropped
        lanca(S("10/02/2008"), S("03.001"), S("01.001"), S("999"));  // before the period
        lanca(S("02/05/2008"), S("03.001"), S("01.001"), S("888"));  // after it
    }

    // A period of 2008 as the form sends it; fields not given keep the form's blanks.
    static RazaoPeriodo periodo(const char *mesIni, const char *mesFim = nullptr, const char *ctaIni = nullptr,
                                const char *ctaFim = nullptr)
    {
        RazaoPeriodo p;
        p.ano = S("2008");
        p.mesIni = S(mesIni);
        if (mesFim)
            p.mesFim = S(mesFim);
        if (ctaIni)
            p.ctaIni = S(ctaIni);
        if (ctaFim)
            p.ctaFim = S(ctaFim);
        return p;
    }

    std::vector<Linha> movRazao()
    {
        std::vector<Linha> r;
        for (Recordset rs = con.Execute(S("SELECT * FROM MovRazao ORDER BY val(codigo)")); !rs.eof(); rs.moveNext())
            r.push_back({rs[S("cta")].text(), rs[S("datalan")].text(), rs[S("cpartida")].text(), rs[S("histlan")].text(),
                         rs[S("tipolan")].text(), rs[S("tiposal")].text(), qint64(val(rs[S("nrlan")].text())),
                         rs[S("vlrlan")].toMoney(), rs[S("saldo")].toMoney()});
        return r;
    }
};

TEST_F(Razao, OpeningLinesRunningBalancesAndOrder)
{
    ASSERT_TRUE(EncheMovRazao(con, periodo("3", "4")));
    const std::vector<Linha> l = movRazao();
    ASSERT_EQ(l.size(), 14u);

    std::vector<QString> contas;
    for (const Linha &x : l)
        contas.push_back(x.cta);
    const std::vector<QString> ordem{S("01.001"), S("01.001"), S("01.002"), S("01.002"), S("02.001"),
                                     S("02.001"), S("02.002"), S("02.002"), S("02.002"), S("03.001"),
                                     S("03.001"), S("03.001"), S("03.001"), S("03.001")};
    EXPECT_EQ(contas, ordem);  // no line for 01., 03. or 09.

    // Opening line: the first day of the period and the balance of February.
    const Linha &abre = l[9];
    EXPECT_EQ(abre.hist, S("Saldo Anterior"));
    EXPECT_EQ(abre.data, S("01/03/2008"));
    EXPECT_EQ(abre.nrlan, 0);
    EXPECT_EQ(abre.vlrlan, Money());
    EXPECT_EQ(abre.tipolan, QString());
    EXPECT_EQ(abre.cpartida, QString());
    EXPECT_EQ(abre.saldo, reais("1000"));
    EXPECT_EQ(abre.tiposal, S("D"));
    EXPECT_EQ(l[0].saldo, reais("-500"));
    EXPECT_EQ(l[0].tiposal, S("C"));

    // 03.001: on the 5th the debit line comes before the credit line.
    EXPECT_EQ(l[10].data, S("05/03/2008"));
    EXPECT_EQ(l[10].tipolan, S("D"));
    EXPECT_EQ(l[10].saldo, reais("1020"));
    EXPECT_EQ(l[11].tipolan, S("C"));
    EXPECT_EQ(l[11].cpartida, S("02.001"));
    EXPECT_EQ(l[11].saldo, reais("900"));
    EXPECT_EQ(l[12].hist, S("Taxa de março"));
    EXPECT_EQ(l[12].saldo, reais("1200"));
    EXPECT_EQ(l[13].cpartida, S("01."));
    EXPECT_EQ(l[13].saldo, reais("1190"));

    // The same account on both sides: two lines, no net effect, and a zero
    // balance has no side.
    EXPECT_EQ(l[7].tipolan, S("D"));
    EXPECT_EQ(l[7].saldo, reais("75"));
    EXPECT_EQ(l[8].tipolan, S("C"));
    EXPECT_EQ(l[8].saldo, Money());
    EXPECT_EQ(l[8].tiposal, QString());
    EXPECT_EQ(l[6].tiposal, QString());
}

TEST_F(Razao, AccountRangeNeedsBothEnds)
{
    RazaoPeriodo faixa = periodo("03", "04", "02.001", "02.999");
    ASSERT_TRUE(EncheMovRazao(con, faixa));
    const std::vector<Linha> l = movRazao();
    ASSERT_EQ(l.size(), 5u);
    EXPECT_EQ(l.front().cta, S("02.001"));
    EXPECT_EQ(l.back().cta, S("02.002"));

    faixa.ctaFim = S("__.___");
    ASSERT_TRUE(EncheMovRazao(con, faixa));
    EXPECT_EQ(movRazao().size(), 14u);
}

TEST_F(Razao, OneMonthJanuaryAndAnEmptyPeriod)
{
    // Without a last month the period is the first month alone; January
    // opens from sf00.
    poe(S("03.001"), S("sf00"), S("77"));
    lanca(S("31/01/2008"), S("03.001"), S("01.001"), S("3"));
    ASSERT_TRUE(EncheMovRazao(con, periodo("1")));
    std::vector<Linha> l = movRazao();
    ASSERT_EQ(l.size(), 4u);
    EXPECT_EQ(l[2].cta, S("03.001"));
    EXPECT_EQ(l[2].saldo, reais("77"));
    EXPECT_EQ(l[3].saldo, reais("80"));

    // June has no entries: the form's message, and the table is left empty.
    ScriptedPrompter p;
    EXPECT_FALSE(EncheMovRazao(con, periodo("6")));
    ASSERT_EQ(p.calls.size(), 1u);
    EXPECT_EQ(p.last().text, kSemMovimento);
    EXPECT_EQ(p.last().title, S("Atenção..."));
    EXPECT_EQ(linhas(S("SELECT * FROM MovRazao")), 0);

    // A zero month does nothing at all.
    EXPECT_FALSE(EncheMovRazao(con, periodo("0")));
    EXPECT_EQ(p.calls.size(), 1u);
}
