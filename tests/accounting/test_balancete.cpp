#include "accounting/balancete.h"
#include "contabil.h"
#include "support/scriptedprompter.h"

class Balancete : public Contabil {
protected:
    void SetUp() override
    {
        Contabil::SetUp();
        planoPadrao();
        // Amounts with four places, so that the rounding shows.
        poe(S("01.001"), S("sf02"), S("-100,005"));
        poe(S("01.001"), S("sf03"), S("-1200,011"));
        poe(S("01.001"), S("vc03"), S("1100,006"));
        poe(S("01.001"), S("vc04"), S("300,004"));
        poe(S("01.001"), S("vc05"), S("0,0049"));
        poe(S("01.001"), S("po0803"), S("1000"));
        poe(S("01.001"), S("po0804"), S("900"));
        poe(S("01.001"), S("po0805"), S("800"));
        poe(S("01.001"), S("sf05"), S("-9999"));
    }
    // A row of the work table: sini, vdeb, vcre, sfin, spct, spo.
    std::string rb(const char *codigo) { return linha("RBalancete", codigo, "sini,vdeb,vcre,sfin,spct,spo"); }
};

TEST_F(Balancete, MonthIsRoundedPeriodIsNotAndBalancesComeFromTheFirstMonth)
{
    ASSERT_TRUE(EncheRBalancete(con, S("3"), QString(), false, S("2008")));
    EXPECT_EQ(linhas(S("SELECT * FROM RBalancete")), 9);
    // -100,005 rounds up at the tie; spct keeps the raw debit-positive sign.
    EXPECT_EQ(rb("01.001"), "-100|0|1100,01|-1200,01|-1100,01|1000");
    EXPECT_EQ(leLinha(session.conAtiva, S("SELECT nome,tipo,sintetico FROM RBalancete WHERE codigo = '01.'")), S("RECEITAS|R|Verdadeiro"));

    // A period of March to May: movement summed unrounded, sini and sfin
    // still those of March.
    ASSERT_TRUE(EncheRBalancete(con, S("3"), S("5"), true, S("2008")));
    EXPECT_EQ(linhas(S("SELECT * FROM RBalancete")), 9);
    EXPECT_EQ(rb("01.001"), "-100|0|1400,0149|-1200,01|-1400,0149|2700");

    // A period of one month: the monthly figures, unrounded.
    ASSERT_TRUE(EncheRBalancete(con, S("3"), S("3"), true, S("2008")));
    EXPECT_EQ(rb("01.001"), "-100|0|1100,006|-1200,01|-1100,006|1000");
}

TEST_F(Balancete, MontaBalanceteGivesTheFormsMonthlyRows)
{
    const auto linhasRB = [&] {
        std::vector<QStringList> r;
        for (Recordset rs = con.Execute(S("SELECT * FROM RBalancete ORDER BY codigo")); !rs.eof(); rs.moveNext())
            r.push_back({rs[S("codigo")].text(), rs[S("sini")].text(), rs[S("vdeb")].text(), rs[S("vcre")].text(),
                         rs[S("sfin")].text(), rs[S("spct")].text(), rs[S("spo")].text()});
        return r;
    };
    ASSERT_TRUE(EncheRBalancete(con, S("03"), QString(), false, S("2008")));
    const std::vector<QStringList> doForm = linhasRB();
    Monta_Balancete(S("3"), S("2008"));  // its own connection, on conAtiva
    EXPECT_EQ(linhasRB(), doForm);

    // A month below 1 does nothing; the table keeps its rows.
    Monta_Balancete(S("0"), S("2008"));
    EXPECT_EQ(linhas(S("SELECT * FROM RBalancete")), 9);
}

TEST_F(Balancete, EmptyChartLeavesTheTableEmptyAndOnlyTheFormSaysSo)
{
    ASSERT_TRUE(EncheRBalancete(con, S("3"), QString(), false, S("2008")));
    con.Execute(S("DELETE FROM Plano"));
    {
        ScriptedPrompter p;
        Monta_Balancete(con, S("3"), S("2008"));
        EXPECT_TRUE(p.calls.empty());
        EXPECT_EQ(linhas(S("SELECT * FROM RBalancete")), 0);
    }
    ScriptedPrompter p;
    EXPECT_FALSE(EncheRBalancete(con, S("3"), QString(), false, S("2008")));
    ASSERT_EQ(p.calls.size(), 1u);
    EXPECT_EQ(p.last().text, kSemMovimento);
    EXPECT_EQ(p.last().title, S("Atenção..."));
    EXPECT_EQ(p.last().style, int(vbCritical));
}

TEST_F(Balancete, RPcontasTurnsRevenueAndAddsCashOnlyWhenAsked)
{
    poe(S("01."), S("sf03"), S("-5000"));
    poe(S("01."), S("vc03"), S("999"));         // synthetic: spct and spo stay zero
    poe(S("01.002"), S("sf03"), S("50"));       // revenue with a debit balance
    poe(S("01.002"), S("vd03"), S("80"));
    poe(S("01.002"), S("vc03"), S("30"));
    poe(S("02.001"), S("sf03"), S("300"));
    poe(S("02.001"), S("vd03"), S("300,5"));
    poe(S("02.001"), S("vc03"), S("0,5"));
    poe(S("02.002"), S("sf03"), S("-20"));
    poe(S("03.001"), S("sf02"), S("1000"));
    poe(S("03.001"), S("sf03"), S("1500"));

    EncheRPcontas(con, S("3"), S("2008"), false);
    EXPECT_EQ(linhas(S("SELECT * FROM RPcontas")), 6);
    EXPECT_EQ(linhas(S("SELECT * FROM RPcontas WHERE tipo = 'C'")), 0);
    // Revenue turned positive (credits over debits), the balance's sign
    // dropped and not rounded; a synthetic row keeps spct and spo at zero;
    // expenses keep their sign. Columns spct, sfin, spo:
    EXPECT_EQ(linha("RPcontas", "01.001", "spct,sfin,spo"), "1100,006|1200,011|1000");
    EXPECT_EQ(linha("RPcontas", "01.", "spct,sfin,spo"), "0|5000|0");
    EXPECT_EQ(linha("RPcontas", "01.002", "spct,sfin,spo"), "-50|50|0");
    EXPECT_EQ(linha("RPcontas", "02.001", "spct,sfin,spo"), "300|300|0");
    EXPECT_EQ(linha("RPcontas", "02.002", "spct,sfin,spo"), "0|-20|0");
    // Revenue 1.050,006 rounded by the database, less 300 of expenses.
    EXPECT_EQ(ResultadoPctEspecial(con), reais("750,01"));

    EncheRPcontas(con, S("3"), S("2008"), true);
    EXPECT_EQ(linhas(S("SELECT * FROM RPcontas")), 8);   // 03. and 03.001; 09. is not cash
    EXPECT_EQ(linha("RPcontas", "03.001", "sini,sfin"), "1000|1500");
    EXPECT_EQ(linha("RPcontas", "03.", "spct"), "0");
}
