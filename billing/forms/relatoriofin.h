#pragma once
// What the billing print forms (letters, voter's cards, the four reports) do
// alike: their connection and buttons; the type boxes chkH, chkR, chkT, chkD;
// the state options optA, optB, optT; a period of two date fields; a unit's
// code with its search and its owner's name.
#include "billing/relatorios.h"
#include "core/datastore.h"

#include <QDate>
#include <QWidget>

class DateField;
class MaskEdit;
class QLabel;
class QPushButton;

// The body of a print form: a connection to the active file for its life;
// cmdImprimir prints, cmdSair closes.
class FormImpressao : public QWidget {
public:
    ~FormImpressao() override;
    virtual void cmdImprimir_Click() = 0;

protected:
    using QWidget::QWidget;
    // After setupUi: the buttons answer, the keyboard rules apply, the
    // connection opens.
    void liga();

    Connection cn_;
};

TiposTotal tiposDoForm(const QWidget &form);
// 'A' (optA), 'B' (optB) or 'T' (optT, or no option of the form ticked).
QChar situacaoDoForm(const QWidget &form);
// Both fields empty: no period, true. Both dates: true. One of them empty or
// not a date: "Informe as duas datas do período !" under "Atenção...", the
// focus on it, false.
bool periodoDosCampos(DateField *de, DateField *ate, QDate &inicio, QDate &fim);

// The unit's code: padded to six digits and the owner's name shown beside it
// when it loses the focus (nothing for a code not registered); the search
// button opens frmPesqap and brings back the code chosen.
void ligaCampoApto(Connection &con, MaskEdit *codigo, QPushButton *pesquisa, QLabel *nome);
