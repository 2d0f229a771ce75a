#pragma once
// Settlement, alteration, undoing of a settlement and deletion of one receipt
// (frmRecBaixa). Each act reads its right from Usuarios at the moment it is made.
#include "billing/recibo.h"

#include <QString>
#include <vector>

class Connection;

// The one user code that may undo a settlement, by clearing the date received
// and saving. It is a fixed code, not a right.
inline constexpr int kCodigoDesfazBaixa = 731;

inline const QString kMsgBaixaSemDireito = QStringLiteral("Usuário não autorizado a baixar recibos !");
inline const QString kMsgAlteraSemDireito = QStringLiteral("Usuário não autorizado a alterar recibos !");
inline const QString kMsgExcluiSemDireito = QStringLiteral("Usuário não autorizado a excluir recibos !");
inline const QString kMsgBaixaSemData = QStringLiteral("Para baixar é necessário uma Data de Recebimento !");
inline const QString kMsgJaBaixado =
    QStringLiteral("Este recibo já foi baixado em %1 por %2 ! Deseja baixá-lo novamente com a nova data ?");
inline const QString kMsgBaixaSemCobranca = QStringLiteral("Para baixar tem de ter um local de cobrança !");

QString sqlBaixa(const QString &numero, const QString &drecbto, const QString &usuario, qint32 valido);
QString sqlDesfazBaixa(const QString &numero);
QString sqlExclui(const QString &numero);

enum class ResultadoBaixa {
    SemMudanca,  // the date is as it was: nothing asked
    Restaurar,   // No, or no right: the original date goes back, focus to the grid
    ComErros,    // findings for the error dialog: focus back to the date
    Baixado,     // settled: clear the form
};

struct Baixa {
    ResultadoBaixa resultado = ResultadoBaixa::SemMudanca;
    std::vector<ErroGravacao> erros;
    qint32 valido = 0;
};

// Lost focus of tdbRecto. `original` is the date shown when the receipt was
// opened, `drecbto` the field's text now ("dd/mm/yyyy" or "__/__/____").
// Settling writes situacao, drecbto, Usubx and valido, and nothing else. A
// receipt settled already is settled again with a new date only on a Yes to
// kMsgJaBaixado, whose default is No.
Baixa baixaRecibo(Connection &con, const QString &numero, const QString &original, const QString &drecbto,
                  const QString &tipcob, const QString &usuario);

// The fields of frmRecBaixa for an alteration.
struct ReciboEditado {
    QString codigo, codap, nemis;
    QString demis, dvencto, drecbto;  // date fields' texts
    QString tipcob, tipbolbco, nrbco, obs1, obs2;
    std::vector<LinhaGrade> linhas;
};

struct Alteracao {
    bool gravado = false;
    bool baixaDesfeita = false;
    std::vector<ErroGravacao> erros;
    TotaisRecibo totais;
};

// The alteration statement: the ten slots, kept rows first, the rest cleared.
// Neither drecbto nor situacao is in it.
QString sqlAltera(const ReciboEditado &r, const std::vector<ItemRecibo> &itens, const TotaisRecibo &t);

// cmdGravar: asks, checks cfalt, adjusts the grid, totals, the faults, then the
// statement. When the date received was cleared and the user's code is 731,
// the settlement is undone by a second statement. `silenciosa` is the save
// before a copy is printed: no question, and without cfalt nothing is saved
// and nothing said.
Alteracao alteraRecibo(Connection &con, const ReciboEditado &r, const QString &usuario, int codUsuario,
                       bool silenciosa = false);

// cmdApagar: asks, checks cfexc, deletes. Apartment marks and Fnreci stay.
bool excluiRecibo(Connection &con, const QString &numero, const QString &usuario);

// The receipt as frmRecBaixa shows it: dates as "dd/mm/yyyy" ("__/__/____"
// when Null), the slots up to the first of value 0 as grid rows. Gives false
// when there is no receipt of that number.
bool leReciboEditado(Connection &con, const QString &numero, ReciboEditado *r);
