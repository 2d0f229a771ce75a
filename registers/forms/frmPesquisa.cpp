#include "registers/forms/frmPesquisa.h"

#include "core/session.h"

frmPesquisa::frmPesquisa(QWidget *parent)
    : PesquisaDialog(parent, QStringLiteral("frmPesquisa"), session.conAtiva,
                     {{QStringLiteral("codigo"), QStringLiteral("Código"), true},
                      {QStringLiteral("nome"), QStringLiteral("Nome")}})
{
}
