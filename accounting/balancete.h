#pragma once
// Work tables of the trial balance and the statements of accounts
// (frmRBalancetes): RBalancete for a month or a period, RPcontas for the
// special statement, and the result of that statement.
#include "accounting/progress.h"
#include "core/datastore.h"
#include "core/money.h"

#include <QString>

inline const QString kSemMovimento = QStringLiteral(
    "Não há movimento para impressão do relatório, verifique o mês base e os lançamentos digitados !");

// The fill of RBalancete as the form runs it, from the texts of txtMesini,
// txtMesfin and tdbAno. A period sums the months from txtMesini to txtMesfin
// unrounded; a month takes txtMesini's figures rounded to two places. sini
// and sfin always come from txtMesini. With an empty Plano the form shows
// kSemMovimento (comMensagem) and the table stays empty. Returns false when
// nothing was filled.
bool EncheRBalancete(Connection &con, const QString &mesIni, const QString &mesFim, bool periodo, const QString &ano,
                     bool comMensagem = true, const ProgressFn &progresso = {});

// The shared routine: RBalancete for one month, on a connection of its own to
// the active condominium, without messages. A month below 1 does nothing.
void Monta_Balancete(const QString &mes, const QString &ano, const ProgressFn &progresso = {});
// The same on a connection the caller holds.
void Monta_Balancete(Connection &con, const QString &mes, const QString &ano, const ProgressFn &progresso = {});

// The fill of RPcontas (model "Prestação de Contas - Modelo Especial"),
// always for the month of txtMesini. Revenue rows have spct turned and sfin
// made positive; the cash rows (tipo and classe 'C') come only with
// incluiSaldo (chkIncluiSaldo) and carry sini.
void EncheRPcontas(Connection &con, const QString &mesIni, const QString &ano, bool incluiSaldo,
                   const ProgressFn &progresso = {});

// Result printed as Rpresult on PctEspecial.rpt: revenue less expenses of
// RPcontas, each sum rounded to two places by the database. An empty side
// counts as zero.
Money ResultadoPctEspecial(Connection &con);
