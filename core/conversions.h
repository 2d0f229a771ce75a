#pragma once
// The system's conventions for text, numbers and dates, in one place. Every
// form and routine pads, rounds, formats and counts days through these; none
// writes its own. All Brazilian forms use the decimal comma and the point as
// thousands separator; none of this depends on the C locale.
#include "core/errors.h"
#include "core/money.h"
#include "core/val.h"

#include <QDate>
#include <QString>

// The register forms still reach the validators and the scrambling through
// this header; once they include their own, these two lines go.
#include "core/scramble.h"
#include "core/validators.h"

// ---- Field helpers of the system ------------------------------------------
QString trimBlanks(const QString &text);                  // trims as the system trims: blanks only, not tabs
QString ZeroEsq(const QString &text, int width);          // trims; longer than width: RunFailure
// Left-pads with zeros up to width and never cuts: a longer text stays as it
// is. For the codes that grow past their width (receipt 1000000, Con1000.mdb).
QString padZeros(const QString &text, int width);
QString VirgulaPonto(const QString &text);                // trims; ',' -> '.'
double Arredonda(Money value, int places);                // floor(v*10^p + 0.5)/10^p in double
QString SoNumero(QString &text);                          // trims text in place; digits, ':' and the first comma
QString SoNumeroSinal(QString &text);                     // the same, and every minus sign
QString UltimoDia(const QDate &date);                     // "28".."31", February by year % 4 only
QString NomeMes(int month);                               // 1..11 by name, anything else "Dezembro"
QString SemAcento(const QString &text);                   // accents off, apostrophe to blank

// ---- Number to text ----------------------------------------------------------
// Plain conversion to text in the Brazilian locale: no thousands separator, no
// trailing zeros, decimal comma ("12,5", "-0,01", "3").
QString moneyText(Money value);
QString doubleText(double value);                         // at most 15 significant digits
QString singleText(float value);                          // at most 7 significant digits
// The form that puts a blank before a non-negative number and a '.' before a
// fraction (" 7320.5", "-3").
QString strText(double value);
// Format pictures: "#######0.00", "###,###,##0.00", "R$ ###,###,##0.00",
// "#,###,##0.00", "##,###,##0.00", "0000000000", "0000", "@@@@@@" ... with
// the Brazilian separators (',' thousands in the picture prints '.', '.'
// decimal in the picture prints ',').
QString formatNumber(double value, const QString &picture);
QString formatMoney(Money value, const QString &picture);
QString formatText(const QString &text, const QString &picture);   // "@@@@@@"
// A field's text through a numeric picture ("0000" on an agency field): text
// that reads as a number (digits, a sign, one decimal comma, blanks around)
// is formatted; any other text, the empty one too, comes back as it is.
QString formatNumberText(const QString &text, const QString &picture);
// Date pictures: "dd/mm/yyyy", "mm/dd/yyyy", "mm/yyyy", "yyyy", "yymm", "ddmmyy", "ddmm".
QString formatDate(const QDate &date, const QString &picture);

// ---- The accounting's rounding step -------------------------------------------
// Arredonda to `places`, back in the money type.
Money roundedMoney(Money value, int places);
// Adds a value to a single-precision accumulator as the balance update does:
// value rounded to two places, accumulator to money, sum, sum rounded to two
// places, back to single precision. Sums keep seven significant digits.
float accumulateSingle(float accumulator, Money value);

// ---- Dates --------------------------------------------------------------------
int dateToDays(const QDate &date);                        // 30/12/1899 is day 0
QDate daysToDate(int days);
bool isDateText(const QString &ddmmyyyy);                 // a valid "dd/mm/yyyy"
QDate dateFromText(const QString &ddmmyyyy);              // invalid QDate when not a date

// ---- Masks ----------------------------------------------------------------------
inline const QString kEmptyDate = QStringLiteral("__/__/____");
inline const QString kEmptyMonthYear = QStringLiteral("__/____");
QString bareText(const QString &masked);                  // the text without its prompt '_' and literals
