#include "reporting/forms/frmRTelefonica.h"

#include "ui_frmRTelefonica.h"

frmRTelefonica::frmRTelefonica(QWidget *parent) : RelatorioCadastroForm(listagemTelefonica(), parent)
{
    Ui::frmRTelefonica().setupUi(this);
    liga();
}
