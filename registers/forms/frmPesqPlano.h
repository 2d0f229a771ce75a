#pragma once
// The pick list of the chart of accounts: only analytic accounts can be chosen.
#include "registers/forms/pesquisa.h"

class frmPesqPlano : public PesquisaDialog {
    Q_OBJECT
public:
    explicit frmPesqPlano(QWidget *parent = nullptr);
};
