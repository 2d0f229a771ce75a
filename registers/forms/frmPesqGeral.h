#pragma once
// Search by code or name on the system file (conSistema): condominiums, users, banks.
#include "registers/forms/pesquisa.h"

class frmPesqGeral : public PesquisaDialog {
    Q_OBJECT
public:
    explicit frmPesqGeral(QWidget *parent = nullptr);
};
