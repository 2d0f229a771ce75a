#pragma once
// The editable grid of the chart that frmMovSaldini and frmMovpo share: code,
// description, type, class, synthetic mark and one amount a row. A synthetic
// row refuses editing; its amount comes from SomaSinteticas.
#include "core/datastore.h"

#include <QString>

class QTableWidget;

namespace gradeplano {
// Titles, widths and the check of a typed amount (a wrong one is refused with
// a message and the cell goes back to what it held). `mudou` runs after each
// accepted edit.
void prepara(QTableWidget &grade, const QString &tituloValor, std::function<void()> mudou);
// "SELECT Count(codigo) As I FROM plano", then the rows of the column.
void enche(QTableWidget &grade, Connection &cn, const QString &coluna);
// Each synthetic row gets the sum of the analytic rows that follow it, added
// in a 32-bit float, unrounded, as the system sums them.
void somaSinteticas(QTableWidget &grade);
int linhas(const QTableWidget &grade);
QString codigo(const QTableWidget &grade, int linha);
double valor(const QTableWidget &grade, int linha);
// The amount as a statement carries it, with a decimal point.
QString valorSql(const QTableWidget &grade, int linha);
}
