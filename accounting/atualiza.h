#pragma once
// Balance update (frmMov_Atualiza): turns the journal of one base month into
// the monthly columns of Plano, and carries the balances on to December.
//
//   Connection con; con.Open(session.conAtiva);
//   AtualizaSaldos(con, "03/2008", [](const Progress &p) { ... });
//
// The sums are made in 32-bit floats, as the original made them, so totals
// above about 99.999,99 lose cents. Later months feed on those figures, so
// the loss is kept on purpose.
#include "accounting/progress.h"
#include "core/datastore.h"
#include "core/money.h"

#include <QString>

// Texts of lblProgresso, in the order the run shows them.
inline const QString kPasso1 = QStringLiteral("Passo 1/4: Ajustando Saldo Anterior...");
inline const QString kPasso2 = QStringLiteral("Passo 2/4: Somando e Agrupando Débitos e Créditos...");
inline const QString kPasso3 = QStringLiteral("Passo 3/4: Calculando Saldos Sintéticos...");
inline const QString kPasso4 = QStringLiteral("Passo 4/4: Calculando Saldos Sintéticos...");
inline const QString kAtualizacaoFinalizada = QStringLiteral("Atualização de Saldos Finalizada !!!");

// The run of cmdAtualiza for the text of tdbAnomesfim ("mm/yyyy"). The field
// is not validated: a text that is not a month or a missing year table stops
// the run (RunFailure or DatabaseError) before anything is written; a Null in
// a monthly column stops it halfway, and the months from the base month on
// stay wiped until the run is repeated.
void AtualizaSaldos(Connection &con, const QString &anoMesFim, const ProgressFn &progresso = {});

// The form's unload: records the chosen month when the field was changed and
// is not empty ("__/____").
void GravaMesBase(Connection &con, const QString &anoMesFim, bool alterado);

// A float as the statements carry it: at most seven significant digits with
// the decimal comma; zero is "0".
QString textoSingle(float valor);
