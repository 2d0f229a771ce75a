#pragma once
// Telephones of every unit (RTelefones.rpt).
#include "reporting/forms/relcadastro.h"

class frmRTelefonica : public RelatorioCadastroForm {
    Q_OBJECT
public:
    explicit frmRTelefonica(QWidget *parent = nullptr);
};
