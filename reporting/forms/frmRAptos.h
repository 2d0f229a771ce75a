#pragma once
// Units with owner and spouse (RAptos.rpt).
#include "reporting/forms/relcadastro.h"

class frmRAptos : public RelatorioCadastroForm {
    Q_OBJECT
public:
    explicit frmRAptos(QWidget *parent = nullptr);
};
