#pragma once
// The settings of a month's emission: the one row of Parametros (codigo = 1)
// as frmParametro holds it, its guard on options, and its validate-and-save.
#include "billing/recibo.h"
#include "core/money.h"

#include <QString>
#include <array>
#include <optional>
#include <vector>

class Connection;

// The values of frmParametro's controls. Dates are the texts of the date
// fields: fdemis "dd/mm/yyyy" or "__/__/____", fmvcto "mm/yyyy" or "__/____".
struct ParametrosEmissao {
    QString fnemis;                             // mskNemissao
    QString fdemis = QStringLiteral("__/__/____");  // tdbEmissao
    QString fmvcto = QStringLiteral("__/____");     // tdbVencto
    QString fnreci = QStringLiteral("000000");      // mskNrRecibo
    QChar fordem = QLatin1Char('N');            // 'A' Alfabética, 'N' Numérica, 'S' Seletiva
    QString fsempr = QStringLiteral("T");       // 'T' Todos, 'A' Ativos, or "1", "2", "3"
    double fpimpr = 0;
    QString ftitu1, ftitu2;
    std::array<Money, 3> fvref{};
    bool fretit = false, fspool = false, fautom = false, fhonor = false, fpdigi = false;
    std::array<QString, 4> fevnt;               // fixed events: code as stored
    std::array<double, 4> fvlev{};              //   value, may be negative
    std::array<QString, 4> fcpev;               //   complement
    QString fEvTc, fCpTc;                       // condominium fee
    QString fEvCb, fCpCb;                       // cabin fee
    QString fEvFr, fCpfr;                       // reserve fund
    QString fmsg;
};

// Captions of cmbOrdem and cmbTsel to the stored letters, and back.
QChar ordemDaLegenda(const QString &legenda);   // "Alfabética" A, "Numérica" N, "Seletiva" S
QString legendaDaOrdem(QChar ordem);
QString selecaoDaLegenda(const QString &legenda);  // "Todos" T, "Ativos" A, else the text
QString legendaDaSelecao(const QString &fsempr);   // T "Todos", A "Ativos", I "Inativos", else the text

inline const QString kMsgOpcoesInvalidas =
    QStringLiteral("Emissão automática não permite ordem seletiva ou retificação !");

// First step of cmdGravar and cmdInicia: an automatic run can be neither
// selective nor a rectification. Says so under "Atenção..." and gives false.
bool guardaOpcoes(bool eAutomatica, QChar ordem, bool retificacao);

// Step 1 of the save: Fnreci may not go below the highest stored number
// (a text maximum, right because all numbers have six digits). Equal is fine.
std::optional<ErroGravacao> confereUltimoRecibo(Connection &con, const QString &nrRecibo);

// The one UPDATE of Parametros, in the order of the form.
QString sqlGravaParametros(const ParametrosEmissao &p);

// Validate and save. With a finding, nothing is written and the finding is
// returned for the error dialog.
std::vector<ErroGravacao> gravaParametros(Connection &con, const ParametrosEmissao &p);

// Lost focus of a mskEvnt: a code above 0 must be an event. Says
// "Evento Não Cadastrado, ..." under "Erro" and gives false when it isn't.
bool confereEventoFixo(Connection &con, const QString &codigo);

// cmdInicia, after the save: the right to emit (cfadi), or to rectify (cfalt),
// read from Usuarios now. Says why and gives false without it.
bool direitoDeIniciar(bool retificacao, const QString &usuario);

// The stored row, as the form shows it.
ParametrosEmissao leParametros(Connection &con);
