#pragma once
// Check digits, due-date factor, bar code and typed line of collection slips.
// Pure text functions: every bank rule (bancos.h) is a sequence of calls to them.
//
// Bar code, 44 digits:  bank(3) currency(1) general digit(1) factor(4) value(10) free field(25)
// Typed line:           AAAAA.AAAAD BBBBB.BBBBBD CCCCC.CCCCCD K FFFFVVVVVVVVVV
#include "core/money.h"

#include <QDate>
#include <QString>
#include <cstdint>

// The numeric test every check-digit routine makes first: blanks around, an
// optional sign, digits with at most one decimal comma and any thousands
// points. A text that fails it gets the empty digit, with no message.
bool passesNumericTest(const QString &text);

// Each routine returns one character, or "" when the text fails the numeric test.
QString Modulo10(const QString &digits);            // 2,1,2,1... from the right; products above 9 summed
QString Modulo10Pesos(const QString &digits);       // 3,7,9,1... with the jump at position 15
QString Modulo11Barra(const QString &digits);       // 9..2 from the right; remainder 0 or 10 gives "1"
QString Modulo11Resto(const QString &digits);       // 9..2; remainder 10 gives "0"
QString Modulo11Letra(const QString &digits);       // 2..7; 11 - r, 10 gives "P", 11 gives "0"
QString Modulo11Ascendente(const QString &digits);  // 2..9; 11 - r, 10 gives "0", 11 gives "1"
QString Modulo11Direto(const QString &digits);      // 2..7; remainder 10 gives "0"

// Days from 7 October 1997 to the due date. No wrap: below 1000 or above 9999
// the factor simply has fewer or more digits. An invalid date, or a factor
// outside 16 bits, stops the run (RunFailure).
// With `ciclico` (the installation's fatorVencimentoCiclico), a due date from
// 22/02/2025 on gets 1000 + (days - 1000) mod 9000: four digits again.
int16_t Fator_Vencimento(const QDate &vencimento, bool ciclico);
// The factor under the installation's setting (fatorVencimentoCiclico).
int16_t Fator_Vencimento(const QDate &vencimento);

// The value in centavos as ten digits ("0000123450" for R$ 1.234,50). A value
// the ten digits cannot hold (above 99.999.999,99) stops the run (RunFailure
// with kValorForaDoCodigo); the bank rules refuse it before they get here.
QString valorBarra(Money valor);
bool cabeNoCodigoDeBarras(Money valor);
inline const QString kValorForaDoCodigo =
    QStringLiteral("Valor acima de R$ 99.999.999,99 não cabe no código de barras !");

// Bank, currency, factor, value and free field, with the general digit
// (Modulo11Barra of the other 43) put in at position 5.
QString Monta_Barra(const QString &banco, const QString &moeda, Money valor, int16_t fator,
                    const QString &campoLivre);

// The typed line from T (bank, currency digit and free field: 29 digits), the
// general digit K cut out of the bar code, the value and the factor.
QString Monta_Linha(const QString &banco, const QString &t, const QString &k, Money valor, int16_t fator);
