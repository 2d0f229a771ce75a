#include "reporting/forms/frmRAptos.h"

#include "ui_frmRAptos.h"

frmRAptos::frmRAptos(QWidget *parent) : RelatorioCadastroForm(relacaoAptos(), parent)
{
    Ui::frmRAptos().setupUi(this);
    liga();
}
