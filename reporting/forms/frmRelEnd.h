#pragma once
// Owners' addresses and the telephones of owner, tenant and unit (RelEnd.rpt).
#include "reporting/forms/relcadastro.h"

class frmRelEnd : public RelatorioCadastroForm {
    Q_OBJECT
public:
    explicit frmRelEnd(QWidget *parent = nullptr);
};
