#pragma once
// The monthly statement printed on the back of the slips: the session's
// statement buffer (session.demonstrativo, 122 lines, and its line counter
// session.linhasDemonstrativo), filled from RBalancete or from a text file.
#include "accounting/progress.h"
#include "core/datastore.h"
#include "core/money.h"

#include <QString>

// Sums of the analytic rows of the statement. Receipts are taken without
// sign, expenses on the debit side: the result is receitas - despesas.
struct TotaisDemonstrativo {
    Money receitasMes, receitasAno;
    Money despesasMes, despesasAno;
};

inline const QString kDemonstrativoModelo1 = QStringLiteral("1 - Demonstrativo Mensal/Acumulado Anual");
inline const QString kDemonstrativoModelo2 = QStringLiteral("2 - Demonstrativo Mensal Simplificado");

// Writes the statement of model 1 or 2 for the month (as text, "3" or "03")
// and year text from RBalancete, which Monta_Balancete must have filled for
// that month. The buffer is cleared first; the counter ends at the number of
// lines written. Any other model leaves the buffer empty. More lines than
// the buffer holds stop the run ("Subscrito fora do intervalo").
void Monta_Demonstrativo(Connection &con, TotaisDemonstrativo &totais, int modelo, const QString &mes,
                         const QString &ano, const ProgressFn &progresso = {});

// Loads the text file named in session.arqway: at most 118 lines, each cut
// to 70 characters; the line read when the end of the file is reached is not
// kept. Then one empty line and each of the four extra lines that is not
// empty. An empty path is refused with a message; a missing file stops the
// run ("Arquivo não encontrado").
void Carrega_Texto(const QString &linAdic1, const QString &linAdic2, const QString &linAdic3, const QString &linAdic4);
