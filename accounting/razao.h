#pragma once
// The general ledger's work table (frmRRazao): the journal of the period
// unfolded into MovRazao, one line for each side of each entry, sorted by
// account, date and side, with an opening line per account and a running
// balance.
#include "accounting/progress.h"
#include "core/datastore.h"

#include <QString>

struct RazaoPeriodo {
    QString ano;                 // tdbAno text, "yyyy"
    QString mesIni;              // txtMesini
    QString mesFim;              // txtMesfin; zero or empty: the month of mesIni alone
    QString ctaIni = QStringLiteral("__.___");  // mskCIni; the range applies only when both ends are filled
    QString ctaFim = QStringLiteral("__.___");  // mskCFim
};

// Fills MovRazao. Returns false when it did nothing (month or year zero) or
// when the period has no entries, which the form tells with kSemMovimento
// (see balancete.h) under "Atenção...". The line number is the system's
// 16-bit counter: a period of more than 32.767 lines stops the run with
// "Estouro de capacidade", after the lines before it were written.
bool EncheMovRazao(Connection &con, const RazaoPeriodo &periodo, const ProgressFn &progresso = {});
