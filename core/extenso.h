#pragma once
// The amount in words printed on receipts and slips: capitals, with syllable
// marks ('-') where a line may break, laid out on two fixed-width lines.
#include <QString>

// One group of at most three digits in words. `masculino` picks the gender of
// UM/DOIS and of the hundreds, `marcado` the spelling with syllable marks.
QString TrioExtenso(const QString &texto, bool masculino, bool marcado);

// The amount, text of the form "digits,dd" (or "digits,d", or "digits"), in
// marked words. The result is left in session.sql and also returned. An
// amount above 999.999.999,99 is a RunFailure.
QString Extenso(const QString &valor);

// Lays the marked text of session.sql out on session.linhaExt1 (width
// largura1, opening with "(") and session.linhaExt2 (width largura2), both
// filled with asterisks, and empties session.sql.
void QuebraExtenso(int largura1, int largura2);
