#include "reporting/forms/frmVecPa.h"

#include "ui_frmVecPa.h"

frmVecPa::frmVecPa(QWidget *parent) : RelatorioCadastroForm(cadastroVeiculos(), parent)
{
    Ui::frmVecPa().setupUi(this);
    liga();
}
