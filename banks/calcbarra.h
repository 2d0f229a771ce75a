#pragma once
// The slip run of frmBcoDiversos for the banks without a remittance file
// (001, 104, 237, 409; 353 is accepted and does nothing): cmdCalcBarraG over
// a selection statement, cmdCalcBarra for one receipt. Messages go through the
// prompter; each receipt gets its columns by one UPDATE.
#include "banks/bancos.h"

#include <QDate>
#include <QString>
#include <cstdint>
#include <functional>

class Connection;

// The fields of the form that the run reads and writes. The working fields
// outlive one receipt, as on the form.
struct FormCalcBarra {
    ParametrosBanco parametros;
    QDate dataGeracao;            // tdbDatagR
    QString selecao;              // the selection statement; empty until chosen
    QString carteira;             // the bare wallet filled to 3, kept by the run
    Boleto trabalho;              // number, free field, bar code, typed line, factor
    int16_t contagem = 0;         // receipts of the run
    // Told after each receipt: receipts done and receipts of the selection (the form's bar).
    std::function<void(int feitos, int total)> progresso;
};

enum class FimCalcBarra {
    Calculado,        // the closing message was shown
    BancoComRemessa,  // the bank takes a remittance file
    FaltaSelecao,     // no selection: the form gives the focus to cmdSelRec
    SemRegistros,     // the selection found nothing
    Recusado,         // a bank rule refused (001 without a 7-digit agreement)
    Banco353,         // left at once, silently
};

// The statement that writes one receipt's slip columns.
QString updateRecibosBanco(const QDate &dataGeracao, const Boleto &b, const QString &banco, const QString &codigo);

FimCalcBarra cmdCalcBarraG(Connection &con, FormCalcBarra &form);
// One receipt by its number (txtNrRecibo): fills it to 6 and sets the selection.
FimCalcBarra cmdCalcBarra(Connection &con, FormCalcBarra &form, const QString &nrRecibo);

// The bank columns of the Parametros row, as the form loads them.
struct ParametrosGravados {
    QString rbanco, ritauag, ritaucc, ritaucd, ritaucgc, ritaucpf, rconvenio, ritaucart, ritaunn, ritauesp,
        ritaui1, ritaui2;
    bool ritauespNulo = false;   // the form then shows the species "DM"
};
ParametrosGravados leParametrosBanco(Connection &con);
// The form's fields from the stored row: the wallet gets its prompt
// characters back ("06" shows as "06_").
ParametrosBanco parametrosDoForm(const ParametrosGravados &g);
// A three-position mask's text with prompts for a stored text.
QString textoMascaraCarteira(const QString &stored);

// The receipts of a run when nobody chose them: open and without a bank number.
QString selecaoPadraoBanco();
