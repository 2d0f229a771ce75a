#include "registers/forms/frmPesqGeral.h"

#include "core/session.h"

frmPesqGeral::frmPesqGeral(QWidget *parent)
    : PesquisaDialog(parent, QStringLiteral("frmPesqGeral"), session.conSistema,
                     {{QStringLiteral("codigo"), QStringLiteral("Código"), true},
                      {QStringLiteral("nome"), QStringLiteral("Nome")}})
{
}
