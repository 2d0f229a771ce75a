#include "core/conversions.h"
#include "core/extenso.h"
#include "core/session.h"

#include <gtest/gtest.h>

namespace {
QString stars(int n) { return QString(n, u'*'); }

// Extenso and QuebraExtenso as the receipts call them.
std::pair<QString, QString> lines(const QString &amount, int w1 = 37, int w2 = 77)
{
    Extenso(amount);
    QuebraExtenso(w1, w2);
    return {session.linhaExt1, session.linhaExt2};
}
} // namespace

TEST(TrioExtenso, GroupsInBothGendersAndSpellings)
{
    EXPECT_EQ(TrioExtenso(QStringLiteral("1"), true, true), QStringLiteral("UM"));
    EXPECT_EQ(TrioExtenso(QStringLiteral("1"), false, true), QStringLiteral("U-MA"));
    EXPECT_EQ(TrioExtenso(QStringLiteral("2"), false, false), QStringLiteral("DUAS"));
    EXPECT_EQ(TrioExtenso(QStringLiteral("100"), true, true), QStringLiteral("CEM"));
    EXPECT_EQ(TrioExtenso(QStringLiteral("101"), true, true), QStringLiteral("CEN-TO E UM"));
    EXPECT_EQ(TrioExtenso(QStringLiteral("010"), true, true), QStringLiteral("DEZ"));
    EXPECT_EQ(TrioExtenso(QStringLiteral("116"), true, true), QStringLiteral("CEN-TO E DE-ZES-SE-IS"));
    EXPECT_EQ(TrioExtenso(QStringLiteral("302"), false, true), QStringLiteral("TRE-ZEN-TAS E DU-AS"));
    EXPECT_EQ(TrioExtenso(QStringLiteral("999"), true, false), QStringLiteral("NOVECENTOS E NOVENTA E NOVE"));
    EXPECT_EQ(TrioExtenso(QStringLiteral("203"), true, true), QStringLiteral("DU-ZEN-TOS E TRES"));
    EXPECT_EQ(TrioExtenso(QStringLiteral("40"), true, true), QStringLiteral("QUA-REN-TA"));
    EXPECT_EQ(TrioExtenso(QStringLiteral("0"), true, true), QString());
    EXPECT_THROW(TrioExtenso(QStringLiteral("1000"), true, true), RunFailure);
}

TEST(Extenso, JoinsGroupsWithTheSystemsConnectives)
{
    EXPECT_EQ(Extenso(QStringLiteral("100,00")), QStringLiteral("CEM RE-AIS"));
    EXPECT_EQ(session.sql, QStringLiteral("CEM RE-AIS")) << "the result is left in sql";
    EXPECT_EQ(Extenso(QStringLiteral("101,00")), QStringLiteral("CEN-TO E UM RE-AIS"));
    EXPECT_EQ(Extenso(QStringLiteral("1000000,00")), QStringLiteral("UM MI-LHÃO DE RE-AIS"));
    EXPECT_EQ(Extenso(QStringLiteral("2000000,05")), QStringLiteral("DO-IS MI-LHÕES DE RE-AIS E CIN-CO CEN-TA-VOS"));
    EXPECT_EQ(Extenso(QStringLiteral("0,01")), QStringLiteral("UM CEN-TA-VO"));
    EXPECT_EQ(Extenso(QStringLiteral("1000,50")), QStringLiteral("UM MIL RE-AIS E CIN-QUEN-TA CEN-TA-VOS"));
    EXPECT_EQ(Extenso(QStringLiteral("1001,00")), QStringLiteral("UM MIL E UM RE-AL"));
    EXPECT_EQ(Extenso(QStringLiteral("1234,56")),
              QStringLiteral("UM MIL DU-ZEN-TOS E TRIN-TA E QUA-TRO RE-AIS E CIN-QUEN-TA E SE-IS CEN-TA-VOS"));
    EXPECT_EQ(Extenso(QStringLiteral("2001000,00")), QStringLiteral("DO-IS MI-LHÕES E UM MIL RE-AIS"));
    EXPECT_EQ(Extenso(QStringLiteral("1000100,00")), QStringLiteral("UM MI-LHÃO E CEM RE-AIS"));
    EXPECT_EQ(Extenso(QStringLiteral("3001001,00")), QStringLiteral("TRES MI-LHÕES UM MIL E UM RE-AL"));
    EXPECT_EQ(Extenso(QStringLiteral("1,00")), QStringLiteral("UM RE-AL"));
    EXPECT_EQ(Extenso(QStringLiteral("0,00")), QString());
}

TEST(Extenso, AmountsWithoutTwoDecimalsAndAmountsTooLarge)
{
    EXPECT_EQ(Extenso(QStringLiteral("100")), QStringLiteral("CEM RE-AIS"));
    EXPECT_EQ(Extenso(QStringLiteral("0,5")), QStringLiteral("CIN-QUEN-TA CEN-TA-VOS"));
    EXPECT_EQ(Extenso(QStringLiteral("21,1")), QStringLiteral("VIN-TE E UM RE-AIS E DEZ CEN-TA-VOS"));
    EXPECT_EQ(Extenso(QStringLiteral("999999999,99")).left(33), QStringLiteral("NO-VE-CEN-TOS E NO-VEN-TA E NO-VE"));
    EXPECT_THROW(Extenso(QStringLiteral("1000000000,00")), RunFailure);
}

TEST(QuebraExtenso, ShortAmountClosesLineOneAndLineTwoIsAsterisksOnly)
{
    const auto [l1, l2] = lines(QStringLiteral("100,00"));
    EXPECT_EQ(l1, QStringLiteral("(CEM REAIS) ") + stars(25));
    EXPECT_EQ(l2, u' ' + stars(76));
    EXPECT_TRUE(session.sql.isEmpty());

    EXPECT_EQ(lines(QStringLiteral("0,00")).first, QStringLiteral("() ") + stars(34));
}

TEST(QuebraExtenso, WidensLineOneFromBothEndsAndFillsLineTwo)
{
    const auto [l1, l2] = lines(QStringLiteral("1234,56"));
    EXPECT_EQ(l1, QStringLiteral("(UM  MIL  DUZENTOS E TRINTA E  QUATRO"));
    EXPECT_EQ(l2, QStringLiteral("REAIS E CINQUENTA E SEIS CENTAVOS) ") + stars(42));
    EXPECT_EQ(l1.size(), 37);
    EXPECT_EQ(l2.size(), 77);
}

TEST(QuebraExtenso, BreaksAWordAtASyllableWithoutAHyphen)
{
    const auto [l1, l2] = lines(QStringLiteral("777777,77"));
    EXPECT_EQ(l1, QStringLiteral("(SETECENTOS  E SETENTA E SETE MIL  SE"));
    EXPECT_EQ(l2, QStringLiteral("TECENTOS E SETENTA E SETE REAIS E SETENTA E SETE CENTAVOS) ") + stars(18));
}

TEST(QuebraExtenso, LineTwoShorterThanFourCharactersPutsTheParenthesisOnLineOne)
{
    // Only "VOS" is left for line 2: the closing parenthesis goes to line 1,
    // which then is one character wider than its width.
    const auto [l1, l2] = lines(QStringLiteral("17,17"));
    EXPECT_EQ(l1, QStringLiteral("(DEZESSETE  REAIS  E DEZESSETE  CENTA)"));
    EXPECT_EQ(l2, QStringLiteral("VOS ") + stars(73));
}

TEST(QuebraExtenso, TextBeyondLineTwoIsAFailure)
{
    Extenso(QStringLiteral("123456789,12"));
    EXPECT_THROW(QuebraExtenso(37, 77), RunFailure);
    // Wider lines take it.
    const auto [l1, l2] = lines(QStringLiteral("123456789,12"), 60, 120);
    EXPECT_EQ(l1.size(), 60);
    EXPECT_EQ(l2.size(), 120);
    EXPECT_TRUE(l2.contains(QStringLiteral("CENTAVOS) *")));
}

TEST(QuebraExtenso, LineTwoIsAlwaysFilledToItsWidth)
{
    for (const char *amount : {"0,01", "5,00", "21,1", "1000,50", "38888,00", "80000,80", "1000001,00", "654321,98"}) {
        const auto [l1, l2] = lines(QString::fromLatin1(amount));
        EXPECT_EQ(l2.size(), 77) << amount;
        EXPECT_TRUE(l2.endsWith(u'*')) << amount;
        EXPECT_TRUE(l1.startsWith(u'(')) << amount;
        EXPECT_FALSE(l1.contains(u'-') || l2.contains(u'-')) << amount;
    }
}
