#pragma once
// frmRecibos, the manual emission: the apartments of the month, the proposal
// of one apartment's items, and the statements of a save, new or rectified.
#include "billing/emissao.h"
#include "billing/parametros.h"
#include "billing/recibo.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <vector>

class Connection;

// The apartments that have no receipt of this emission yet, and their count.
// fdemis goes month first between # signs.
SelecaoEmissao selecaoManual(const QString &fsempr, QChar fordem, const QString &fnemis, const QDate &fdemis);
// The codes of the list, in its order.
QStringList codigosDaSelecao(Connection &con, const SelecaoEmissao &s);

// The apartment's fields on the screen.
struct AptoRecibo {
    bool achado = false;
    QString codigo, nome;
    QString situacao;  // cmbSituacao: "Ativo", "Inativo", or the text of situ
    QString tipcob, tipbolbco;
    Money honor, honcb, honfr;
    double refer = 0;
    QDate vencto;      // invalid when the month is not a month
};

AptoRecibo leAptoRecibo(Connection &con, const QString &codigo, const QString &fmvcto);

// The proposal: the fee rows (when fhonor) and the fixed events, with the
// running total. A fee row of a unit of situ 1, 2 or 3 charges its reference
// times fvref of that situ; the total keeps the fee amount, as the screen
// shows it until the grid is adjusted.
struct Proposta {
    std::vector<LinhaGrade> linhas;
    Money total;
};
Proposta propoeItens(const ParametrosEmissao &p, const AptoRecibo &a);

// The values of a save.
struct ReciboManual {
    QString numero, codap, nemis;
    QString demis, dvencto, drecbto;  // date fields' texts, "__/__/____" when empty
    QString tipcob, tipbolbco, obs1, obs2;
};

QString sqlInsereRecibo(const ReciboManual &r, const std::vector<ItemRecibo> &itens, const TotaisRecibo &t);
QString sqlRetificaRecibo(const ReciboManual &r, const std::vector<ItemRecibo> &itens, const TotaisRecibo &t);
// The apartment's marks after a new receipt; `proximo` is the number after it.
QString sqlMarcaApto(const QString &fnemis, const QString &fdemis, const QString &proximo, const QString &codap);
// cmdAdados: the apartment's register takes the changes made on the screen.
QString sqlMudaApto(const QString &codap, const QDate &vencto, const QString &tipcob, const QString &tipbolbco,
                    const QString &situacao, Money honor, double refer, Money honcb, Money honfr);

struct GravacaoManual {
    std::vector<ErroGravacao> erros;  // with findings nothing was written
    std::vector<ItemRecibo> itens;    // the grid after the adjustment
    TotaisRecibo totais;
};
// cmdGravar: grid adjustment, totals, faults; then the receipt and, when new,
// the apartment's marks, as one step. `proximo` is the number after r.numero.
GravacaoManual gravaReciboManual(Connection &con, const ReciboManual &r, const std::vector<LinhaGrade> &linhas,
                                 bool novo, const QString &proximo);
