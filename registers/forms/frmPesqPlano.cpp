#include "registers/forms/frmPesqPlano.h"

#include "core/session.h"

frmPesqPlano::frmPesqPlano(QWidget *parent)
    : PesquisaDialog(parent, QStringLiteral("frmPesqPlano"), session.conAtiva,
                     {{QStringLiteral("codigo"), QStringLiteral("Código")}, {QStringLiteral("nome"), QStringLiteral("Descrição")}},
                     QStringLiteral("Plano WHERE sintetico = False"), QStringLiteral(" Order By codigo"))
{
}
