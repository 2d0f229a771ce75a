#include "core/conversions.h"

#include <gtest/gtest.h>

namespace {
Money cents(int64_t c) { return Money::fromUnits(c * 100); }
} // namespace

TEST(ZeroEsq, TrimsPadsAndRefusesTextWiderThanWidth)
{
    EXPECT_EQ(ZeroEsq(QStringLiteral(" 12 "), 6), QStringLiteral("000012"));
    EXPECT_EQ(ZeroEsq(QStringLiteral("123456"), 6), QStringLiteral("123456"));
    EXPECT_EQ(ZeroEsq(QString(), 3), QStringLiteral("000"));
    EXPECT_THROW(ZeroEsq(QStringLiteral("1234"), 3), RunFailure);
    EXPECT_THROW(ZeroEsq(QStringLiteral("1234567"), 6), RunFailure);
}

TEST(VirgulaPonto, TrimsAndTurnsEveryCommaIntoAPoint)
{
    EXPECT_EQ(VirgulaPonto(QStringLiteral(" 1,5 ")), QStringLiteral("1.5"));
    EXPECT_EQ(VirgulaPonto(QStringLiteral("1.234,56")), QStringLiteral("1.234.56"));
    EXPECT_EQ(VirgulaPonto(QStringLiteral("   ")), QString());
    EXPECT_EQ(VirgulaPonto(QString()), QString());
}

TEST(Money, FromDoubleRoundsHalfToEvenAtTheFourthPlace)
{
    EXPECT_EQ(Money::fromDouble(0.00025).units(), 2);
    EXPECT_EQ(Money::fromDouble(0.00035).units(), 4);
    EXPECT_EQ(Money::fromDouble(2.00015).units(), 20002);
    EXPECT_EQ(Money::fromDouble(-0.00025).units(), -2);
}

TEST(Arredonda, RoundsHalfUpAndNegativeTiesTowardPositiveInfinity)
{
    EXPECT_DOUBLE_EQ(Arredonda(Money::fromUnits(1250), 2), 0.13);
    EXPECT_DOUBLE_EQ(Arredonda(Money::fromUnits(-1250), 2), -0.12);
    EXPECT_DOUBLE_EQ(Arredonda(Money::fromUnits(-25000), 0), -2.0);
    EXPECT_DOUBLE_EQ(Arredonda(Money::fromUnits(-1251), 2), -0.13);
    EXPECT_DOUBLE_EQ(Arredonda(Money::fromUnits(12345), 2), 1.23);
    EXPECT_DOUBLE_EQ(Arredonda(Money::fromUnits(12345), 3), 1.235);
    EXPECT_DOUBLE_EQ(Arredonda(Money::fromUnits(999950), 1), 100.0);
}

TEST(SoNumero, KeepsDigitsColonsTheFirstCommaAndForSinalEveryMinus)
{
    QString text = QStringLiteral("  12a,3,4-5: ");
    EXPECT_EQ(SoNumero(text), QStringLiteral("12,345:"));
    EXPECT_EQ(text, QStringLiteral("12a,3,4-5:")) << "the argument is trimmed in place";
    QString signedText = QStringLiteral("-1,5-");
    EXPECT_EQ(SoNumeroSinal(signedText), QStringLiteral("-1,5-"));
    QString empty = QStringLiteral("   ");
    EXPECT_EQ(SoNumero(empty), QString());
}

TEST(UltimoDia, CountsFebruaryByYearDivisibleByFourOnly)
{
    EXPECT_EQ(UltimoDia(QDate(2100, 2, 1)), QStringLiteral("29"));
    EXPECT_EQ(UltimoDia(QDate(1900, 2, 15)), QStringLiteral("29"));
    EXPECT_EQ(UltimoDia(QDate(2004, 2, 15)), QStringLiteral("29"));
    EXPECT_EQ(UltimoDia(QDate(2003, 2, 15)), QStringLiteral("28"));
    EXPECT_EQ(UltimoDia(QDate(2004, 4, 30)), QStringLiteral("30"));
    EXPECT_EQ(UltimoDia(QDate(2004, 8, 1)), QStringLiteral("31"));
    EXPECT_EQ(UltimoDia(QDate(2004, 12, 1)), QStringLiteral("31"));
}

TEST(NomeMes, NamesElevenMonthsAndAnythingElseIsDezembro)
{
    EXPECT_EQ(NomeMes(1), QStringLiteral("Janeiro"));
    EXPECT_EQ(NomeMes(3), QStringLiteral("Março"));
    EXPECT_EQ(NomeMes(11), QStringLiteral("Novembro"));
    EXPECT_EQ(NomeMes(12), QStringLiteral("Dezembro"));
    EXPECT_EQ(NomeMes(0), QStringLiteral("Dezembro"));
    EXPECT_EQ(NomeMes(13), QStringLiteral("Dezembro"));
    EXPECT_EQ(NomeMes(-1), QStringLiteral("Dezembro"));
}

TEST(SemAcento, TakesAccentsOffAndTheApostropheBecomesABlank)
{
    EXPECT_EQ(SemAcento(QStringLiteral("D'Água")), QStringLiteral("D Agua"));
    EXPECT_EQ(SemAcento(QStringLiteral("São João ÇÃO ção Ñ ñ Ü ü ÀÉÍÓÚ àéíóú")),
              QStringLiteral("Sao Joao CAO cao N n U u AEIOU aeiou"));
    EXPECT_EQ(SemAcento(QStringLiteral("Ø ø ß")), QStringLiteral("Ø ø ß"));
}

TEST(NumberText, PlainConversionsInTheBrazilianLocale)
{
    EXPECT_EQ(moneyText(Money::fromUnits(125000)), QStringLiteral("12,5"));
    EXPECT_EQ(moneyText(Money::fromUnits(-100)), QStringLiteral("-0,01"));
    EXPECT_EQ(moneyText(Money::fromInt(3)), QStringLiteral("3"));
    EXPECT_EQ(moneyText(Money::fromUnits(12345678)), QStringLiteral("1234,5678"));
    EXPECT_EQ(moneyText(Money()), QStringLiteral("0"));
    EXPECT_EQ(moneyText(Money::fromInt(1000000)), QStringLiteral("1000000"));

    EXPECT_EQ(doubleText(0.1 + 0.2), QStringLiteral("0,3"));
    EXPECT_EQ(doubleText(1.0 / 3.0), QStringLiteral("0,333333333333333"));
    EXPECT_EQ(doubleText(-2.5), QStringLiteral("-2,5"));
    EXPECT_EQ(doubleText(123456789012345.0), QStringLiteral("123456789012345"));
    EXPECT_EQ(doubleText(1e15), QStringLiteral("1E+15"));
    EXPECT_EQ(doubleText(0.0001), QStringLiteral("0,0001"));
    EXPECT_EQ(doubleText(0.000015), QStringLiteral("1,5E-05"));
    EXPECT_EQ(doubleText(-0.0), QStringLiteral("0"));
}

TEST(NumberText, SingleShowsAtMostSevenSignificantDigits)
{
    EXPECT_EQ(singleText(1234.5678f), QStringLiteral("1234,568"));
    EXPECT_EQ(singleText(99999.99f), QStringLiteral("99999,99"));
    EXPECT_EQ(singleText(123456.78f), QStringLiteral("123456,8"));
    EXPECT_EQ(singleText(-0.5f), QStringLiteral("-0,5"));
    EXPECT_EQ(singleText(0.1f), QStringLiteral("0,1"));
    EXPECT_EQ(singleText(1234567.0f), QStringLiteral("1234567"));
    EXPECT_EQ(singleText(12345678.0f), QStringLiteral("1,234568E+07"));
    EXPECT_EQ(singleText(0.0f), QStringLiteral("0"));
}

TEST(NumberText, StrPutsABlankBeforeNonNegativeAndAPointBeforeTheFraction)
{
    EXPECT_EQ(strText(7320.5), QStringLiteral(" 7320.5"));
    EXPECT_EQ(strText(-3), QStringLiteral("-3"));
    EXPECT_EQ(strText(0), QStringLiteral(" 0"));
    EXPECT_EQ(strText(0.5), QStringLiteral(" .5"));
    EXPECT_EQ(strText(-0.25), QStringLiteral("-.25"));
    EXPECT_EQ(strText(536821644.5), QStringLiteral(" 536821644.5"));
    EXPECT_EQ(strText(1e16), QStringLiteral(" 1E+16"));
}

TEST(FormatNumber, MoneyPicturesWithBrazilianSeparators)
{
    EXPECT_EQ(formatNumber(0, QStringLiteral("#######0.00")), QStringLiteral("0,00"));
    EXPECT_EQ(formatNumber(1234.5, QStringLiteral("#######0.00")), QStringLiteral("1234,50"));
    EXPECT_EQ(formatNumber(123456789.5, QStringLiteral("#######0.00")), QStringLiteral("123456789,50"));
    EXPECT_EQ(formatNumber(1234567.891, QStringLiteral("###,###,##0.00")), QStringLiteral("1.234.567,89"));
    EXPECT_EQ(formatNumber(0.5, QStringLiteral("###,###,##0.00")), QStringLiteral("0,50"));
    EXPECT_EQ(formatNumber(999.995, QStringLiteral("###,###,##0.00")), QStringLiteral("1.000,00"));
    EXPECT_EQ(formatNumber(1500, QStringLiteral("R$ ###,###,##0.00")), QStringLiteral("R$ 1.500,00"));
    EXPECT_EQ(formatNumber(-5, QStringLiteral("R$ ###,###,##0.00")), QStringLiteral("-R$ 5,00"));
    EXPECT_EQ(formatNumber(-1234.5, QStringLiteral("#,###,##0.00")), QStringLiteral("-1.234,50"));
    EXPECT_EQ(formatNumber(1234567890, QStringLiteral("##,###,##0.00")), QStringLiteral("1.234.567.890,00"));
    EXPECT_EQ(formatNumber(1.5, QStringLiteral("###0.0000")), QStringLiteral("1,5000"));
}

TEST(FormatNumber, RoundsHalfAwayFromZeroOnTheDecimalDigits)
{
    // 12.345 is held a little below the half in binary; the picture rounds its
    // fifteen-digit decimal form, as the runtime did.
    EXPECT_EQ(formatNumber(12.345, QStringLiteral("0.00")), QStringLiteral("12,35"));
    EXPECT_EQ(formatNumber(-12.345, QStringLiteral("0.00")), QStringLiteral("-12,35"));
    EXPECT_EQ(formatNumber(2.5, QStringLiteral("0")), QStringLiteral("3"));
    EXPECT_EQ(formatNumber(-0.001, QStringLiteral("0.00")), QStringLiteral("-0,00"));
    EXPECT_EQ(formatNumber(12345.5, QStringLiteral("0000000000")), QStringLiteral("0000012346"));
    EXPECT_EQ(formatNumber(12, QStringLiteral("0000")), QStringLiteral("0012"));
    EXPECT_EQ(formatNumber(12345, QStringLiteral("0000")), QStringLiteral("12345"));
    EXPECT_EQ(formatNumber(-123, QStringLiteral("0000000000")), QStringLiteral("-0000000123"));
    // Beyond fifteen digits a double has no more: the rest are zeros.
    EXPECT_EQ(formatNumber(9012345600000123456780102.0, QStringLiteral("0000000000000000000000000")),
              QStringLiteral("9012345600000120000000000"));
}

TEST(FormatNumber, MoneyUsesItsExactFourPlaces)
{
    EXPECT_EQ(formatMoney(Money::fromUnits(12345000), QStringLiteral("#######0.00")), QStringLiteral("1234,50"));
    EXPECT_EQ(formatMoney(Money::fromUnits(12345), QStringLiteral("0.00")), QStringLiteral("1,23"));
    EXPECT_EQ(formatMoney(Money::fromUnits(12350), QStringLiteral("0.00")), QStringLiteral("1,24"));
    EXPECT_EQ(formatMoney(Money::fromUnits(-12350), QStringLiteral("0.00")), QStringLiteral("-1,24"));
    EXPECT_EQ(formatMoney(cents(-123456789), QStringLiteral("###,###,##0.00")), QStringLiteral("-1.234.567,89"));
    EXPECT_EQ(formatMoney(Money::fromUnits(1234567) * 100.0, QStringLiteral("0000000000")),
              QStringLiteral("0000012346"));
    EXPECT_EQ(formatMoney(Money::fromUnits(12345), QStringLiteral("###0.0000")), QStringLiteral("1,2345"));
}

TEST(FormatText, AtSignsFillFromTheRightWithBlanks)
{
    EXPECT_EQ(formatText(QStringLiteral("123"), QStringLiteral("@@@@@@")), QStringLiteral("   123"));
    EXPECT_EQ(formatText(QStringLiteral("123456"), QStringLiteral("@@@@@@")), QStringLiteral("123456"));
    EXPECT_EQ(formatText(QStringLiteral("1234567"), QStringLiteral("@@@@@@")), QStringLiteral("1234567"));
    EXPECT_EQ(formatText(QString(), QStringLiteral("@@@")), QStringLiteral("   "));
}

TEST(FormatDate, EveryPictureTheFormsUse)
{
    const QDate d(2004, 3, 7);
    EXPECT_EQ(formatDate(d, QStringLiteral("dd/mm/yyyy")), QStringLiteral("07/03/2004"));
    EXPECT_EQ(formatDate(d, QStringLiteral("mm/dd/yyyy")), QStringLiteral("03/07/2004"));
    EXPECT_EQ(formatDate(d, QStringLiteral("mm/yyyy")), QStringLiteral("03/2004"));
    EXPECT_EQ(formatDate(d, QStringLiteral("yyyy")), QStringLiteral("2004"));
    EXPECT_EQ(formatDate(d, QStringLiteral("yymm")), QStringLiteral("0403"));
    EXPECT_EQ(formatDate(d, QStringLiteral("ddmmyy")), QStringLiteral("070304"));
    EXPECT_EQ(formatDate(d, QStringLiteral("ddmm")), QStringLiteral("0703"));
    EXPECT_EQ(formatDate(d, QStringLiteral("mm")), QStringLiteral("03"));
    EXPECT_EQ(formatDate(d, QStringLiteral("d/m/yyyy")), QStringLiteral("7/3/2004"));
    EXPECT_EQ(formatDate(d, QStringLiteral("mmmm")), QStringLiteral("março"));
    EXPECT_EQ(formatDate(QDate(), QStringLiteral("dd/mm/yyyy")), QString());
}

TEST(Dates, DayCountFromThirtiethOfDecember1899)
{
    EXPECT_EQ(dateToDays(QDate(1899, 12, 30)), 0);
    EXPECT_EQ(dateToDays(QDate(1899, 12, 31)), 1);
    EXPECT_EQ(dateToDays(QDate(1899, 12, 29)), -1);
    EXPECT_EQ(dateToDays(QDate(2000, 1, 1)), 36526);
    EXPECT_EQ(dateToDays(QDate(1997, 10, 7)), 35710);
    EXPECT_EQ(daysToDate(36526), QDate(2000, 1, 1));
    EXPECT_EQ(daysToDate(dateToDays(QDate(2025, 2, 22))), QDate(2025, 2, 22));
}

TEST(Dates, ReadingDayFirstText)
{
    EXPECT_TRUE(isDateText(QStringLiteral("29/02/2004")));
    EXPECT_FALSE(isDateText(QStringLiteral("29/02/2003")));
    EXPECT_FALSE(isDateText(QStringLiteral("31/04/2004")));
    EXPECT_FALSE(isDateText(QStringLiteral("05/13/2004")));
    EXPECT_FALSE(isDateText(kEmptyDate));
    EXPECT_FALSE(isDateText(QString()));
    EXPECT_FALSE(isDateText(QStringLiteral("1a/02/2004")));
    EXPECT_EQ(dateFromText(QStringLiteral("7/10/1997")), QDate(1997, 10, 7));
    EXPECT_EQ(dateFromText(QStringLiteral(" 31/12/2004 ")), QDate(2004, 12, 31));
    EXPECT_EQ(dateFromText(QStringLiteral("01/03/04")), QDate(2004, 3, 1));
    EXPECT_EQ(dateFromText(QStringLiteral("01/03/30")), QDate(1930, 3, 1));
    EXPECT_EQ(dateFromText(QStringLiteral("03/2004")), QDate(2004, 3, 1));
    EXPECT_FALSE(dateFromText(QStringLiteral("__/____")).isValid());
}

TEST(Masks, BareTextDropsPromptsAndLiterals)
{
    EXPECT_EQ(bareText(QStringLiteral("123.456.789-09")), QStringLiteral("12345678909"));
    EXPECT_EQ(bareText(QStringLiteral("___.___.___-__")), QString());
    EXPECT_EQ(bareText(kEmptyDate), QString());
    EXPECT_EQ(bareText(QStringLiteral("01/2004")), QStringLiteral("012004"));
    EXPECT_EQ(bareText(QStringLiteral("12.3__")), QStringLiteral("123"));
}

TEST(FormatNumber, FieldTextThroughAPicture)
{
    EXPECT_EQ(formatNumberText(QStringLiteral("12"), QStringLiteral("0000")), QStringLiteral("0012"));
    EXPECT_EQ(formatNumberText(QStringLiteral(" 345 "), QStringLiteral("0000")), QStringLiteral("0345"));
    EXPECT_EQ(formatNumberText(QStringLiteral("1,5"), QStringLiteral("0.00")), QStringLiteral("1,50"));
    EXPECT_EQ(formatNumberText(QStringLiteral("-7"), QStringLiteral("0000")), QStringLiteral("-0007"));
    EXPECT_EQ(formatNumberText(QStringLiteral("12a"), QStringLiteral("0000")), QStringLiteral("12a"));
    EXPECT_EQ(formatNumberText(QString(), QStringLiteral("0000")), QString());
    EXPECT_EQ(formatNumberText(QStringLiteral("1,2,3"), QStringLiteral("0000")), QStringLiteral("1,2,3"));
}

TEST(AccountingRounding, SingleAccumulatorRoundsEachStepAndKeepsSevenDigits)
{
    EXPECT_EQ(roundedMoney(Money::fromUnits(12345), 2), Money::fromUnits(12300));
    EXPECT_EQ(roundedMoney(Money::fromUnits(-1250), 2), Money::fromUnits(-1200));

    float a = 0;
    a = accumulateSingle(a, Money::fromUnits(21250));   // 2,125 -> 2,13: 212,5 is exact
    a = accumulateSingle(a, Money::fromUnits(20049));   // 2,0049 -> 2,00
    // 1,005 is held below the half in double: 100,4999... + 0,5 floors to 100.
    a = accumulateSingle(a, Money::fromUnits(10050));
    EXPECT_FLOAT_EQ(a, 5.13f);
    EXPECT_EQ(singleText(a), QStringLiteral("5,13"));

    // Above about 99.999,99 a single loses the cents.
    float big = 0;
    big = accumulateSingle(big, Money::fromInt(123456));
    big = accumulateSingle(big, Money::fromUnits(7800));  // 0,78
    EXPECT_EQ(singleText(big), QStringLiteral("123456,8"));
    EXPECT_EQ(doubleText(double(big)), QStringLiteral("123456,78125"));
}
