#pragma once
// The address block of a form: street, number, complement, district, city,
// state and postal code, in the controls txtEndereco, txtNumero,
// txtComplemento, txtBairro, txtCidade, txtUf and mskCep of its layout. The
// block brings the rules every address has: the state is checked against the
// table of states when it is left.
#include <QString>

class QWidget;

struct RegrasEndereco {
    // The message and title shown for a state that does not exist; the field
    // is then emptied. The wording differs between registers.
    QString mensagemUF;
    QString tituloUF = QStringLiteral("Erro");
    // A postal code left reading "00000-000" is emptied.
    bool limpaCepZerado = false;
};

// Binds the rules to the address controls found in the form.
void ligaEndereco(QWidget &form, const RegrasEndereco &regras);
