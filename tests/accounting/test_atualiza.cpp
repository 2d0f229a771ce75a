#include "accounting/atualiza.h"
#include "contabil.h"

#include <vector>

TEST_F(Contabil, AtualizaMonthOfEntriesSumsByAccountAndRollsUp)
{
    planoPadrao();
    poe(S("03.001"), S("sf00"), S("1000"));
    // Two equal entries on one account are added, not replaced.
    lanca(S("05/01/2008"), S("03.001"), S("01.001"), S("500"));
    lanca(S("05/01/2008"), S("03.001"), S("01.001"), S("500"));
    lanca(S("10/01/2008"), S("02.001"), S("03.001"), S("200,40"));
    lanca(S("31/01/2008"), S("02.002"), S("03.001"), S("99,60"));
    lanca(S("01/02/2008"), S("02.002"), S("03.001"), S("7"));   // February: not this run

    AtualizaSaldos(con, S("01/2008"));

    // January starts from sf00; balances are debit-positive for every account;
    // later months carry the balance without movement.
    EXPECT_EQ(linha("Plano", "03.001", "vd01,vc01,sf01,vc02,sf02,sf12"), "1000|300|1700|0|1700|1700");
    EXPECT_EQ(linha("Plano", "01.001", "vc01,sf01"), "1000|-1000");
    EXPECT_EQ(linha("Plano", "02.002", "vd01"), "99,6");
    // Synthetic accounts: the sum of their members' movement, their own chain
    // (03.'s sf00 was not rolled up); a group without members gets zero totals.
    EXPECT_EQ(linha("Plano", "02.", "vd01,sf01"), "300|300");
    EXPECT_EQ(linha("Plano", "01.", "vc01,sf12"), "1000|-1000");
    EXPECT_EQ(linha("Plano", "03.", "sf01"), "700");
    EXPECT_EQ(linha("Plano", "09.", "vd01,vc01"), "0|0");
}

TEST_F(Contabil, AtualizaEmptyMonthLastMonthAndEarlierRerun)
{
    planoPadrao();
    poe(S("03.001"), S("sf00"), S("250"));
    lanca(S("29/02/2008"), S("03.001"), S("01.002"), S("40"));  // every year divisible by 4 has a 29th

    // A month without entries: no movement, the balance of the month before.
    AtualizaSaldos(con, S("01/2008"));
    EXPECT_EQ(linha("Plano", "03.001", "vd01,sf01"), "0|250");

    AtualizaSaldos(con, S("02/2008"));
    EXPECT_EQ(linha("Plano", "03.001", "vd02,sf02,sf07"), "40|290|290");

    // Base month 12 touches December alone: November keeps what it had.
    poe(S("03.001"), S("vd11"), S("5"));
    poe(S("03.001"), S("sf11"), S("300"));
    lanca(S("15/12/2008"), S("02.001"), S("03.001"), S("100"));
    AtualizaSaldos(con, S("12/2008"));
    EXPECT_EQ(linha("Plano", "03.001", "vd11,sf11,vc12,sf12"), "5|300|100|200");

    // An update for an earlier month wipes the movement of all later months.
    AtualizaSaldos(con, S("01/2008"));
    EXPECT_EQ(linha("Plano", "03.001", "vd02,vc12,vd11,sf12"), "0|0|0|250");
}

// Worked by hand: 99.999,99 as a float is 99999.9921875; to currency
// 99999.9922; plus 0,02 and rounded, 100000.01; as a float 100000.0078125,
// whose seven digits read "100000". One cent is gone. (The float sum and its
// text alone: test_conversions.)
TEST_F(Contabil, AtualizaLosesTheCentAbove99999AsTheFloatSumsDo)
{
    planoPadrao();
    lanca(S("03/03/2008"), S("03.001"), S("01.002"), S("99999,99"));
    lanca(S("04/03/2008"), S("03.001"), S("01.002"), S("0,02"));
    lanca(S("05/03/2008"), S("03.001"), S("01.001"), S("123456,78"));
    AtualizaSaldos(con, S("03/2008"));
    EXPECT_EQ(linha("Plano", "01.002", "vc03"), "100000");    // not 100.000,01
    EXPECT_EQ(linha("Plano", "01.001", "vc03"), "123456,8");  // not 123.456,78
    // 223.456,79 by hand would be exact; the float total reads 223456,8.
    EXPECT_EQ(linha("Plano", "03.001", "vd03,sf03"), "223456,8|223456,8");
    EXPECT_EQ(linha("Plano", "01.", "vc03"), "223456,8");
}

TEST_F(Contabil, AtualizaReportsItsPassesInOrder)
{
    planoPadrao();
    std::vector<QString> textos;
    Progress ultimo;
    int maxPasso3 = -1;
    AtualizaSaldos(con, S("11/2008"), [&](const Progress &p) {
        if (textos.empty() || textos.back() != p.text)
            textos.push_back(p.text);
        if (p.text == kPasso3 && maxPasso3 < 0)
            maxPasso3 = p.max;
        ultimo = p;
    });
    const std::vector<QString> esperado{QString(), kPasso1, kPasso2, kPasso3, kPasso4, kAtualizacaoFinalizada};
    EXPECT_EQ(textos, esperado);
    EXPECT_EQ(maxPasso3, 4);  // one step for each synthetic account
    EXPECT_EQ(ultimo.overallValue, 5);
    EXPECT_EQ(ultimo.overallMax, 5);

    // The field is not validated: an empty month stops the run.
    EXPECT_THROW(AtualizaSaldos(con, kEmptyMonthYear), RunFailure);
    // A year without its journal table stops it before anything is wiped.
    poe(S("03.001"), S("sf07"), S("70"));
    EXPECT_THROW(AtualizaSaldos(con, S("06/2009")), DatabaseError);
    EXPECT_EQ(plano(S("03.001"), S("sf07")), reais("70"));
}
