#include "reporting/forms/frmMoradPa.h"

#include "ui_frmMoradPa.h"

frmMoradPa::frmMoradPa(QWidget *parent) : RelatorioCadastroForm(relacaoMoradores(), parent)
{
    Ui::frmMoradPa().setupUi(this);
    liga();
}
