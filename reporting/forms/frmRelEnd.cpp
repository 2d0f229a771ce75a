#include "reporting/forms/frmRelEnd.h"

#include "ui_frmRelEnd.h"

frmRelEnd::frmRelEnd(QWidget *parent) : RelatorioCadastroForm(relacaoEnderecos(), parent)
{
    Ui::frmRelEnd().setupUi(this);
    liga();
}
