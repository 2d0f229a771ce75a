#pragma once
// Vehicles of every unit (RVec.rpt).
#include "reporting/forms/relcadastro.h"

class frmVecPa : public RelatorioCadastroForm {
    Q_OBJECT
public:
    explicit frmVecPa(QWidget *parent = nullptr);
};
