#pragma once
// Filters of receipts: up to three conditions on a field (from, up to) and a
// state. frmFiltro keeps the finished statements in Parametros.ppfrase (the
// list) and ppfrase1 (the count) for frmRecBaixa and the bank forms;
// frmPesqfin builds the same conditions into its search and its print.
#include "core/datastore.h"

#include <QString>
#include <QStringList>
#include <array>
#include <optional>

struct CondicaoFiltro {
    QString campo;  // caption of cmbCampo ("Nr.Recibo"...); empty: no condition
    QChar tipo;     // 'S' text, 'N' number, 'D' date
    QString de, ate;  // as typed; dates "dd/mm/yyyy", numbers with a decimal comma
};

struct Filtro {
    std::array<CondicaoFiltro, 3> condicoes;
    QChar situacao = QLatin1Char('A');  // 'A' open, 'B' settled, 'T' all
    QString ordem;                      // caption of cmbOrdem
};

// The captions of cmbCampo (and of cmbOrdem), their columns and types.
QStringList camposFiltro();
QString colunaDoCampo(const QString &legenda);
QChar tipoDoCampo(const QString &legenda);

// frmFiltro: dates go between # as typed, day first.
QString clausulaFiltro(const Filtro &f);
// frmPesqfin's search: dates month first, receipt numbers padded to six digits.
QString clausulaPesquisa(const Filtro &f);
// frmPesqfin's print: columns prefixed "Recibos.".
QString clausulaImpressao(const Filtro &f);
// The ORDER BY of the print for the caption of cmbOrdem.
QString ordemImpressao(const QString &legenda);
// The listing joined with the owners' names.
QString sqlImpressao(const Filtro &f);

QString sqlContaRecibos(const QString &clausula);   // "SELECT Count(codauto) As I FROM Recibos" + clause
QString sqlListaRecibos(const QString &clausula);   // "SELECT * FROM Recibos" + clause + " ORDER BY codigo"

// What a clerk typed that the statements cannot carry: a chosen field with
// an empty or malformed From or Up to, or a quote in a text. The message names
// the condition (1 to 3); nothing when the filter is well formed.
std::optional<QString> confereFiltro(const Filtro &f);

// frmFiltro's cmdGravar: the one UPDATE of Parametros with the conditions and
// both statements.
QString sqlGravaFiltro(const Filtro &f);
void gravaFiltro(Connection &con, const Filtro &f);
// The saved filter, as frmFiltro shows it on load. The From of the third
// condition is read from pp1de2, the column the load has always read.
Filtro leFiltro(Connection &con);

// The list and count statements that frmRecBaixa runs: the saved ones, or the
// open receipts when no filter was saved.
struct ListaRecibos {
    QString lista, conta;
};
ListaRecibos listaSalva(Connection &con);
inline const QString kListaPadrao = QStringLiteral("SELECT codauto, codigo, codap, nrbco, demis, dvencto, tipcob,drecbto,vtotal")
    + QStringLiteral(" FROM recibos WHERE situacao = 'A' ORDER BY codigo");
inline const QString kContaPadrao = QStringLiteral("SELECT Count(codauto) As I FROM Recibos WHERE situacao = 'A'");
