#pragma once
// An independent reading of a slip by the FEBRABAN layout, for the tests:
// the general digit by weights 2..9 and 11 minus the remainder (0, 10 and 11
// give 1), the field digits by the usual modulo 10, and the typed line read
// back into a bar code.
#include "banks/bancos.h"

#include <QString>
#include <gtest/gtest.h>

inline int febrabanGeneralDigit(const QString &digits43)
{
    int sum = 0, weight = 2;
    for (int i = digits43.size() - 1; i >= 0; --i) {
        sum += (digits43[i].unicode() - '0') * weight;
        weight = weight == 9 ? 2 : weight + 1;
    }
    const int d = 11 - sum % 11;
    return (d == 0 || d == 10 || d == 11) ? 1 : d;
}

inline int febrabanFieldDigit(const QString &digits)
{
    int sum = 0, weight = 2;
    for (int i = digits.size() - 1; i >= 0; --i) {
        const int p = (digits[i].unicode() - '0') * weight;
        sum += p / 10 + p % 10;
        weight = 3 - weight;
    }
    return (10 - sum % 10) % 10;
}

// Checks a 44-digit bar code and its typed line against each other and the layout.
inline void expectSlipLayout(const QString &barra, const QString &linha, const QString &banco, const QString &fator,
                             const QString &valor, const QString &livre)
{
    ASSERT_EQ(barra.size(), 44) << barra.toStdString();
    for (QChar c : barra)
        ASSERT_TRUE(c.isDigit()) << barra.toStdString();
    EXPECT_EQ(barra.left(3), banco);
    EXPECT_EQ(barra.mid(3, 1), QStringLiteral("9"));
    EXPECT_EQ(barra.mid(5, 4), fator);
    EXPECT_EQ(barra.mid(9, 10), valor);
    EXPECT_EQ(barra.mid(19, 25), livre);
    EXPECT_EQ(barra.mid(4, 1).toInt(), febrabanGeneralDigit(barra.left(4) + barra.mid(5)));

    // AAAAA.AAAAD BBBBB.BBBBBD CCCCC.CCCCCD K FFFFVVVVVVVVVV
    ASSERT_EQ(linha.size(), 54) << linha.toStdString();
    const QStringList parts = linha.split(u' ');
    ASSERT_EQ(parts.size(), 5);
    EXPECT_EQ(parts[0][5], u'.');
    EXPECT_EQ(parts[1][5], u'.');
    EXPECT_EQ(parts[2][5], u'.');
    const QString f1 = QString(parts[0]).remove(u'.');
    const QString f2 = QString(parts[1]).remove(u'.');
    const QString f3 = QString(parts[2]).remove(u'.');
    EXPECT_EQ(f1.right(1).toInt(), febrabanFieldDigit(f1.left(9)));
    EXPECT_EQ(f2.right(1).toInt(), febrabanFieldDigit(f2.left(10)));
    EXPECT_EQ(f3.right(1).toInt(), febrabanFieldDigit(f3.left(10)));
    const QString readBack = f1.left(4) + parts[3] + parts[4] + f1.mid(4, 5) + f2.left(10) + f3.left(10);
    EXPECT_EQ(readBack, barra);
}

// A slip worked out by hand: its number, free field, bar code and typed line,
// read back by the layout with the bank, factor and value in place.
inline void expectSlip(const Boleto &b, const QString &nrbco, const QString &livre, const QString &barra,
                       const QString &linha, const QString &banco, const QString &fator, const QString &valor)
{
    EXPECT_TRUE(b.recusa.isEmpty()) << b.recusa.toStdString();
    EXPECT_EQ(b.nrbco, nrbco);
    EXPECT_EQ(b.campoLivre, livre);
    EXPECT_EQ(b.barra, barra);
    EXPECT_EQ(b.linha, linha);
    expectSlipLayout(b.barra, b.linha, banco, fator, valor, b.campoLivre);
}
