#pragma once
// The receipt record (Recibos): the one rule of its totals, the amount of an
// item with a reference, the numbering, the settlement stamp, and the way its
// values are written into statements. Every writer of receipts goes through here.
#include "core/anotaerro.h"
#include "core/money.h"

#include <QDate>
#include <QString>
#include <vector>

class Connection;

inline constexpr int kSlotsRecibo = 10;  // item0..item9, comp0..comp9, refer0..refer9, valor0..valor9

// A finding of a save, for the error dialog: tipo "Erro Fatal" stops the
// save, "Alerta de Erro" warns.
struct ErroGravacao {
    QString tipo;
    QString mensagem;
    bool operator==(const ErroGravacao &) const = default;
};
inline const QString kAlertaDeErro = QStringLiteral("Alerta de Erro");

// One item of a receipt, as the grid and the slots hold it.
struct ItemRecibo {
    QString item;    // event code, three digits
    QString comp;    // complement
    double refer = 0;
    Money valor;
};

// The five totals of a receipt.
struct TotaisRecibo {
    Money vtoth, vtotr, vtott, vtotd, vtotal;
    bool operator==(const TotaisRecibo &) const = default;
};

// The one totals rule: the value always goes to vtotal; the event's type, read
// with "SELECT tipo FROM eventos WHERE codigo = '...'", picks H, R, T or (any
// other type) D. An event that no longer exists counts in vtotal only.
// Discounts are added like everything else: a negative D item lowers the total.
void somaItem(Connection &con, TotaisRecibo &totais, const QString &codigoEvento, Money valor);
TotaisRecibo calculaTotais(Connection &con, const std::vector<ItemRecibo> &itens);

// Amount of an item with a reference: Arredonda(reference x unit value, 2).
Money valorComReferencia(double referencia, Money valorUnitario);

// ---- Numbering -------------------------------------------------------------
// The number after `numero` as six-digit text (val + 1 in double precision).
QString proximoNumero(const QString &numero);
// The first number of a session of emission: the one after Parametros.Fnreci.
inline QString primeiroNumero(const QString &fnreci) { return proximoNumero(fnreci); }
// End of a session: when val(atual) > 1, Fnreci takes the number before the
// current one. Returns the number written, or the empty text when nothing was.
QString gravaUltimoNumero(Connection &con, const QString &atual);
QString sqlGravaFnreci(const QString &numero);

// ---- Settlement stamp ----------------------------------------------------------
// valido = (val(codigo) + day count of drecbto (30/12/1899 is day 0) + a)
//          + the sum of the character codes of the user's name,
// where a is the money accumulator x 100 as a 16-bit integer. The accumulator
// is zeroed just before, so a is 0 and the amount never enters the stamp.
qint32 carimboValido(const QString &codigo, const QDate &drecbto, const QString &usuario);

// ---- How values are written ----------------------------------------------------
// A date as the date field shows it, "dd/mm/yyyy"; an invalid date gives "".
QString textoData(const QDate &data);
// A total in an INSERT: picture "#######0.00" ("90,00", "-10,00").
QString textoTotalInsert(Money valor);
// A total or amount in an UPDATE: the plain money text ("90", "-10", "12,5").
QString textoValor(Money valor);
// The ten item slots and the five totals of an UPDATE of Recibos, from
// "item0 = " to "vtotal = '...'": the items given, then empty slots.
QString sqlItensTotais(const std::vector<ItemRecibo> &itens, const TotaisRecibo &t);

// ---- The item grid (frmRecibos, frmRecBaixa) ----------------------------------------
// One row of the grid as typed: columns 0 "Cod.", 2 "Compl.", 3 "Ref.", 4 "Valor".
struct LinhaGrade {
    QString cod, comp, ref, valor;
};
// A cell read as a Brazilian number ("150,00", "1.234,5", "-10"); false when not numeric.
bool numeroDaCelula(const QString &celula, double *numero);
// Grid adjustment, the first step of every save: a row goes when val(code) is 0,
// or its value is not numeric, blank or 0. A reference of " " becomes 0.
std::vector<ItemRecibo> ajustaGrade(const std::vector<LinhaGrade> &linhas);

inline const QString kMsgSemItens = QStringLiteral("Não Pode ser Emitido Recibo sem Itens");
inline const QString kMsgSemValor = QStringLiteral("Não Pode ser Emitido Recibo sem Valor");
inline const QString kMsgSemVencimento = QStringLiteral("Todo registro deve ter um vencimento !");
inline const QString kMsgSemCobranca = QStringLiteral("Todo registro deve ter um local de cobrança !");
// The faults of a receipt's save; with no items the value is not tested.
std::vector<ErroGravacao> confereRecibo(size_t itens, const TotaisRecibo &totais, const QString &dvencto,
                                        const QString &tipcob);
