#pragma once
// frmAjTxVcto: fees and due days of many apartments at once, and the repair
// that rewrites the totals of stored receipts (cmdRecalT).
#include "core/money.h"

#include <QString>
#include <QStringList>
#include <vector>

class Connection;

// The inputs; 0 means "leave as it is".
struct AjusteTaxas {
    Money honor, honcb, honfr;
    int normal = 0;  // due day of owners who are not retired
    int apos = 0;    // due day of retired owners
    bool vazio() const { return honor.isZero() && honcb.isZero() && honfr.isZero() && normal == 0 && apos == 0; }
};

// One row of the grid of apartment types: the type and columns 3 to 7.
struct AjusteTipo {
    QString tipo;
    AjusteTaxas valores;
};

// The statements of cmdAjustar, in order.
QStringList sqlAjusteTodos(const AjusteTaxas &a);
// The statements of one row of cmdAjTipAp, in order.
QStringList sqlAjusteTipo(const AjusteTipo &t);

inline const QString kMsgSemValores = QStringLiteral("Não há valores para ajuste !!!");
inline const QString kMsgAjusteFinalizado = QStringLiteral("Ajuste Finalizado !!!");

// cmdAjustar: stops on empty inputs, asks, sends, says "Ajuste Finalizado !!!".
// Gives true when the statements were sent (the form then closes).
bool ajustaTodos(Connection &con, const AjusteTaxas &a);
// cmdAjTipAp: asks, then the statements of every row of the grid.
bool ajustaPorTipo(Connection &con, const std::vector<AjusteTipo> &linhas);

// cmdRecalT: every receipt emitted after 01/08/2002 gets its five totals again
// by the one totals rule, over all ten slots. Gives the number of receipts rewritten.
inline constexpr int kReciboDeParada = 13609;
long recalculaTotais(Connection &con);
