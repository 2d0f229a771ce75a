#pragma once
// The automatic run of frmParametro: one receipt for each selected apartment,
// numbered on from Parametros.Fnreci, without printing.
#include "accounting/progress.h"
#include "billing/parametros.h"

#include <QDate>
#include <QString>

class Connection;
class Field;

// The list of apartments and its count.
struct SelecaoEmissao {
    QString lista;
    QString contagem;
};

// fdemis goes month first between # signs, as in every Aptos selection.
// temEventoFixo: some fixed event has a value other than 0 and a code above 0.
SelecaoEmissao montaSelecao(const QString &fsempr, QChar fordem, bool fhonor, bool temEventoFixo,
                            const QString &fnemis, const QDate &fdemis);

// The due date: day `diavcto` of the month "mm/yyyy", walking back until it
// is a date (day 31 in February gives the last day). A Null day, or one that
// never becomes a date, gives the first of the month. Invalid month: invalid date.
QDate dataVencimento(const Field &diavcto, const QString &fmvcto);
QDate dataVencimento(int dia, const QString &fmvcto);

struct ResultadoEmissao {
    bool iniciada = false;     // false: stopped before the loop (nothing to issue, No, bad month)
    int emitidos = 0;
    bool interrompida = false; // an apartment of the list was not found: the rest was not issued
    QString fnreci;            // the number written back to Parametros (for mskNrRecibo); "" if none
};

inline const QString kMsgNadaAEmitir = QStringLiteral(
    "Não há recibos para emissão automática nestas condições ou eles já foram emitidos !");

// The run. The month's settings are read from Parametros; the three fee
// events and their complements come from the form's controls (`form`), which
// were saved just before. Asks "Confirmação.." before the first receipt.
// `progresso`, when given, hears the bar's range (0 to the count) once the run
// starts and its value after every unit: frmParametro moves its bar and keeps
// the window painting from there.
ResultadoEmissao emissaoAutomatica(Connection &con, const ParametrosEmissao &form, const ProgressFn &progresso = {});
