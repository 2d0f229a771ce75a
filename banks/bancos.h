#pragma once
// The rule of each bank: from one receipt and the parameters as the form holds
// them, the bank's number (nrbco), the free field, the bar code and the typed
// line. One unit per bank: banco001.cpp, banco104.cpp, ...
#include "core/money.h"

#include <QDate>
#include <QString>
#include <cstdint>

// The receipt columns a slip is made of.
struct ReciboBanco {
    QString codigo;   // six-digit text
    Money vtotal;
    QDate dvencto;
};

// The parameters tab as the form holds it.
struct ParametrosBanco {
    QString banco;        // txtRBanco, three characters
    QString agencia;      // txtCodAgR, after its lost-focus "0000" format
    QString cedente;      // txtCodCedente; for bank 353 the account of mskCcR
    QString convenio;     // txtConvenioR
    QString carteira;     // mskCarteiraR with its prompt characters ("06_", "109", "___")
    // Bank 151 only: the form-level agency field that only the selection print
    // fills. Empty until that print has run; never defaulted to the agency.
    QString agenciaForm;

    // The wallet without its prompt characters.
    QString carteiraNua() const;
};

// The working fields of one slip.
struct Boleto {
    QString nrbco;        // the number as printed, with separators and check digit
    QString dv;           // check digit of the number
    QString campoLivre;
    QString barra;        // bar code digits, stored in barrabco
    QString linha;        // typed line with blanks and points, stored in lindigbco
    int16_t fator = 0;
    QString recusa;       // not empty: the rule refused, with this message
};

// The constant before the free field in the typed line: bank and currency "9".
inline QString constanteBanco(const QString &banco) { return banco + QStringLiteral("9"); }

// Factor, bar code and typed line of a slip whose number and free field are set.
void completaBoleto(Boleto &b, const QString &banco, const ReciboBanco &r);

Boleto Banco001(const ReciboBanco &r, const ParametrosBanco &p);
Boleto Banco104(const ReciboBanco &r, const ParametrosBanco &p);
Boleto Banco237(const ReciboBanco &r, const ParametrosBanco &p);
Boleto Banco409(const ReciboBanco &r, const ParametrosBanco &p);
Boleto Banco341(const ReciboBanco &r, const ParametrosBanco &p);
// Bank 422 numbers from a counter that the caller keeps and moves on by one
// after each receipt (see contador422Inicial).
Boleto Banco422(const ReciboBanco &r, const ParametrosBanco &p, int32_t contador);
Boleto Banco151(const ReciboBanco &r, const ParametrosBanco &p);
Boleto Banco353(const ReciboBanco &r, const ParametrosBanco &p);

// Bank 422: where the counter starts. nnr is the text of txtNnR; the first
// row's codigo is used when nnr is 0 or empty and the selection has a row.
int32_t contador422Inicial(const QString &nnr, const QString *codigoPrimeiraLinha);
// Bank 422: what RitauNn holds after a run whose last number was nrbco.
inline QString ritauNn422(const QString &ultimoNrbco) { return ultimoNrbco.left(8); }

// The digits of a masked text (the agency or account typed with its mask).
QString digitos(const QString &masked);

// The rule of a bank by its code; the 422 counter is used by that bank only.
// An unknown code gives a Boleto with only `recusa` set.
Boleto calculaBoleto(const QString &banco, const ReciboBanco &r, const ParametrosBanco &p, int32_t contador422 = 0);
