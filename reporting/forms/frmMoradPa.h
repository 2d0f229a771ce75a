#pragma once
// Residents of every unit (RMorad.rpt).
#include "reporting/forms/relcadastro.h"

class frmMoradPa : public RelatorioCadastroForm {
    Q_OBJECT
public:
    explicit frmMoradPa(QWidget *parent = nullptr);
};
