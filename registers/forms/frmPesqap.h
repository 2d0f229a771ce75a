#pragma once
// Search of units by code, internal code or name, on the active file; the
// tables of the system file (Usuarios, Clientes) are searched there.
#include "registers/forms/pesquisa.h"

class frmPesqap : public PesquisaDialog {
    Q_OBJECT
public:
    explicit frmPesqap(QWidget *parent = nullptr);
};
