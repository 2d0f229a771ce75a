#pragma once
// The billing reports: amounts to receive by entrance (frmRCondRec, through
// the work table Conarec), by place of collection (frmRCondCobr), by bank
// (frmConBanco) and by year (frmRRecAnual). The statements, the fill of
// Conarec and the rows each report hands its template.
#include "core/datastore.h"
#include "core/money.h"

#include <QDate>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

// The type boxes: which totals of a receipt an amount adds up.
struct TiposTotal {
    bool h = false;  // chkH "Taxa Condominial": vtoth
    bool r = false;  // chkR "Receita": vtotr
    bool t = false;  // chkT "Terceiros": vtott
    bool d = false;  // chkD "Desconto": vtotd
    bool algum() const { return h || r || t || d; }
    bool todos() const { return h && r && t && d; }
};
inline const QString kSemTipo = QStringLiteral("Deve ser escolhido no mínimo um tipo !");
// "Taxa Condominial, Receita" for the title of a print.
QString nomesDosTipos(const TiposTotal &tipos);

// The amount of a row of sums (toth, totr, tott, totd, total) for the ticked
// types: their sum, or the row's total when all four are ticked.
Money valorDosTipos(const Recordset &rs, const TiposTotal &tipos);

// ---- Amounts to receive by entrance (Conarec) ---------------------------------
enum class SituacaoConarec { Abertos, Baixados, BaixadosApos };
struct FiltroConarec {
    QDate de, ate;               // emission period; both invalid: every emission
    SituacaoConarec situacao = SituacaoConarec::Abertos;
    QDate baixaApos;             // BaixadosApos: settled after this day
    bool comAbertos = false;     // BaixadosApos: the open receipts count too
    TiposTotal tipos;
};
// The sums by unit: the entrance is the third and fourth digits from the end
// of the unit's code. The discount is summed to whole units, the rest to two
// places.
QString sqlConarec(const FiltroConarec &f);
// Runs the sums; with rows, empties Conarec and writes one row a unit in one
// step. Returns the number of units; 0 leaves Conarec as it was.
long encheConarec(Connection &con, const FiltroConarec &f);
QString sqlInsereConarec(const QString &entrada, const QString &codap, const QString &nome, Money valor);
// Peri: "Período de dd/mm/yyyy à dd/mm/yyyy"; empty without a period.
QString periodoConarec(const FiltroConarec &f);
// Titu: the receipts counted and the types summed.
QString tituloConarec(const FiltroConarec &f);
// The report reads Conarec from the file of condominium 1 only.
bool arquivoDoConarec(const QString &arqAtivo);

// ---- By place of collection (ConCob) ------------------------------------------
// situacao 'A' open or 'B' settled.
QString sqlConCob(const QString &local, QChar situacao);
QStringList colunasConCob();
// Apto, Nome, the four sums (blank for a type not ticked) and Total.
QStringList linhaConCob(const Recordset &rs, const TiposTotal &tipos);
// TipoH, TipoR, TipoT, TipoD: "S" for a type chosen, "N" for one left out
// (the template prints the sum of a chosen type only).
QList<QPair<QString, QString>> formulasTipos(const TiposTotal &tipos);

// ---- By bank (ConBanco) ---------------------------------------------------------
// de/ate: period of the bank's generation date (both invalid: none);
// situacao 'A', 'B' or 'T'.
QString sqlConBanco(const QDate &de, const QDate &ate, QChar situacao, const QString &banco);
QStringList colunasConBanco();

// ---- By year (RAnual) -------------------------------------------------------------
// ordem: "Recibo", "Emissão" or "Apartamento".
QStringList ordensAnual();
QString sqlRAnual(const QString &ano, QChar situacao, const QString &ordem);
QStringList colunasRAnual();

// "Recibos em Aberto", "Recibos Baixados", "Todos os Recibos".
QString tituloSituacao(QChar situacao);
