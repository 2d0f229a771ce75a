#include "accounting/balancete.h"
#include "accounting/razao.h"
#include "contabil.h"
#include "support/scriptedprompter.h"

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

    // The ledger's work table, a line a row, in its order.
    std::string movRazao(const char *colunas)
    {
        return leLinhas(session.conAtiva, S("SELECT %1 FROM MovRazao ORDER BY val(codigo)").arg(S(colunas))).toStdString();
    }
};

TEST_F(Razao, OpeningLinesRunningBalancesAndOrder)
{
    ASSERT_TRUE(EncheMovRazao(con, periodo("3", "4")));
    // No line for 01., 03. or 09. An account opens on the first day of the
    // period with the balance of February. On the 5th the debit line comes
    // before the credit line. The same account on both sides gives two lines
    // and no net effect; a zero balance has no side.
    EXPECT_EQ(movRazao("cta,datalan,cpartida,histlan,tipolan,nrlan,vlrlan,saldo,tiposal"),
              "01.001|01/03/2008||Saldo Anterior||0|0|-500|C\n"
              "01.001|10/03/2008|03.001|Taxa de março|C|1|300|-800|C\n"
              "01.002|01/03/2008||Saldo Anterior||0|0|0|\n"
              "01.002|05/03/2008|03.001|Lançamento|C|3|20|-20|C\n"
              "02.001|01/03/2008||Saldo Anterior||0|0|0|\n"
              "02.001|05/03/2008|03.001|Lançamento|D|2|120|120|D\n"
              "02.002|01/03/2008||Saldo Anterior||0|0|0|\n"
              "02.002|15/04/2008|02.002|Lançamento|D|4|75|75|D\n"
              "02.002|15/04/2008|02.002|Lançamento|C|4|75|0|\n"
              "03.001|01/03/2008||Saldo Anterior||0|0|1000|D\n"
              "03.001|05/03/2008|01.002|Lançamento|D|3|20|1020|D\n"
              "03.001|05/03/2008|02.001|Lançamento|C|2|120|900|D\n"
              "03.001|10/03/2008|01.001|Taxa de março|D|1|300|1200|D\n"
              "03.001|20/04/2008|01.|Lançamento|C|5|10|1190|D\n");
}

TEST_F(Razao, AccountRangeNeedsBothEnds)
{
    RazaoPeriodo faixa = periodo("03", "04", "02.001", "02.999");
    ASSERT_TRUE(EncheMovRazao(con, faixa));
    EXPECT_EQ(movRazao("cta"), "02.001\n02.001\n02.002\n02.002\n02.002\n");

    faixa.ctaFim = S("__.___");
    ASSERT_TRUE(EncheMovRazao(con, faixa));
    EXPECT_EQ(linhas(S("SELECT * FROM MovRazao")), 14);
}

TEST_F(Razao, OneMonthJanuaryAndAnEmptyPeriod)
{
    // Without a last month the period is the first month alone; January
    // opens from sf00.
    poe(S("03.001"), S("sf00"), S("77"));
    lanca(S("31/01/2008"), S("03.001"), S("01.001"), S("3"));
    ASSERT_TRUE(EncheMovRazao(con, periodo("1")));
    EXPECT_EQ(movRazao("cta,saldo"), "01.001|0\n01.001|-3\n03.001|77\n03.001|80\n");

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
