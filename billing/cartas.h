#pragma once
// Collection letters (frmCarta_Cob) and voter's cards (frmTEleitor): the
// settings kept in Parametros, the checks of debt, and the statements of each
// print. A check returns the message that stops the print, or nothing.
#include "core/datastore.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>

// ---- Collection letter -----------------------------------------------------------
struct CartaCobranca {
    QString titulo;          // cartctit
    QString local;           // cartclocal, for the date line
    QString inicio, fim;     // cartcvini, cartcvfim: first and last due month, "mm/yyyy"; "" or "__/____" when not given
};
CartaCobranca leCarta(Connection &con);
QString sqlGravaCarta(const CartaCobranca &c);

// The due dates of the period, from the first day of the first month to the
// last day of the last; nothing when a month is missing or is not a month.
struct PeriodoCarta {
    QDate de, ate;
};
std::optional<PeriodoCarta> periodoCarta(const CartaCobranca &c);

// What stops a letter before its layout is chosen: no period, no valid unit
// (unless all debtors are asked for), no open receipt due in the period.
// The title of every message is "Atenção".
std::optional<QString> confereCarta(Connection &con, const CartaCobranca &c, bool geral, const QString &codap);
QString sqlDividaCarta(const PeriodoCarta &p, const QString &codap);
// All debtors when geral; the one unit otherwise.
QString sqlCarta(const PeriodoCarta &p, bool geral, const QString &codap);
QStringList colunasCarta();
// Local: "São Paulo, 5 de Abril de 2008".
QString localData(const QString &local, const QDate &data);
// The letter templates of the program directory: Carta*.rpt.
inline const QString kFiltroCartas = QStringLiteral("Modelos de Carta (Carta*.rpt)");
// The template's name when path is a Carta*.rpt of the program directory;
// empty otherwise.
QString modeloCarta(const QString &path, const QString &sysPath);

// ---- Voter's card ------------------------------------------------------------------
struct TituloEleitor {
    QString tit0, tit1;      // the two title lines
    QString vcba;            // due date of the check of debt, "dd/mm/yyyy" or "__/__/____"
};
TituloEleitor leTitulo(Connection &con);
QString sqlGravaTitulo(const TituloEleitor &t);

// The fields and the unit, in the order the form checks them; the title of
// every message is "Erro Fatal". umApto: optSel, one unit; else all units.
std::optional<QString> confereTitulo(Connection &con, const TituloEleitor &t, bool umApto, const QString &codap);
// Open receipts of the unit due up to the date: a unit in debt cannot vote.
QString sqlDividaTitulo(const QString &codap, const QDate &vcba);
QString sqlContaDividaTitulo(const QString &codap, const QDate &vcba);
QString sqlListaDividaTitulo(const QString &codap, const QDate &vcba);
inline const QString kAptoEmDebito = QStringLiteral("O Apto Selecionado Possui Recibos em Aberto !");
QString sqlTitulo(bool umApto, const QString &codap);
QStringList colunasTitulo();
