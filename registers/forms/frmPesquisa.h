#pragma once
// Search by code or name on the active file (conAtiva).
#include "registers/forms/pesquisa.h"

class frmPesquisa : public PesquisaDialog {
    Q_OBJECT
public:
    explicit frmPesquisa(QWidget *parent = nullptr);
};
