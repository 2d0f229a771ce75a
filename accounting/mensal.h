#pragma once
// The monthly columns of Plano and the reading of their amounts, shared by the
// balance update, the work tables of the trial balance and the ledger.
#include "core/datastore.h"
#include "core/money.h"

#include <QString>

// "sf" + 3 -> "sf03": the month suffix is always two digits, "00" for the
// opening balance of the year.
QString colunaMes(const QString &prefixo, int mes);

// An amount of a monthly column or of the journal. Null is not an amount:
// the run stops here as the original did ("Uso inválido de Null").
Money valorMensal(const Field &field);

// The value of a month number typed in a field ("3", "03", " 12"); 0 when
// it holds no number.
int valorMes(const QString &texto);
