#pragma once
// The slips of a set of receipts through BolRelItau.rpt: the rows of the
// receipts and their payers, the parameters and the statement lines as
// formulas. Shared by frmBcoDiversos and frmFiltroImpBoleto.
#include "core/datastore.h"

#include <QString>
#include <QDate>
#include <QStringList>
#include <array>

struct DadosBoleto {
    QString banco, carteira, especie, dataProc, titulo;
    std::array<QString, 6> instrucoes;
};

// `filtro` is the WHERE and ORDER BY that follow the join of Recibos and
// Aptos. False (and nothing shown) when it finds no receipt.
bool imprimeBoletosDoFiltro(Connection &con, const QString &filtro, const DadosBoleto &d);

// The statement of the older slip forms (frmBoleto, frmBcoSantander): the row
// of RBalRec written again (month, model, title, extra lines and, with
// `colunasTexto`, whether a text file is used and its path), then the buffer
// filled from the month's accounts or, with `arquivo`, from the text file of
// session.arqway, the extra lines after it. Returns the number of lines. The
// caller has checked the month, the model and the path.
int criaDemonstrativo(Connection &con, const QDate &mes, int modelo, const QString &titulo, const QStringList &extras,
                      bool colunasTexto, bool arquivo, const QString &arqway);
